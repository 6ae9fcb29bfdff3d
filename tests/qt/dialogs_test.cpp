#include "fakes/scratch_folder.h"
#include "qt/sample_screen.h"
#include "ui/qt/paths.h"
#include "ui/qt/services/qt_dialogs.h"
#include "ui/qt/services/qt_printer.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

/// Does something with the dialog that opens next.
template <class Kind>
void withNext(const std::function<void(Kind&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* dialog = qobject_cast<Kind*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "another dialog is open, or none";
        act(*dialog);
    });
}

struct Asking : Shown {
    QtDialogs dialogs{desk};
};

} // namespace

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

TEST(QtDialogs, F1ShowsTheTopicOfTheMessageOrOfTheScreenBehindIt)
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

TEST(QtDialogs, WithoutACaptionTheProgramsNameIsShown)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Tallyhoop"));
        box.accept();
    });
    asking.dialogs.show({"", "text"});
}

TEST(QtDialogs, AMessageStandsOnTheRunningScreensWindowAndShowsItAsItIs)
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

TEST(QtDialogs, FilesAreOfferedWithoutRegardToCase)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Upper_A.THC", "");
    scratch.put("lower_b.thc", "");
    scratch.put("other.txt", "");
    Asking asking;
    QStringList names;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("PoolSelections (*.THC)"));
        auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("lower_b.thc"));
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    const auto chosen = asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", scratch.path(), ""});
    EXPECT_EQ(chosen, scratch.path() / "lower_b.thc");
    names.sort(Qt::CaseInsensitive);
    EXPECT_EQ(names, (QStringList{QStringLiteral("lower_b.thc"), QStringLiteral("Upper_A.THC")}));
}

TEST(QtDialogs, SavingProposesANameAndNeverAsksAboutReplacing)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "old");
    Asking asking;
    withNext<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QStringLiteral("Smith_JS.THC"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    EXPECT_EQ(asking.dialogs.saveFile({"Save", "PoolSelections (*.THC)", "*.THC", scratch.path(), "Smith_JS.THC"}),
              scratch.path() / "Smith_JS.THC");
    withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(asking.dialogs.saveFile({"Save", "", "*.THC", scratch.path(), ""}), std::nullopt);
}

TEST(QtDialogs, TheAboutBoxNamesTheProgram)
{
    Asking asking;
    withNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("About Tallyhoop"));
        EXPECT_TRUE(box.text().startsWith(QStringLiteral("Tallyhoop ")));
        box.accept();
    });
    asking.dialogs.about();
}

TEST(QtPrinterDialogs, CancelIsTold)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    withNext<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(printer.choosePrinter());
    withNext<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printer.chooseFont(), std::nullopt);
}

TEST(QtPrinterDialogs, TheFontDialogOffersFixedPitchFamilies)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    withNext<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_TRUE(dialog.testOption(QFontDialog::MonospacedFonts));
        dialog.setCurrentFont(QFont{QStringLiteral("Liberation Mono"), 9, QFont::Bold});
        dialog.accept();
    });
    EXPECT_EQ(printer.chooseFont(), (ui::PrinterFont{"Liberation Mono", 9, true, false}));
}

TEST(QtPrinterDialogs, ThePreviewShowsThePages)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    int pages = 0;
    withNext<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
        QApplication::processEvents();
        pages = dialog.findChild<QPrintPreviewWidget*>()->pageCount();
        dialog.reject();
    });
    printer.preview(ui::TextPrintout{"Report", {"one", "\f", "two"}, {"Courier New", 10}});
    EXPECT_EQ(pages, 2);
}
