// tests/qt/printer_dialogs_test.cpp - the dialogs for printers, fonts and previews.
#include "qt/asking.h"
#include "qt/services/qt_printer.h"

#include <QAction>
#include <QFontDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QToolBar>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

TEST(QtPrinterDialogs, CancellingTheFontDialogIsReported)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    withNext<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printer.chooseFont(), std::nullopt);
}

#ifdef _WIN32 // which has a dialog of its own, out of Qt's reach
TEST(QtPrinterDialogs, WithoutAPrinterNoDialogIsShownAndPrintingSaysSo)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this machine has one";
    Shown shown;
    QtPrinter printer{shown.desk};
    EXPECT_TRUE(printer.choosePrinter()) << "as if it was cancelled, and nothing would be said";
    EXPECT_FALSE(printer.isThere());
}
#else
TEST(QtPrinterDialogs, CancellingThePrinterDialogIsReported)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    withNext<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(printer.choosePrinter());
}

TEST(QtPrinterDialogs, APdfChosenInACancelledDialogIsForgotten)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    const auto chooseFile = [&] {
        printer.printer().setOutputFormat(QPrinter::PdfFormat);
        printer.printer().setOutputFileName(QStringLiteral("forgotten.pdf"));
    };
    withNext<QPrintDialog>([&](QPrintDialog& dialog) {
        chooseFile();
        dialog.reject();
    });
    EXPECT_FALSE(printer.choosePrinter());
    EXPECT_EQ(printer.printer().outputFileName(), QString{});

    chooseFile(); // accepted, but then the font is not
    withNext<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printer.chooseFont(), std::nullopt);
    EXPECT_EQ(printer.printer().outputFileName(), QString{});
}
#endif

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
    printer.preview({{ui::TextPrintout{"Report", {"one", "\f", "two"}, {"Courier New", 10}}}, {}, {}});
    EXPECT_EQ(pages, 2);
}

namespace {

QAction* actionOf(const QPrintPreviewDialog& dialog, const char* text)
{
    for (QAction* const action : dialog.findChild<QToolBar*>()->actions())
        if (action->text().remove(QLatin1Char{'&'}) == QLatin1String{text})
            return action;
    return nullptr;
}

} // namespace

TEST(QtPrinterDialogs, ThePreviewOffersNothingThatDoesNothing)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    withNext<QPrintPreviewDialog>([](QPrintPreviewDialog& dialog) {
        for (const char* const useless : {"Portrait", "Landscape", "Page setup"})
            EXPECT_EQ(actionOf(dialog, useless), nullptr) << useless;
        EXPECT_NE(actionOf(dialog, "Fit page"), nullptr) << "the others are still there";
        EXPECT_EQ(dialog.findChild<QListWidget*>(), nullptr) << "one printout needs no list";
        dialog.reject();
    });
    printer.preview({{ui::TextPrintout{"Report", {"one", "\f", "two"}, {"Courier New", 10}}}, {}, {}});
}

TEST(QtPrinterDialogs, ThePreviewPrintsAndSavesTheReportThatIsShown)
{
    Shown shown;
    QtPrinter printer{shown.desk};
    std::vector<std::string> done;
    int pages = 0;
    bool across = false;
    withNext<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Preview - First"));
        actionOf(dialog, "Print")->trigger();
        auto* const list = dialog.findChild<QListWidget*>();
        ASSERT_NE(list, nullptr);
        list->setCurrentRow(1);
        QApplication::processEvents();
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Preview - Second"));
        pages = dialog.findChild<QPrintPreviewWidget*>()->pageCount();
        across = dialog.printer()->pageLayout().orientation() == QPageLayout::Landscape;
        actionOf(dialog, "Save as PDF")->trigger();
        dialog.reject();
    });
    printer.preview(
        {{ui::TextPrintout{"First", {"one"}, {"Courier New", 10}},
          ui::TextPrintout{"Second", {"two", "\f", "pages"}, {"Courier New", 10}, ui::Orientation::Landscape}},
         [&](const ui::Printout& printout) { done.push_back("print " + ui::titleOf(printout)); },
         [&](const ui::Printout& printout) { done.push_back("save " + ui::titleOf(printout)); }});
    EXPECT_EQ(done, (std::vector<std::string>{"print First", "save Second"}));
    EXPECT_EQ(pages, 2);
    EXPECT_TRUE(across);
}

TEST(QtPrinterDialogs, AQuestionOfThePreviewIsInFrontOfIt)
{
    Asking asking;
    QtPrinter printer{asking.desk};
    const QWidget* owner = nullptr;
    const QWidget* preview = nullptr;
    withNext<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
        preview = &dialog;
        withNext<QMessageBox>([&](QMessageBox& box) {
            owner = box.parentWidget();
            box.accept();
        });
        actionOf(dialog, "Print")->trigger();
        dialog.reject();
    });
    printer.preview({{ui::TextPrintout{"Report", {"one", "\f", "two"}, {"Courier New", 10}}},
                     [&](const ui::Printout&) {
                         asking.dialogs.show({"", "No paper"});
                     },
                     {}});
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(owner, preview);
}
