// tests/screens/reports/report_output_test.cpp - margins, the places of attachments, the table of reports.
#include "screens/reports/report_output.h"

#include "fakes/fake_platform.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

TEST(LongestLine, DoesNotCountTrailingBlanks)
{
    EXPECT_EQ(longestLine(std::vector<std::string>{"ab    ", " abc", "\f"}), 4u);
    EXPECT_EQ(longestLine(std::vector<std::string>{}), 0u);
}

TEST(Origin, PutsTheBlockInTheMiddleWithHalfAnInchKeptFree)
{
    EXPECT_EQ(originTwips(11840, 80), 760); // (11840 - 720 - 9600) / 2
}

TEST(Origin, IsRoundedToEven)
{
    EXPECT_EQ(originTwips(11841, 80), 760); // 760.5
    EXPECT_EQ(originTwips(11843, 80), 762); // 761.5
}

TEST(Origin, StaysAtTheLeftEdgeForATextWiderThanThePage)
{
    EXPECT_EQ(originTwips(11840, 92), 40); // 11120 - 11040 = 80
    EXPECT_EQ(originTwips(11840, 93), 0);  // -40
    EXPECT_EQ(originTwips(11840, 500), 0);
}

TEST(TextPrintout, CarriesLinesFontAndOrientation)
{
    FakePrinter printer;
    printer.pageWidths = {{ui::Orientation::Portrait, 9000}, {ui::Orientation::Landscape, 2000}};
    const PrinterSetup setup{{"Courier New", 10}, ui::Orientation::Landscape};

    const ui::TextPrintout printout = textPrintout("Listing", {"abc   ", "\f"}, setup, printer);

    EXPECT_EQ(printout.title, "Listing");
    EXPECT_EQ(printout.lines, (std::vector<std::string>{"abc   ", "\f"}));
    EXPECT_EQ(printout.font, setup.font);
    EXPECT_EQ(printout.orientation, ui::Orientation::Landscape);
    EXPECT_EQ(printout.originTwips, 460); // (2000 - 720 - 360) / 2
}

TEST(ReportMessage, PutsTheAttachmentsOnTheTrailingBlanksOfTheBody)
{
    const MailDraft draft{.recipients = {"a@b.c", "d@e.f"}, .subject = "Standings", .message = "Hello"};
    const std::vector<std::filesystem::path> files{"one", "two", "three"};

    const ui::MailMessage message = reportMessage(draft, files);

    EXPECT_EQ(message.recipients, draft.recipients);
    EXPECT_EQ(message.subject, "Standings");
    EXPECT_EQ(message.body, "Hello          ");
    EXPECT_EQ(message.placeholders, 10u);
    ASSERT_EQ(message.attachments.size(), 3u);
    EXPECT_EQ(message.attachments[0].file, "one");
    EXPECT_EQ(message.attachments[0].position, 7u); // 15 - 8
    EXPECT_EQ(message.attachments[1].position, 8u);
    EXPECT_EQ(message.attachments[2].position, 9u);
}

TEST(ReportMessage, HasRoomForSevenAttachments)
{
    const std::vector<std::filesystem::path> files(7, "report");

    const ui::MailMessage message = reportMessage({}, files);

    EXPECT_EQ(message.attachments.front().position, 2u);
    EXPECT_LT(message.attachments.back().position, message.body.size());
}

TEST(ReportTable, NamesFileAndOrientationOfEveryReport)
{
    const auto across = ui::Orientation::Landscape;
    const auto upright = ui::Orientation::Portrait;
    const std::array<std::pair<std::string, ui::Orientation>, 7> expected{{
        {"RPTOPT1.TXT", across},
        {"RPTOPT2.TXT", across},
        {"RPTOPT3.TXT", upright},
        {"RPTOPT4.TXT", upright},
        {"RPTOPT5.TXT", across},
        {"RPTOPT6.TXT", upright},
        {"RPTOPT7.TXT", upright},
    }};
    for (std::size_t i = 0; i < kReports; ++i) {
        const ReportKind& kind = reportTable()[i];
        EXPECT_EQ(kind.file, expected[i].first);
        EXPECT_EQ(orientationOf(kind.orientation), expected[i].second) << kind.file;
        EXPECT_EQ(static_cast<std::size_t>(kind.id), i);
        EXPECT_EQ(&reportKind(kind.id), &kind);
    }
}

} // namespace
} // namespace tallyhoop::test
