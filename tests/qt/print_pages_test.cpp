// tests/qt/print_pages_test.cpp - sheets, PDF files and fonts.
#include "fakes/scratch_folder.h"
#include "qt/desk.h"
#include "qt/paths.h"
#include "qt/poppler.h"
#include "qt/print_pages.h"
#include "qt/services/qt_printer.h"

#include <QFontMetricsF>
#include <QPageSize>
#include <QPrinter>
#include <QRegularExpression>
#include <algorithm>
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

QString saidAbout(const std::filesystem::path& pdf, const QStringList& options)
{
    return qt::test::saidByPoppler(QStringLiteral("pdftotext"), options, pdf);
}

/// Keeps columns.
/// @param points the width of a character
QString textOf(const std::filesystem::path& pdf, const char* points = "6")
{
    return saidAbout(pdf, {QStringLiteral("-layout"), QStringLiteral("-fixed"), QLatin1String{points}});
}

/// @returns where the last word ends, points from the left edge of the paper
double rightmostPoint(const std::filesystem::path& pdf)
{
    static const QRegularExpression kEnd{QStringLiteral("<word [^>]*xMax=\"([0-9.]+)\"")};
    double rightmost = 0;
    for (auto found = kEnd.globalMatch(saidAbout(pdf, {QStringLiteral("-bbox")})); found.hasNext();)
        rightmost = std::max(rightmost, found.next().captured(1).toDouble());
    return rightmost;
}

/// @returns where a word begins, points from the left edge of the paper
double leftOf(const std::filesystem::path& pdf, const char* word)
{
    const QRegularExpression begin{QStringLiteral("<word xMin=\"([0-9.]+)\"[^>]*>") + QLatin1String{word}};
    return begin.match(saidAbout(pdf, {QStringLiteral("-bbox")})).captured(1).toDouble();
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

TEST(PrintLayout, APageThatWouldNotFitIsSetTighterDownToNinePoints)
{
    // 15440 / 226.5 = 68.2 lines fit naturally, 15440 / 180 = 85.8 at 9 points.
    EXPECT_DOUBLE_EQ(layOut(numbered(68), kLetterHeight, kNatural)[0].spacing, kNatural);
    const auto tight = layOut(numbered(82), kLetterHeight, kNatural);
    ASSERT_EQ(tight.size(), 1u);
    EXPECT_DOUBLE_EQ(tight[0].spacing, kLetterHeight / 82);
    EXPECT_EQ(layOut(numbered(85), kLetterHeight, kNatural).size(), 1u);
}

TEST(PrintLayout, ALongerPageContinuesOnAnotherSheetAtItsNaturalSpacing)
{
    const auto sheets = layOut(numbered(86), kLetterHeight, kNatural);
    ASSERT_EQ(sheets.size(), 2u);
    EXPECT_EQ(sheets[0].lines.size(), 68u);
    EXPECT_EQ(sheets[1].lines.size(), 18u);
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

TEST(PrintPdf, LinesWiderThanThePaperGetSmallerLettersAndColumnsStayColumns)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::TextPrintout printout;
    printout.font = {"Courier New", 10};
    // 592 points of Letter hold 98 characters of 6 points; 148 of them need 4 points each.
    printout.lines = {"left" + std::string(140, ' ') + "end.", std::string(54, ' ') + "right"};
    const auto file = scratch.put("wide.pdf", toPdf(printout, letter()).toStdString());

    EXPECT_NEAR(leftOf(file, "left"), 10, 0.5);
    EXPECT_NEAR(leftOf(file, "end."), 10 + 144 * 4, 0.5);
    EXPECT_NEAR(leftOf(file, "right"), 10 + 54 * 4, 0.5);
    EXPECT_LE(rightmostPoint(file), 612 - 10 + 0.5);
}

TEST(PrintPdf, TrailingBlanksMakeNoLetterSmaller)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::TextPrintout printout;
    printout.font = {"Courier New", 10};
    printout.lines = {"left" + std::string(40, '.') + "x" + std::string(200, ' ')};

    const auto file = scratch.put("blanks.pdf", toPdf(printout, letter()).toStdString());

    EXPECT_NEAR(rightmostPoint(file), 10 + 45 * 6, 1); // the margin, and 45 characters of 6 points
}

TEST(PrintPdf, ALineThatIsTooWideEvenInSmallLettersGoesOnInTheNextOne)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::TextPrintout printout;
    printout.font = {"Courier New", 10};
    // At half size 197 characters fit into 592 points.
    printout.lines = {std::string(197, 'a') + "bcd", "next"};

    const auto file = scratch.put("wider.pdf", toPdf(printout, letter()).toStdString());

    const QString text = textOf(file, "3").simplified();
    EXPECT_EQ(text, QString(197, QLatin1Char('a')) + QStringLiteral(" bcd next"));
    EXPECT_LE(rightmostPoint(file), 612 - 10 + 0.5);
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
    EXPECT_EQ(printer.outputFile(), scratch.path() / "out.pdf");
    EXPECT_TRUE(printer.print(ui::TextPrintout{"First", {"the first"}, {"Courier New", 10}}));

    EXPECT_EQ(printer.outputFile(), std::filesystem::path{});
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
    ui::Drawing drawing;
    drawing.width = 1000;
    drawing.height = 640;
    drawing.captions.push_back({{100, 100, 200, 20}, "MICHIGAN ST", 12});
    drawing.strokes.push_back({0, 0, 1000, 640});
    printout.drawings = {drawing};
    const QByteArray pdf = toPdf(printout, letter());
    EXPECT_LT(pdf.size(), 100'000); // a page of pixels would be megabytes
    EXPECT_TRUE(textOf(scratch.put("board.pdf", pdf.toStdString())).contains(QStringLiteral("MICHIGAN ST")));
}

TEST(PrintPdf, EachDrawingIsOnAPageOfItsOwn)
{
    const tallyhoop::test::ScratchFolder scratch;
    ui::DrawingPrintout printout;
    for (const char* const player : {"Adams", "Baker"}) {
        ui::Drawing drawing;
        drawing.width = 1000;
        drawing.height = 640;
        drawing.captions.push_back({{0, 0, 200, 20}, player, 12});
        printout.drawings.push_back(drawing);
    }

    const auto file = scratch.put("all.pdf", toPdf(printout, letter()).toStdString());

    EXPECT_EQ(textOf(file).simplified(), QStringLiteral("Adams Baker"));
    EXPECT_EQ(textOf(file).count(QLatin1Char{'\f'}), 2);
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
