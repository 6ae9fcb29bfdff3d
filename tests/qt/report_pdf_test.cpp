// tests/qt/report_pdf_test.cpp - every report as a PDF: its columns, its pages and its font.
//
// The approved reports are printed, and the text is read back out of the PDF and compared with them.
#include "base/lines.h"
#include "fakes/scratch_folder.h"
#include "qt/desk.h"
#include "qt/poppler.h"
#include "qt/services/qt_printer.h"
#include "qt/text.h"
#include "reports/report_table.h"
#include "screens/printer_setup.h"
#include "screens/reports/report_output.h"

#include <QPageSize>
#include <QPrinter>
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

/// A word on a page, points from its left and top edge.
struct Word {
    QString text;
    double x = 0;
    double y = 0; ///< of the top of its letters
};

constexpr double kTwipsInAPoint = 20;                  ///< of a point
constexpr double kPaperMargin = 10;                    ///< of the paper, points
constexpr double kLetterWidth = 120 / kTwipsInAPoint;  ///< width
constexpr double kReportLine = 226.5 / kTwipsInAPoint; ///< line spacing of the report font at 10 points

/// The lines of each page, blank ones included.
std::vector<ReportLines> pagesOfReport(const ReportLines& lines)
{
    std::vector<ReportLines> pages(1);
    for (const std::string& line : lines) {
        if (line == kFormFeedLine)
            pages.emplace_back();
        else
            pages.back().push_back(line);
    }
    std::erase_if(pages, [](const ReportLines& page) { return page.empty(); });
    return pages;
}

/// Where the words of a page have to be, line by line.
/// @param height of the printable area, points
/// @param scale  of the letters, less than 1 where a line of the report is wider than the paper
std::vector<Word> expectedWords(const ReportLines& page, double left, double height, double scale)
{
    // A page that is too long is set tighter.
    const double spacing = std::min(kReportLine * scale, height / static_cast<double>(page.size()));
    std::vector<Word> words;
    for (std::size_t row = 0; row < page.size(); ++row) {
        const QString line = toQString(page[row]);
        static const QRegularExpression kWord{QStringLiteral("[^ ]+")};
        for (auto found = kWord.globalMatch(line); found.hasNext();) {
            const QRegularExpressionMatch word = found.next();
            words.push_back({word.captured(), left + scale * kLetterWidth * static_cast<double>(word.capturedStart()),
                             kPaperMargin + spacing * static_cast<double>(row)});
        }
    }
    return words;
}

QString unescaped(QString text)
{
    for (const auto& [escaped, character] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}})
        text.replace(QLatin1String{escaped}, QLatin1String{character});
    return text;
}

std::vector<std::vector<Word>> pagesOfPdf(const std::filesystem::path& pdf)
{
    static const QRegularExpression kWord{
        QStringLiteral("<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>([^<]*)</word>")};
    const QString text = qt::test::saidByPoppler(QStringLiteral("pdftotext"), {QStringLiteral("-bbox")}, pdf);
    std::vector<std::vector<Word>> pages;
    const QStringList parts = text.split(QStringLiteral("<page ")).mid(1);
    for (const QString& part : parts) {
        std::vector<Word>& words = pages.emplace_back();
        for (auto found = kWord.globalMatch(part); found.hasNext();) {
            const QRegularExpressionMatch word = found.next();
            words.push_back({unescaped(word.captured(3)), word.captured(1).toDouble(), word.captured(2).toDouble()});
        }
        // pdftotext has an order of its own: line by line, from left to right.
        std::ranges::sort(words, [](const Word& left, const Word& right) {
            return std::abs(left.y - right.y) > 3 ? left.y < right.y : left.x < right.x;
        });
    }
    return pages;
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

TEST_P(ReportPdf, HasEveryWordInItsColumnAndItsLineOfAPageForEachPage)
{
    const std::vector<ReportLines> expected = pagesOfReport(lines);
    const std::vector<std::vector<Word>> printed = pagesOfPdf(pdf);
    ASSERT_EQ(printed.size(), expected.size());
    const double height = (kind.orientation == PageOrientation::Landscape ? 612 : 792) - 2 * kPaperMargin;
    const double left = kPaperMargin + printout.originTwips / kTwipsInAPoint;
    const double width = (kind.orientation == PageOrientation::Landscape ? 792 : 612) - kPaperMargin - left;
    const double scale = std::min(1.0, width / (kLetterWidth * static_cast<double>(longestLine(lines))));
    for (std::size_t page = 0; page < expected.size(); ++page) {
        const std::vector<Word> words = expectedWords(expected[page], left, height, scale);
        ASSERT_EQ(printed[page].size(), words.size()) << "page " << page + 1;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const Word& word = printed[page][i];
            ASSERT_EQ(word.text.toStdString(), words[i].text.toStdString()) << "page " << page + 1;
            ASSERT_NEAR(word.x, words[i].x, 0.5) << "page " << page + 1 << ": " << word.text.toStdString();
            ASSERT_NEAR(word.y, words[i].y, 1.0) << "page " << page + 1 << ": " << word.text.toStdString();
        }
    }
}

TEST_P(ReportPdf, EmbedsOneFixedPitchFontAndHasItsReportsOrientation)
{
    const QStringList fonts =
        qt::test::saidByPoppler(QStringLiteral("pdffonts"), {}, pdf).split(QLatin1Char{'\n'}, Qt::SkipEmptyParts);
    ASSERT_EQ(fonts.size(), 3) << "a header, a rule and one font";
    EXPECT_TRUE(fonts[2].contains(QRegularExpression{QStringLiteral("CourierNew|LiberationMono|Cousine")}))
        << fonts[2].toStdString();
    // The columns are: name, type, encoding, embedded, subset, unicode, object.
    EXPECT_TRUE(fonts[2].contains(QRegularExpression{QStringLiteral("\\s+yes\\s+(yes|no)\\s+yes\\s+\\d+\\s+\\d+$")}))
        << fonts[2].toStdString();

    const QString about = qt::test::saidByPoppler(QStringLiteral("pdfinfo"), {}, pdf);
    const char* paper = kind.orientation == PageOrientation::Landscape ? "792 x 612 pts" : "612 x 792 pts";
    EXPECT_TRUE(about.contains(QLatin1String{paper})) << about.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Approved, ReportPdf,
                         testing::Combine(testing::Values("small", "messy"), testing::Range<std::size_t>(0, kReports)),
                         nameOf);
