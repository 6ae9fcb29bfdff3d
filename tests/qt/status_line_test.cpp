// tests/qt/status_line_test.cpp - the line below a page, changed by the pointer, the focus and the screen.
#include "qt/sample_screen.h"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

class Explained : public SampleScreen
{
public:
    Explained()
    {
        explanation = "Type a name.";
        txtName.explanation = "Who it is.";
        txtOther.explanation = "Who else it is.";
        cmdOk.explanation = "Goes on.";
        lblTitle.explanation = "Names the sample.";
        mnuOpen.explanation = "Opens <b>a file</b>.";
        mnuExit.explanation = "Ends it all.";
    }
};

struct StatusLineTest : testing::Test {
    StatusLineTest()
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // where no window is
        screen.focused = &screen.txtName;
        page.show();
        activate(page);
        desk.runInside(screen, {});
    }

    QString shown() const { return page.findChild<QLabel*>(QStringLiteral("explanation"))->text(); }

    void pointerComesTo(QWidget& widget)
    {
        const QPointF middle = widget.rect().center();
        QEnterEvent enter{middle, middle, widget.mapToGlobal(middle)};
        QApplication::sendEvent(&widget, &enter);
    }

    void pointerLeaves(QWidget& widget)
    {
        QEvent leave{QEvent::Leave};
        QApplication::sendEvent(&widget, &leave);
    }

    Desk desk;
    Explained screen;
    SamplePage page{screen, desk};
};

} // namespace

TEST_F(StatusLineTest, SaysWhatToDoAtFirst) { EXPECT_EQ(shown(), QStringLiteral("Type a name.")); }

TEST_F(StatusLineTest, FollowsThePointer)
{
    pointerComesTo(*page.ok);
    EXPECT_EQ(shown(), QStringLiteral("Goes on."));
    pointerLeaves(*page.ok);
    EXPECT_EQ(shown(), QStringLiteral("Type a name."));
    pointerComesTo(*page.title);
    EXPECT_EQ(shown(), QStringLiteral("Names the sample."));
    pointerComesTo(*page.all);
    EXPECT_EQ(shown(), QStringLiteral("Type a name."))
        << "a control without an explanation leaves the line to the screen";
}

TEST_F(StatusLineTest, ExplainsADisabledControlToo)
{
    desk.run(screen, [&] { screen.cmdOk.enabled = false; });
    pointerComesTo(*page.ok);
    EXPECT_EQ(shown(), QStringLiteral("Goes on."));
}

TEST_F(StatusLineTest, FollowsTheFocusThatTabMoves)
{
    QTest::keyClick(page.name, Qt::Key_Tab);
    EXPECT_EQ(shown(), QStringLiteral("Who else it is."));
    QTest::keyClick(page.other, Qt::Key_Tab); // to the notes, which explain nothing
    EXPECT_EQ(shown(), QStringLiteral("Type a name."));
    QTest::keyClick(page.notes, Qt::Key_Tab);
    EXPECT_EQ(shown(), QStringLiteral("Goes on."));
    QTest::keyClick(page.ok, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(page.notes, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(shown(), QStringLiteral("Who else it is."));
}

TEST_F(StatusLineTest, AFocusThatMovesWinsOverAPointerThatRests)
{
    pointerComesTo(*page.ok);
    QTest::keyClick(page.name, Qt::Key_Tab);
    EXPECT_EQ(shown(), QStringLiteral("Who else it is."));
    pointerComesTo(*page.title);
    EXPECT_EQ(shown(), QStringLiteral("Names the sample."));
}

TEST_F(StatusLineTest, NewsAreShownUntilPointerOrFocusMoves)
{
    QTest::keyClick(page.name, Qt::Key_Tab);
    pointerComesTo(*page.ok);
    desk.run(screen, [&] { screen.say("It is saved."); });
    EXPECT_EQ(shown(), QStringLiteral("It is saved.")) << "pointer and focus rest where they were";
    pointerComesTo(*page.title);
    EXPECT_EQ(shown(), QStringLiteral("Names the sample."));
    pointerLeaves(*page.title);
    EXPECT_EQ(shown(), QStringLiteral("It is saved."));
    QTest::keyClick(page.other, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(shown(), QStringLiteral("Who it is."));
}

TEST_F(StatusLineTest, NewsAreShownWhenABoxClosesAboveAControl)
{
    const QPoint rest = page.title->mapToGlobal(page.title->rect().center());
    QCursor::setPos(rest);
    desk.run(screen, [&] { screen.say("It is saved."); });
    pointerComesTo(*page.title); // which was below the box
    EXPECT_EQ(shown(), QStringLiteral("It is saved."));
    pointerLeaves(*page.title);
    pointerComesTo(*page.ok);
    EXPECT_EQ(shown(), QStringLiteral("Goes on.")) << "now it has moved";
    pointerComesTo(*page.title);
    EXPECT_EQ(shown(), QStringLiteral("Names the sample."));
}

TEST_F(StatusLineTest, TheSameNewsAreShownAgain)
{
    desk.run(screen, [&] { screen.say("It is saved."); });
    pointerComesTo(*page.ok);
    ASSERT_EQ(shown(), QStringLiteral("Goes on."));
    desk.run(screen, [&] { screen.say("It is saved."); });
    EXPECT_EQ(shown(), QStringLiteral("It is saved."));
}

TEST_F(StatusLineTest, NewsWinOverTheFocusThatTheSameCommandMoves)
{
    desk.run(screen, [&] {
        screen.say("Not saved.");
        screen.focused = &screen.txtOther;
    });
    ASSERT_TRUE(page.other->hasFocus());
    EXPECT_EQ(shown(), QStringLiteral("Not saved."));
    desk.run(screen, [&] { screen.focused = &screen.txtName; });
    EXPECT_EQ(shown(), QStringLiteral("Who it is."));
}

TEST_F(StatusLineTest, NewsThatEndLeaveTheLineToTheScreensExplanation)
{
    desk.run(screen, [&] { screen.say("It is saved."); });
    desk.run(screen, [&] { screen.say({}); });
    EXPECT_EQ(shown(), QStringLiteral("Type a name."));
}

TEST_F(StatusLineTest, ANewExplanationOfTheScreenIsShownUntilPointerOrFocusMoves)
{
    QTest::keyClick(page.name, Qt::Key_Tab);
    desk.run(screen, [&] { screen.explanation = "Type another name."; });
    EXPECT_EQ(shown(), QStringLiteral("Type another name."));
    QTest::keyClick(page.other, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(shown(), QStringLiteral("Who it is."));
}

TEST_F(StatusLineTest, NewsWinOverTheScreensExplanation)
{
    desk.run(screen, [&] {
        screen.say("It is saved.");
        screen.explanation = "Type another name.";
    });
    EXPECT_EQ(shown(), QStringLiteral("It is saved."));
}

TEST_F(StatusLineTest, AnExplanationThatChangesIsShownAtOnce)
{
    pointerComesTo(*page.ok);
    desk.run(screen, [&] { screen.cmdOk.explanation = "Ends it."; });
    EXPECT_EQ(shown(), QStringLiteral("Ends it."));
}

TEST_F(StatusLineTest, FollowsTheEntriesOfAMenuByKeyAndByPointer)
{
    auto& file = *page.actionOf(screen.mnuFile)->menu();
    QTest::mouseClick(page.menuBar(), Qt::LeftButton, {},
                      page.menuBar()->actionGeometry(page.actionOf(screen.mnuFile)).center());
    ASSERT_TRUE(file.isVisible());
    QTest::keyClick(&file, Qt::Key_Down);
    ASSERT_EQ(file.activeAction(), page.actionOf(screen.mnuOpen));
    EXPECT_EQ(shown(), QStringLiteral("Opens <b>a file</b>."));
    QTest::mouseMove(&file, file.actionGeometry(page.actionOf(screen.mnuExit)).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == QStringLiteral("Ends it all."); }));
    file.close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == QStringLiteral("Type a name."); }));
}

TEST_F(StatusLineTest, TheScreensStatusIsAlwaysShown)
{
    desk.run(screen, [&] { screen.status = "3 players"; });
    pointerComesTo(*page.ok);
    EXPECT_EQ(page.findChild<QLabel*>(QStringLiteral("status"))->text(), QStringLiteral("3 players"));
    EXPECT_EQ(shown(), QStringLiteral("Goes on."));
}

TEST_F(StatusLineTest, ALongSentenceDoesNotMakeTheWindowWider)
{
    const int width = page.minimumSizeHint().width();
    desk.run(screen, [&] { screen.explanation = std::string(500, 'W'); });
    EXPECT_EQ(page.minimumSizeHint().width(), width);
}

TEST_F(StatusLineTest, IsSpokenWithTheControl)
{
    EXPECT_EQ(page.ok->accessibleDescription(), QStringLiteral("Goes on."));
    desk.run(screen, [&] { screen.cmdOk.explanation = "Goes on, slowly."; });
    EXPECT_EQ(page.ok->accessibleDescription(), QStringLiteral("Goes on, slowly."));
}

TEST(PageWithoutExplanations, HasNoStatusLine)
{
    Shown shown;
    EXPECT_EQ(shown.page.findChild<QStatusBar*>(), nullptr);
}
