// tests/qt/report_pdf_test.cpp - every report as a PDF: its columns, its pages and its font.
//
// The approved reports are printed, and the text is read back out of the PDF and compared with them.
#include "base/lines.h"
#include "fakes/scratch_folder.h"
#include "qt/desk.h"
#include "qt/paths.h"
#include "qt/services/qt_printer.h"
#include "qt/text.h"
#include "reports/report_table.h"
#include "screens/printer_setup.h"
#include "screens/reports/report_output.h"

#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <tuple>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

/// The non-empty lines of each page, without trailing blanks.
using Pages = std::vector<QStringList>;

constexpr int kMarginTwips = 10 * 20; ///< of the paper
constexpr double kCharacterTwips = 120;

QString said(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << fromQString(program) << " (poppler-utils) is needed";
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString withoutTrailingBlanks(QString line)
{
    while (line.endsWith(QLatin1Char{' '}))
        line.chop(1);
    return line;
}

Pages withoutEmptyPages(Pages pages)
{
    std::erase_if(pages, [](const QStringList& page) { return page.isEmpty(); });
    return pages;
}

Pages pagesOfReport(const ReportLines& lines)
{
    Pages pages(1);
    for (const std::string& line : lines) {
        if (line == kFormFeedLine)
            pages.emplace_back();
        else if (const QString text = withoutTrailingBlanks(toQString(line)); !text.isEmpty())
            pages.back() << text;
    }
    return withoutEmptyPages(pages);
}

/// Keeps columns: one character is six points wide.
Pages pagesOfPdf(const std::filesystem::path& pdf)
{
    const QString text = said(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-fixed"),
                                                            QStringLiteral("6"), fromPath(pdf), QStringLiteral("-")});
    Pages pages;
    const QStringList sheets = text.split(QLatin1Char{'\f'});
    for (const QString& sheet : sheets) {
        pages.emplace_back();
        const QStringList lines = sheet.split(QLatin1Char{'\n'});
        for (const QString& line : lines)
            if (const QString kept = withoutTrailingBlanks(line); !kept.isEmpty())
                pages.back() << kept;
    }
    return withoutEmptyPages(pages);
}

/// Shifts every line to the right, as the margin on paper does.
Pages indentedBy(Pages pages, qsizetype characters)
{
    for (QStringList& page : pages)
        for (QString& line : page)
            line.prepend(QString{characters, QLatin1Char{' '}});
    return pages;
}

qsizetype blanksBefore(const QString& line)
{
    return std::distance(line.begin(), std::ranges::find_if(line, [](QChar c) { return c != QLatin1Char{' '}; }));
}

ReportLines approved(const std::string& pool, const ReportKind& kind)
{
    std::ifstream stream{std::filesystem::path{TALLYHOOP_APPROVED_REPORTS} / pool / kind.file, std::ios::binary};
    EXPECT_TRUE(stream) << kind.file;
    return linesOf(std::string{std::istreambuf_iterator<char>{stream}, {}});
}

class ReportPdf : public testing::TestWithParam<std::tuple<const char*, std::size_t>>
{
protected:
    void SetUp() override
    {
        printer.printer().setPageLayout(
            {QPageSize{QPageSize::Letter}, QPageLayout::Portrait, QMarginsF{10, 10, 10, 10}});
        const PrinterSetup setup{{"Courier New", 10}, orientationOf(kind.orientation)};
        printout = textPrintout(kind.name, lines, setup, printer);
        ASSERT_TRUE(printer.savePdf(printout, pdf));
    }

    const ReportKind& kind = reportTable()[std::get<1>(GetParam())];
    const ReportLines lines = approved(std::get<0>(GetParam()), kind);
    const tallyhoop::test::ScratchFolder scratch;
    const std::filesystem::path pdf = scratch.path() / "report.pdf";
    Desk desk;
    QtPrinter printer{desk};
    ui::TextPrintout printout;
};

std::string nameOf(const testing::TestParamInfo<ReportPdf::ParamType>& info)
{
    const auto& [pool, report] = info.param;
    return std::string{pool} + "_" + std::to_string(report + 1);
}

} // namespace

TEST_P(ReportPdf, HasTheReportsLinesInTheirColumnsAndAPageForEachOfItsPages)
{
    const Pages expected = pagesOfReport(lines);
    const Pages printed = pagesOfPdf(pdf);
    ASSERT_EQ(printed.size(), expected.size());

    // The margin need not be a whole number of characters, but it is the same for every line.
    const qsizetype margin = blanksBefore(printed[0][0]) - blanksBefore(expected[0][0]);
    EXPECT_NEAR(static_cast<double>(margin), (kMarginTwips + printout.originTwips) / kCharacterTwips, 1.0);
    const Pages shifted = indentedBy(expected, margin);
    for (std::size_t page = 0; page < shifted.size(); ++page) {
        ASSERT_EQ(printed[page].size(), shifted[page].size()) << "page " << page + 1;
        for (qsizetype line = 0; line < shifted[page].size(); ++line)
            ASSERT_EQ(printed[page][line].toStdString(), shifted[page][line].toStdString()) << "page " << page + 1;
    }
}

TEST_P(ReportPdf, EmbedsOneFixedPitchFontAndHasItsReportsOrientation)
{
    const QStringList fonts =
        said(QStringLiteral("pdffonts"), {fromPath(pdf)}).split(QLatin1Char{'\n'}, Qt::SkipEmptyParts);
    ASSERT_EQ(fonts.size(), 3) << "a header, a rule and one font";
    EXPECT_TRUE(fonts[2].contains(QRegularExpression{QStringLiteral("CourierNew|LiberationMono|Cousine")}))
        << fonts[2].toStdString();
    // The columns are: name, type, encoding, embedded, subset, unicode, object.
    EXPECT_TRUE(fonts[2].contains(QRegularExpression{QStringLiteral("\\s+yes\\s+(yes|no)\\s+yes\\s+\\d+\\s+\\d+$")}))
        << fonts[2].toStdString();

    const QString about = said(QStringLiteral("pdfinfo"), {fromPath(pdf)});
    const char* paper = kind.orientation == PageOrientation::Landscape ? "792 x 612 pts" : "612 x 792 pts";
    EXPECT_TRUE(about.contains(QLatin1String{paper})) << about.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Approved, ReportPdf,
                         testing::Combine(testing::Values("small", "messy"), testing::Range<std::size_t>(0, kReports)),
                         nameOf);
