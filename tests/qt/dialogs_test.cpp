// tests/qt/dialogs_test.cpp - message boxes, input boxes and the choice of a folder.
#include "fakes/scratch_folder.h"
#include "qt/asking.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

TEST(QtDialogs, AMessageShowsItsCaptionTextIconAndButtons)
{
    Asking asking;
    withNext<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("** DEMO[*][*] **"));
        EXPECT_EQ(box.text(), QStringLiteral("<b>one</b> & two\n \nthree"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(asking.dialogs.show(
                  {"** DEMO[*] **", "<b>one</b> & two\r\n \r\nthree", ui::Buttons::OkCancel, ui::Icon::Exclamation}),
              ui::Answer::Ok);
}

TEST(QtDialogs, F1ShowsTheTopicOfTheMessageOrOfTheScreenThatShowsIt)
{
    class Topical : public SampleScreen
    {
        std::string helpTopic() const override { return "screen"; }
    };
    Desk desk;
    Topical screen;
    SamplePage page{screen, desk};
    page.show();
    QtDialogs dialogs{desk};
    std::vector<std::string> topics;
    desk.helpWanted = [&](const std::string& topic) { topics.push_back(topic); };
    const auto askForHelp = [](QMessageBox& box) {
        activate(box);
        QTest::keyClick(&box, Qt::Key_F1);
        box.button(QMessageBox::Ok)->click();
    };
    desk.run(screen, [&] {
        withNext<QMessageBox>(askForHelp);
        dialogs.show({"A caption", "See Help", ui::Buttons::Ok, ui::Icon::None, "message"});
        withNext<QMessageBox>(askForHelp);
        dialogs.show({"A caption", "A text"});
    });
    EXPECT_EQ(topics, (std::vector<std::string>{"message", "screen"}));
}

TEST(QtDialogs, EscapeMeansNoOrCancelOrOkWhenThereIsOnlyOk)
{
    Asking asking;
    const std::vector<std::pair<ui::Buttons, ui::Answer>> cases{{ui::Buttons::YesNo, ui::Answer::No},
                                                                {ui::Buttons::OkCancel, ui::Answer::Cancel},
                                                                {ui::Buttons::Ok, ui::Answer::Ok}};
    for (const auto& [buttons, answer] : cases) {
        withNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(asking.dialogs.show({"", "text", buttons}), answer);
        withNext<QMessageBox>([](QMessageBox& box) { box.close(); });
        EXPECT_EQ(asking.dialogs.show({"", "text", buttons}), answer);
    }
}

TEST(QtDialogs, YesIsYes)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_EQ(asking.dialogs.show({"", "text", ui::Buttons::YesNo}), ui::Answer::Yes);
}

TEST(QtDialogs, AFurtherButtonAsksForMore)
{
    Asking asking;
    ui::Message message{"", "Replace it?", ui::Buttons::YesNo, ui::Icon::Question, {}, true, "&Show Changes"};
    const auto pressed = [&](const char* caption) {
        withNext<QMessageBox>([caption](QMessageBox& box) {
            for (QAbstractButton* button : box.buttons())
                if (button->text() == QString::fromLatin1(caption))
                    return button->click();
            box.close();
        });
        return asking.dialogs.show(message);
    };
    EXPECT_EQ(pressed("&Show Changes"), ui::Answer::More);
    EXPECT_EQ(pressed("&Yes"), ui::Answer::Yes);
    withNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(asking.dialogs.show(message), ui::Answer::No);
    withNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(asking.dialogs.show(message), ui::Answer::No);
}

TEST(QtDialogs, WithoutACaptionTheProgramsNameIsShown)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Tallyhoop"));
        box.accept();
    });
    asking.dialogs.show({"", "text"});
}

TEST(QtDialogs, AMessageIsAChildOfTheRunningScreensWindowWhichShowsItsLatestState)
{
    Asking asking;
    asking.screen.whenOk = [&] {
        asking.screen.lblTitle.text = "being asked";
        withNext<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), &asking.page);
            EXPECT_EQ(asking.page.title->text(), QStringLiteral("being asked"));
            asking.page.ok->click(); // dropped
            box.accept();
        });
        asking.dialogs.show({"", "text"});
    };
    asking.page.ok->click();
    EXPECT_EQ(asking.screen.log, std::vector<std::string>{"ok"});
}

TEST(QtDialogs, AnInputBoxGivesWhatWasTypedOrNothing)
{
    Asking asking;
    withNext<QInputDialog>([](QInputDialog& dialog) {
        const auto* prompt = dialog.findChild<QLabel*>();
        EXPECT_EQ(prompt->text(), QStringLiteral("New name for A&M <b>:"));
        EXPECT_EQ(prompt->textFormat(), Qt::PlainText);
        EXPECT_EQ(prompt->buddy(), nullptr) << "the ampersand would be a mnemonic";
        EXPECT_EQ(dialog.textValue(), QStringLiteral("A&M"));
        auto* edit = dialog.findChild<QLineEdit*>();
        edit->selectAll();
        QTest::keyClicks(edit, "TEXAS");
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_EQ(asking.dialogs.ask({"Change", "New name for A&M <b>:", "A&M"}), "TEXAS");
    withNext<QInputDialog>([](QInputDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(asking.dialogs.ask({"Change", "prompt", "A&M"}), "");
}

TEST(QtDialogs, ALineThatIsFarTooLongLosesItsMiddle)
{
    Asking asking;
    withNext<QMessageBox>([&](QMessageBox& box) {
        const QString middleGone = QString(200, QLatin1Char('a')) + QStringLiteral(" ... ") +
                                   QString(200, QLatin1Char('b')) + QStringLiteral("\nshort");
        EXPECT_EQ(box.text(), middleGone);
        box.accept();
    });
    asking.dialogs.show({"", std::string(300, 'a') + std::string(300, 'b') + "\r\nshort"});
}

TEST(QtDialogs, ATextOfFarTooManyLinesLosesItsMiddle)
{
    Asking asking;
    std::string text = "first\r\n";
    for (int line = 2; line < 200; ++line) // the name of a file can be nothing but line breaks
        text += "\r\n";
    withNext<QMessageBox>([&](QMessageBox& box) {
        const QStringList lines = box.text().split(QLatin1Char('\n'));
        ASSERT_EQ(lines.size(), 31) << "15 from the beginning, 15 from the end";
        EXPECT_EQ(lines.front(), QStringLiteral("first"));
        EXPECT_EQ(lines.at(15), QStringLiteral("..."));
        EXPECT_EQ(lines.back(), QStringLiteral("last"));
        box.accept();
    });
    asking.dialogs.show({"", text + "last"});
}

TEST(QtDialogs, AnOrdinaryTextKeepsItsLines)
{
    Asking asking;
    std::string text = "1";
    for (int line = 2; line <= 30; ++line)
        text += "\r\n" + std::to_string(line);
    withNext<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text().count(QLatin1Char('\n')), 29);
        EXPECT_FALSE(box.text().contains(QStringLiteral("...")));
        box.accept();
    });
    asking.dialogs.show({"", text});
}

TEST(QtDialogs, EnterGivesTheAnswerThatLosesNothing)
{
    Asking asking;
    for (const bool refusalIsDefault : {false, true}) {
        withNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
        EXPECT_EQ(
            asking.dialogs.show({"", "Replace it?", ui::Buttons::YesNo, ui::Icon::Question, {}, refusalIsDefault}),
            refusalIsDefault ? ui::Answer::No : ui::Answer::Yes);
        withNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
        EXPECT_EQ(
            asking.dialogs.show({"", "Lose it?", ui::Buttons::OkCancel, ui::Icon::Question, {}, refusalIsDefault}),
            refusalIsDefault ? ui::Answer::Cancel : ui::Answer::Ok);
    }
}

TEST(QtDialogs, AreAsWideAsTheirTitlesNeed)
{
    Asking asking;
    const std::string caption = "** ERROR Found in PLAYERNAMES.CSV file **";
    QFont bold = QApplication::font();
    bold.setBold(true);
    // Beside the title there are an icon and three buttons of about the height of a line.
    const int title = QFontMetrics{bold}.horizontalAdvance(QString::fromStdString(caption)) + 100;
    withNext<QMessageBox>([title](QMessageBox& box) {
        EXPECT_GE(box.width(), title);
        box.accept();
    });
    asking.dialogs.show({caption, "No."});
    withNext<QInputDialog>([title](QInputDialog& dialog) {
        EXPECT_GE(dialog.width(), title);
        dialog.reject();
    });
    asking.dialogs.ask({caption, "Who?", {}});
}

TEST(QtDialogs, TheAboutBoxNamesTheProgram)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("About Tallyhoop"));
        EXPECT_TRUE(box.text().startsWith(QStringLiteral("Tallyhoop ")));
        const auto* folder = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
        ASSERT_NE(folder, nullptr);
        EXPECT_EQ(folder->textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.informativeText().endsWith(QStringLiteral("\n/home/anna & co/<b>Pool</b>")));
        box.accept();
    });
    asking.dialogs.about("/home/anna & co/<b>Pool</b>");
}

TEST(QtDialogs, TheAboutBoxFitsADisplayWhateverTheFolderIsCalled)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_LE(box.informativeText().count(QLatin1Char('\n')), 40) << "of the hundred of the name";
        EXPECT_TRUE(box.informativeText().endsWith(QStringLiteral("Pool")));
        box.accept();
    });
    asking.dialogs.about("/home/" + std::string(100, '\n') + "Pool");
}

TEST(QtDialogs, AFolderIsChosen)
{
    const tallyhoop::test::ScratchFolder scratch;
    Asking asking;
    withNext<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Where to"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    EXPECT_EQ(asking.dialogs.chooseFolder("Where to", scratch.path()), scratch.path());
    withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(asking.dialogs.chooseFolder("Where to", scratch.path()), std::nullopt);
}
