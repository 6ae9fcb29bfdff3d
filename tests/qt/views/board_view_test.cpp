// tests/qt/views/board_view_test.cpp - the mouse, the keyboard and the tool tips on the bracket.
#include "qt/views/board_view.h"

#include "app/wiring.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "files/setup_file.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

namespace tallyhoop::qt {
namespace {

class BoardViewTest : public testing::Test
{
protected:
    BoardViewTest()
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        board.load();
        view.resize(1366, 740);
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        find(QStringLiteral("txtPlayerInitials")).setFocus(); // as in the program
        desk.runInside(board, {});
    }

    template <class Widget = QWidget>
    Widget& find(const QString& name) const
    {
        return *view.findChild<Widget*>(name);
    }

    QAbstractButton& place(int position) const
    {
        return find<QAbstractButton>(QStringLiteral("lblRegion_%1").arg(position));
    }

    const std::string& team(int position) const { return board.bracket().at(Position{position}); }

    /// Opens a selection of the sample field with one more pick.
    void openWith(Position position, const std::string& picked)
    {
        Entry entry = demo::sampleResults();
        entry.picks.put(position, picked);
        platform.dialogs.pick(scratch.put("Opened.THC", selectionFile(entry)));
        desk.runInside(board, [this] { board.mnuOpenSelection.click(); });
    }

    /// A point of another widget as the bracket sees it.
    QPoint onBracket(const QWidget& widget) const
    {
        return widget.mapTo(&find(QStringLiteral("bracketCanvas")), widget.rect().center());
    }

    void pressAndDrag(const QWidget& from, QPoint to)
    {
        QWidget& bracket = find(QStringLiteral("bracketCanvas"));
        QTest::mousePress(&bracket, Qt::LeftButton, {}, onBracket(from));
        QMouseEvent move{QEvent::MouseMove, to, bracket.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {}};
        QApplication::sendEvent(&bracket, &move);
    }

    void release(QPoint at) { QTest::mouseRelease(&find(QStringLiteral("bracketCanvas")), Qt::LeftButton, {}, at); }

    /// Presses and releases where the widget is on the screen; the window system decides which one gets it.
    void clickOnTheScreen(const QWidget& widget, QPoint at)
    {
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&view, at));
    }

    /// The tool tip of a pointer that rests on a place.
    QString tipOf(QWidget& widget)
    {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        const QPoint middle = widget.rect().center();
        QHelpEvent rest{QEvent::ToolTip, middle, widget.mapToGlobal(middle)};
        QApplication::sendEvent(&widget, &rest);
        return QToolTip::text();
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    test::FakeScreens screens;
    BoardScreen board{
        folder,
        platform.services,
        screens,
        {shared.field, shared.savedPlayer, shared.listedPlayer, shared.folderTroubleSaid, shared.droppedFiles}};
    Desk desk;
    BoardView view{board, desk};
};

TEST_F(BoardViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(BoardViewTest, APlaceAndItsMarkerTouchAtEverySize)
{
    for (int width = 1030; width < 1050; ++width) {
        view.resize(width, 700);
        for (int game = 0; game < kGames; ++game) {
            const int position = index(gamePositions()[static_cast<std::size_t>(game)]);
            const QWidget& marker = find(QStringLiteral("lblResult_%1").arg(game));
            ASSERT_EQ(place(position).geometry().right() + 1, marker.geometry().left()) << width << ", game " << game;
        }
    }
}

TEST_F(BoardViewTest, ADragShowsTheNameAndEndsWhereItIsReleased)
{
    pressAndDrag(place(0), onBracket(place(24)));
    EXPECT_TRUE(find(QStringLiteral("draggedTeam")).isVisible());
    EXPECT_EQ(find<QLabel>(QStringLiteral("draggedTeam")).text(), QStringLiteral("Arizona"));
    release(onBracket(place(24)));
    EXPECT_FALSE(find(QStringLiteral("draggedTeam")).isVisible());
    EXPECT_EQ(team(16), "Arizona");
    EXPECT_EQ(team(24), "Arizona");
}

TEST_F(BoardViewTest, AClickOnATeamLeavesTheFocusInTheField)
{
    auto& initials = find(QStringLiteral("txtPlayerInitials"));
    initials.setFocus();
    QTest::mouseClick(&place(0), Qt::LeftButton);
    QTest::mouseClick(&place(16), Qt::LeftButton);
    EXPECT_TRUE(initials.hasFocus());
    QTest::keyClick(&initials, Qt::Key_Return);
    EXPECT_TRUE(find(QStringLiteral("txtPlayerName")).hasFocus());
}

TEST_F(BoardViewTest, UndoAndRedoReachTheBracketWhileAFieldHasTheFocus)
{
    auto& initials = find(QStringLiteral("txtPlayerInitials"));
    QTest::mouseClick(&place(0), Qt::LeftButton);
    ASSERT_EQ(team(16), "Arizona");
    ASSERT_TRUE(initials.hasFocus());
    QTest::keyClick(&initials, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(team(16), "");
    QTest::keyClick(&initials, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(team(16), "Arizona");
}

TEST_F(BoardViewTest, UndoUndoesTheLastChangeWhetherItWasTypedOrClicked)
{
    auto& initials = find<QLineEdit>(QStringLiteral("txtPlayerInitials"));
    const auto undo = [&] { QTest::keyClick(&initials, Qt::Key_Z, Qt::ControlModifier); };
    QTest::mouseClick(&place(0), Qt::LeftButton);
    QTest::keyClick(&initials, Qt::Key_J);
    ASSERT_EQ(initials.text(), QStringLiteral("j"));

    undo(); // typed last
    EXPECT_EQ(initials.text(), QString{});
    EXPECT_EQ(team(16), "Arizona");
    undo();
    EXPECT_EQ(team(16), "");

    QTest::keyClick(&initials, Qt::Key_J);
    QTest::mouseClick(&place(0), Qt::LeftButton);
    undo(); // clicked last
    EXPECT_EQ(team(16), "");
    EXPECT_EQ(initials.text(), QStringLiteral("j"));
}

TEST_F(BoardViewTest, UndoRestoresTheBoardThatNewHasEmptiedWhileAFieldHasTheFocus)
{
    auto& initials = find<QLineEdit>(QStringLiteral("txtPlayerInitials"));
    QTest::keyClick(&initials, Qt::Key_J);
    QTest::keyClick(&initials, Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(initials.text(), QString{});
    QTest::keyClick(&initials, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(initials.text(), QStringLiteral("j"));
}

TEST_F(BoardViewTest, TheArrowKeysReachPlacesThatTabSkips)
{
    place(0).setFocus();
    QTest::keyClick(&place(0), Qt::Key_Down);
    EXPECT_TRUE(place(1).hasFocus());
    EXPECT_TRUE(place(1).focusPolicy() & Qt::TabFocus) << "the bracket is one stop: the place that had the focus last";
    EXPECT_FALSE(place(0).focusPolicy() & Qt::TabFocus);
}

TEST_F(BoardViewTest, ADropBesideThePlacesDoesNothing)
{
    pressAndDrag(place(0), onBracket(find(QStringLiteral("lblTitle"))));
    release(onBracket(find(QStringLiteral("lblTitle"))));
    EXPECT_FALSE(find(QStringLiteral("draggedTeam")).isVisible());
    EXPECT_FALSE(board.isDragging());
    EXPECT_EQ(team(16), "");
}

TEST_F(BoardViewTest, ARightPressInTheMiddleOfADragCancelsIt)
{
    pressAndDrag(place(0), onBracket(place(24)));
    QTest::mousePress(&find(QStringLiteral("bracketCanvas")), Qt::RightButton, {}, onBracket(place(24)));
    EXPECT_FALSE(find(QStringLiteral("draggedTeam")).isVisible());
    release(onBracket(place(24)));
    EXPECT_EQ(team(24), "");
}

TEST_F(BoardViewTest, ADragWithoutAReleaseIsCancelled)
{
    pressAndDrag(place(0), onBracket(place(24)));
    QWidget& bracket = find(QStringLiteral("bracketCanvas"));
    const QPoint to = onBracket(place(24));
    QMouseEvent move{QEvent::MouseMove, to, bracket.mapToGlobal(to), Qt::NoButton, Qt::NoButton, {}};
    QApplication::sendEvent(&bracket, &move);
    EXPECT_FALSE(find(QStringLiteral("draggedTeam")).isVisible());
    EXPECT_FALSE(board.isDragging());
    release(to);
    EXPECT_EQ(team(24), "");
}

TEST_F(BoardViewTest, ATeamMayBeLetGoAboveTheMarkerOfAPlace)
{
    const QWidget& marker = find(QStringLiteral("lblResult_8")); // of place 24
    pressAndDrag(place(0), onBracket(marker));
    release(onBracket(marker));
    EXPECT_EQ(team(24), "Arizona");
    EXPECT_FALSE(board.isDragging());
}

TEST_F(BoardViewTest, APressOnAMarkerPicksNothing)
{
    const QWidget& marker = find(QStringLiteral("lblResult_8"));
    const std::string before = team(28);
    pressAndDrag(marker, onBracket(marker));
    release(onBracket(marker));
    EXPECT_EQ(team(28), before);
}

TEST_F(BoardViewTest, PressesOnTheFormAndOnDisabledLabelsRaiseTheScoreDisplay)
{
    screens.open.insert(ScreenKind::Scores);
    desk.push();
    ASSERT_FALSE(place(0).isEnabled());
    const auto& marker = find(QStringLiteral("lblResult_0"));
    clickOnTheScreen(place(0), place(0).rect().center());
    clickOnTheScreen(marker, marker.rect().center());
    clickOnTheScreen(find(QStringLiteral("bracketCanvas")), {1, 1});
    // Below the bracket, beside the fields.
    clickOnTheScreen(*find(QStringLiteral("txtPlayerName")).parentWidget(), {2, 2});
    const std::vector<ScreenKind> eachTime(4, ScreenKind::Scores);
    EXPECT_EQ(screens.raised, eachTime);
    EXPECT_EQ(team(16), "");
}

TEST_F(BoardViewTest, TheToolTipOfACutNameIsTheWholeName)
{
    const std::string longName(300, 'W');
    openWith(Position{16}, "A&M");
    EXPECT_EQ(tipOf(place(16)), QString{});
    openWith(Position{16}, "A&M <b> " + longName);
    EXPECT_EQ(place(16).text(), QString::fromStdString(team(16)));
    EXPECT_EQ(tipOf(place(16)),
              QStringLiteral("<qt>A&amp;M &lt;b&gt; ") + QString::fromStdString(longName) + QStringLiteral("</qt>"));
    openWith(Position{0}, longName);
    EXPECT_EQ(tipOf(place(0)), QStringLiteral("Left Click or Drag to Select")) << "the first round keeps its own";
}

TEST_F(BoardViewTest, ATitleThatDoesNotFitShowsItsBeginningAndItsToolTipIsTheWholeTitle)
{
    auto& title = find<QLabel>(QStringLiteral("lblTitle"));
    shared.field.title = "Smith & Sons " + std::string(300, 'W');
    desk.push();
    EXPECT_EQ(title.text(), QString::fromStdString(shared.field.title));
    EXPECT_EQ(tipOf(title),
              QStringLiteral("<qt>Smith &amp; Sons ") + QString(300, QLatin1Char{'W'}) + QStringLiteral("</qt>"));
    const QImage cut = title.grab().toImage();
    shared.field.title = "Jones & Sons " + std::string(300, 'W');
    desk.push();
    EXPECT_NE(title.grab().toImage(), cut) << "the beginning is not visible";
    shared.field.title = "Smith & Sons";
    desk.push();
    EXPECT_EQ(tipOf(title), QString{});
}

TEST_F(BoardViewTest, TheStatusLineFollowsThePointerAndTheArrowKeys)
{
    const auto& line = find<QLabel>(QStringLiteral("explanation"));
    desk.runInside(board, [this] { shared.field.finalized = "0"; });
    EXPECT_TRUE(line.text().startsWith(QStringLiteral("The field is not finalized yet")));
    const QPointF middle = place(31).rect().center();
    QEnterEvent enter{middle, middle, place(31).mapToGlobal(middle)};
    QApplication::sendEvent(&place(31), &enter);
    EXPECT_EQ(line.text(), QString::fromStdString(board.lblRegion[31].explanation));
    place(0).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(line.text().contains(QStringLiteral("Arizona"))) << line.text().toStdString();
    QTest::keyClick(&place(0), Qt::Key_Down);
    EXPECT_TRUE(line.text().contains(QStringLiteral("Jackson St."))) << line.text().toStdString();
    QTest::keyClick(&place(1), Qt::Key_Right);
    EXPECT_TRUE(line.text().startsWith(QStringLiteral("1 picks Arizona, 2 picks Jackson St.")));
    QTest::keyClick(&place(16), Qt::Key_Left);
    QTest::keyClick(&place(0), Qt::Key_Space);
    QTest::keyClick(&place(0), Qt::Key_Right);
    EXPECT_TRUE(line.text().startsWith(QStringLiteral("Click or press Space to send Arizona on")));
    QTest::keyClick(&place(16), Qt::Key_Delete);
    EXPECT_TRUE(line.text().startsWith(QStringLiteral("1 picks Arizona, 2 picks Jackson St.")))
        << "the place has changed";
}

TEST_F(BoardViewTest, APlaceReachedByKeysShowsThePathOfItsTeam)
{
    board.pressPosition(Position{0}, MouseButton::Left);
    board.dropOnPosition(Position{24});
    desk.push();
    const QImage before = place(24).grab().toImage();
    place(0).setFocus(Qt::TabFocusReason);
    EXPECT_NE(place(24).grab().toImage(), before);
    find(QStringLiteral("txtPlayerName")).setFocus(Qt::TabFocusReason);
    EXPECT_EQ(place(24).grab().toImage(), before);
}

TEST_F(BoardViewTest, AnEmptyPickThatIsWrongIsRedLikeItsMark)
{
    shared.listedPlayer.emplace();
    shared.listedPlayer->verdicts[Position{16}] = Verdict::Bad;
    desk.push();
    const auto textColour = [](const QWidget& widget) { return widget.palette().color(QPalette::WindowText); };
    EXPECT_EQ(place(16).text(), QString{});
    EXPECT_EQ(textColour(place(16)), QColor(255, 0, 0));
    EXPECT_EQ(find<QAbstractButton>(QStringLiteral("lblResult_0")).text(), QStringLiteral("X"));
    EXPECT_EQ(textColour(find(QStringLiteral("lblResult_0"))), QColor(255, 0, 0));
    EXPECT_EQ(textColour(place(17)), QColor(0, 0, 255));
    shared.listedPlayer.reset();
    desk.push();
    EXPECT_EQ(textColour(place(16)), QColor(0, 0, 255));
    EXPECT_EQ(textColour(find(QStringLiteral("lblResult_0"))), QColor(0, 0, 255));
}

TEST_F(BoardViewTest, CutsNoCaptionOfARound)
{
    for (const QSize size : {QSize{1280, 720}, QSize{1366, 700}, QSize{1920, 1000}, QSize{2560, 1300}}) {
        view.resize(size);
        QApplication::processEvents();
        for (std::size_t i = 0; i < board.lblRoundName.size(); ++i) {
            const QWidget& caption = find(QString::fromStdString(board.lblRoundName[i].name));
            const QString text = QString::fromStdString(board.lblRoundName[i].text);
            EXPECT_LE(caption.fontMetrics().horizontalAdvance(text), caption.width())
                << text.toStdString() << " at " << size.width();
        }
    }
}

} // namespace
} // namespace tallyhoop::qt
