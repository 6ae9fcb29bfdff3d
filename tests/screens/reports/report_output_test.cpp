// tests/screens/reports/report_output_test.cpp - margins, and where attachments stand.
#include "screens/reports/report_output.h"

#include "fakes/fake_platform.h"
#include "reports/report_table.h"

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
    printer.pageWidth = 2000;
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
    const MailDraft draft{{"a@b.c", "d@e.f"}, "Standings", "Hello", false, false};
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

TEST(ReportTable, NamesKeyFileAndOrientationOfEveryReport)
{
    const std::array<std::array<std::string, 3>, 7> expected{{
        {"TournamentStandings", "RPTOPT1.TXT", "Landscape"},
        {"PlayerListing", "RPTOPT2.TXT", "Landscape"},
        {"TeamSelectionSummary", "RPTOPT3.TXT", "Portrait"},
        {"TeamSelectionDetail", "RPTOPT4.TXT", "Portrait"},
        {"PlayerSelectionDetail", "RPTOPT5.TXT", "Landscape"},
        {"ResultsByPlayer", "RPTOPT6.TXT", "Portrait"},
        {"ResultsByTeam", "RPTOPT7.TXT", "Portrait"},
    }};
    for (std::size_t i = 0; i < kReports; ++i) {
        const ReportKind& kind = reportTable()[i];
        EXPECT_EQ((std::array<std::string, 3>{kind.key, kind.file, kind.orientation}), expected[i]);
        EXPECT_EQ(static_cast<std::size_t>(kind.id), i);
        EXPECT_EQ(findReport(kind.key), &kind);
    }
}

TEST(ReportTable, KnowsNoOtherKey)
{
    EXPECT_EQ(findReport("Standings"), nullptr);
    EXPECT_EQ(findReport("tournamentstandings"), nullptr);
}

TEST(ReportFailure, SaysSomethingEvenWithoutAReason)
{
    EXPECT_EQ(reportFailure(reportTable()[1], ""),
              (ui::Message{"TALLYHOOP - frmPoolReports, Player Listing", "General Error Condition", ui::Buttons::Ok,
                           ui::Icon::Critical}));
}

} // namespace
} // namespace tallyhoop::test
