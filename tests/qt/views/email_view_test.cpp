// tests/qt/views/email_view_test.cpp - does the e-mail dialog on screen reach the model, and the model the screen?
#include "qt/views/email_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/widgets/page_area.h"
#include "screens/players/player_file.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using test::csv;
using test::playerFile;

class EmailViewTest : public testing::Test
{
protected:
    EmailViewTest()
    {
        scratch.put("PLAYERNAMES.CSV", playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org"),
                                                   csv("Smith,JS", "SMITH_JS.THC", "js@example.org")}));
        mail.load();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    template <class Widget = QWidget>
    Widget* widget(const char* name) const
    {
        auto* found = view.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QStringList recipients() const
    {
        const QAbstractItemModel* model = widget<QListView>("lstTo")->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows << model->index(row, 0).data().toString();
        return rows;
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    MailDraft draft;
    EmailScreen mail{folder, platform.services, screens, draft};
    Desk desk;
    EmailView view{mail, desk};
};

TEST_F(EmailViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(EmailViewTest, TypingCompletesTheEntryAndEnterAddsTheAddress)
{
    auto* entry = widget<QLineEdit>("txtEntry");
    entry->setFocus();
    QTest::keyClicks(entry, QStringLiteral("sm"));
    EXPECT_EQ(entry->text(), QStringLiteral("Smith,JS                   (js@example.org)"));
    EXPECT_EQ(entry->selectedText(), entry->text().mid(2));
    EXPECT_EQ(widget<QListView>("lstPlayerNames")->currentIndex().row(), 1);
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(recipients(), QStringList{QStringLiteral("js@example.org")});
    EXPECT_EQ(entry->text(), QString{});
}

TEST_F(EmailViewTest, ADoubleClickAddsThePlayer)
{
    auto* list = widget<QListView>("lstPlayerNames");
    const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(recipients(), QStringList{QStringLiteral("b@example.org")});
}

TEST_F(EmailViewTest, FreeEntryTakesWhatIsTyped)
{
    QTest::mouseClick(widget("cmdFreeEntry"), Qt::LeftButton);
    auto* entry = widget<QLineEdit>("txtEntry");
    EXPECT_EQ(QApplication::focusWidget(), entry);
    QTest::keyClicks(entry, QStringLiteral("smith@example.org"));
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_EQ(recipients(), QStringList{QStringLiteral("smith@example.org")});
}

TEST_F(EmailViewTest, EnterIsALineBreakInTheMessage)
{
    auto* message = widget<QPlainTextEdit>("txtMessage");
    message->setFocus();
    QTest::keyClicks(message, QStringLiteral("Hi"));
    QTest::keyClick(message, Qt::Key_Return);
    QTest::keyClicks(message, QStringLiteral("all"));
    QTest::keyClicks(widget("txtSubject"), QStringLiteral("Round 2"));
    platform.dialogs.answer(ui::Answer::Ok);
    QTest::mouseClick(widget("cmdSend"), Qt::LeftButton);
    EXPECT_EQ(draft.message, "Hi\r\nall");
    EXPECT_EQ(draft.subject, "Round 2");
}

TEST_F(EmailViewTest, EscapeIsExit)
{
    QTest::keyClick(widget("txtEntry"), Qt::Key_Escape);
    EXPECT_TRUE(draft.cancelled);
}

TEST_F(EmailViewTest, FitsASmallScreen)
{
    EXPECT_LE(view.findChild<PageArea*>()->widget()->minimumSizeHint().width(), 1366);
    EXPECT_LE(view.minimumSizeHint().height(), 700);
}

} // namespace
} // namespace tallyhoop::qt
