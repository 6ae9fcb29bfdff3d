// tests/qt/print_pages_test.cpp - sheets, PDF files and fonts.
#include "fakes/scratch_folder.h"
#include "qt/desk.h"
#include "qt/paths.h"
#include "qt/print_pages.h"
#include "qt/services/qt_printer.h"

#include <QFontMetricsF>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

constexpr double kLetterHeight = 15440; ///< printable twips of a Letter sheet with margins of 10 points
constexpr double kNatural = 226.5;      ///< line spacing of the report font at 10 points

std::vector<std::string> numbered(int count)
{
    std::vector<std::string> lines;
    for (int i = 1; i <= count; ++i)
        lines.push_back("line " + std::to_string(i));
    return lines;
}

QPageLayout letter() { return {QPageSize{QPageSize::Letter}, QPageLayout::Portrait, QMarginsF{10, 10, 10, 10}}; }

/// Keeps columns: one character is six points wide.
QString textOf(const std::filesystem::path& pdf)
{
    QProcess program;
    program.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-fixed"),
                                                QStringLiteral("6"), fromPath(pdf), QStringLiteral("-")});
    EXPECT_TRUE(program.waitForFinished()) << "pdftotext (poppler-utils) is needed";
    return QString::fromUtf8(program.readAllStandardOutput());
}

} // namespace

TEST(PrintLayout, AFormFeedStartsANewSheetAndIsNotPrinted)
{
    const auto sheets = layOut({"one", "\f", "two", "three"}, kLetterHeight, kNatural);
    ASSERT_EQ(sheets.size(), 2u);
    EXPECT_EQ(sheets[0].lines, std::vector<std::string>{"one"});
    EXPECT_EQ(sheets[1].lines, (std::vector<std::string>{"two", "three"}));
    EXPECT_DOUBLE_EQ(sheets[0].spacing, kNatural);
}

TEST(PrintLayout, NoSheetIsWastedOnAFormFeedAtTheStartOrTheEnd)
{
    EXPECT_EQ(layOut({"\f", "one", "\f"}, kLetterHeight, kNatural).size(), 1u);
    EXPECT_EQ(layOut({}, kLetterHeight, kNatural).size(), 1u);
}

TEST(PrintLayout, APageThatWouldNotFitIsSetTighterDownToTenPoints)
{
    // 15440 / 226.5 = 68.2 lines fit naturally, 15440 / 200 = 77.2 at 10 points.
    EXPECT_DOUBLE_EQ(layOut(numbered(68), kLetterHeight, kNatural)[0].spacing, kNatural);
    const auto tight = layOut(numbered(70), kLetterHeight, kNatural);
    ASSERT_EQ(tight.size(), 1u);
    EXPECT_DOUBLE_EQ(tight[0].spacing, kLetterHeight / 70);
    EXPECT_EQ(layOut(numbered(77), kLetterHeight, kNatural).size(), 1u);
}

TEST(PrintLayout, ALongerPageContinuesOnAnotherSheetAtItsNaturalSpacing)
{
    const auto sheets = layOut(numbered(78), kLetterHeight, kNatural);
    ASSERT_EQ(sheets.size(), 2u);
    EXPECT_EQ(sheets[0].lines.size(), 68u);
    EXPECT_EQ(sheets[1].lines.size(), 10u);
    EXPECT_DOUBLE_EQ(sheets[1].spacing, kNatural);
}

TEST(PrintLayout, OnlyTheLongPageIsSetTighter)
{
    std::vector<std::string> lines = numbered(70);
    lines.emplace_back("\f");
    lines.emplace_back("short");
    const auto sheets = layOut(lines, kLetterHeight, kNatural);
    ASSERT_EQ(sheets.size(), 2u);
    EXPECT_LT(sheets[0].spacing, kNatural);
    EXPECT_DOUBLE_EQ(sheets[1].spacing, kNatural);
}

TEST(PrintPdf, ColumnsAndPagesAreKept)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::TextPrintout printout;
    printout.title = "Standings";
    printout.font = {"Courier New", 10};
    printout.originTwips = 760; // with the 10-point margin, 8 characters of 120 twips
    printout.lines = {"001  Adams, B      087  115", "002  R\xe9my, <b>    086  110", "\f", "second page"};
    const QByteArray pdf = toPdf(printout, letter());
    const auto file = scratch.put("standings.pdf", pdf.toStdString());
    EXPECT_EQ(textOf(file), QString::fromUtf8("        001  Adams, B      087  115\n"
                                              "        002  Rémy, <b>    086  110\n"
                                              "\f"
                                              "        second page\n"
                                              "\f"));
}

TEST(PrintPdf, LandscapeIsWiderThanPortrait)
{
    Desk desk;
    QtPrinter printer{desk};
    printer.printer().setPageLayout(letter());
    EXPECT_EQ(printer.pageWidthTwips(ui::Orientation::Portrait), (612 - 20) * 20);
    EXPECT_EQ(printer.pageWidthTwips(ui::Orientation::Landscape), (792 - 20) * 20);
}

TEST(PrintPdf, AChosenPdfFileIsWrittenWholeAndAFailureIsReported)
{
    const tallyhoop::test::ScratchFolder scratch;
    Desk desk;
    QtPrinter printer{desk};
    printer.printer().setOutputFormat(QPrinter::PdfFormat);
    printer.printer().setOutputFileName(fromPath(scratch.path() / "out.pdf"));
    ui::TextPrintout printout{"Report", {"a line"}, {"Courier New", 10}, ui::Orientation::Landscape, 0};
    EXPECT_TRUE(printer.print(printout));
    EXPECT_TRUE(textOf(scratch.path() / "out.pdf").contains(QStringLiteral("a line")));

    const auto refused = printer.savePdf(printout, scratch.path() / "no such folder" / "out.pdf");
    ASSERT_FALSE(refused);
    EXPECT_FALSE(refused.failure().message.empty());
}

TEST(PrintPdf, AChosenPdfFileIsForOnePrintoutAndIsNotReplacedByTheNext)
{
    const tallyhoop::test::ScratchFolder scratch;
    Desk desk;
    QtPrinter printer{desk};
    printer.printer().setOutputFormat(QPrinter::PdfFormat);
    printer.printer().setOutputFileName(fromPath(scratch.path() / "out.pdf"));
    EXPECT_TRUE(printer.print(ui::TextPrintout{"First", {"the first"}, {"Courier New", 10}}));

    EXPECT_FALSE(printer.print(ui::TextPrintout{"Second", {"the second"}, {"Courier New", 10}}));

    EXPECT_TRUE(textOf(scratch.path() / "out.pdf").contains(QStringLiteral("the first")));
}

TEST(PrintPdf, WithoutAnyPrinterAPrintoutFailsWithAMessage)
{
    Desk desk;
    QtPrinter printer{desk};
    printer.printer().setOutputFileName({});
    printer.printer().setOutputFormat(QPrinter::PdfFormat); // as Qt does when there is no printer
    const auto outcome = printer.print(ui::TextPrintout{"Report", {"a line"}, {"Courier New", 10}});
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "No printer is installed.");
}

TEST(PrintPdf, ADrawingIsPrintedAsTextAndVectors)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::DrawingPrintout printout;
    printout.drawing.width = 1000;
    printout.drawing.height = 640;
    printout.drawing.captions.push_back({{100, 100, 200, 20}, "MICHIGAN ST", 12});
    printout.drawing.strokes.push_back({0, 0, 1000, 640});
    const QByteArray pdf = toPdf(printout, letter());
    EXPECT_LT(pdf.size(), 100'000); // a page of pixels would be megabytes
    EXPECT_TRUE(textOf(scratch.put("board.pdf", pdf.toStdString())).contains(QStringLiteral("MICHIGAN ST")));
}

TEST(PrintFonts, OffersTheReportFontWhenItResolvesToOneOfItsWidths)
{
    Desk desk;
    QtPrinter printer{desk};
    const auto names = printer.fontNames();
    const bool offered = std::ranges::find(names, "Courier New") != names.end();
    const QString resolved = QFontInfo{QFont{QStringLiteral("Courier New"), 10}}.family();
    const bool sameWidths = resolved == QLatin1String{"Courier New"} || resolved == QLatin1String{"Liberation Mono"} ||
                            resolved == QLatin1String{"Cousine"};
    EXPECT_EQ(offered, sameWidths);
}
