// tests/screens/reports/reports_screen_tables_test.cpp - ticked reports as tables for spreadsheets: names, refusals,
// news.
#include "screens/reports/reports_screen_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct ReportsTables : ReportsScreenTest {
    ReportsTables() { putFourPlayers(folder); }
};

TEST_F(ReportsTables, AreSavedUnderNamesThatThePersonChooses)
{
    tick({kStandings, kListing, kTeamSummary, kTeamDetail});
    platform.dialogs.pick(folder.path() / "a.CSV").pick(folder.path() / "b").pick(folder.path() / "c.CSV");
    screen.cmdSaveCsv.click();

    ASSERT_THAT(platform.dialogs.fileChoices, SizeIs(3)) << "there is no table of the player listing";
    EXPECT_EQ(platform.dialogs.fileChoices[0].proposedName, "STANDINGS.CSV");
    EXPECT_EQ(platform.dialogs.fileChoices[1].proposedName, "PICKS.CSV");
    EXPECT_EQ(platform.dialogs.fileChoices[2].proposedName, "PICKS-BY-PLAYER.CSV");
    EXPECT_THAT(folder.get("a.CSV"), HasSubstr("\r\n128,\"AB, Adams\","));
    EXPECT_THAT(folder.get("b.CSV"), HasSubstr("\r\nCEDAR RAPIDS,2,2,2,2,2,1\r\n"));
    EXPECT_THAT(folder.get("c.CSV"), HasSubstr("\r\nCEDAR RAPIDS,Adams_AB,1,1,1,1,1,1\r\n"));
    EXPECT_EQ(screen.news().text, "Saved a.CSV, b.CSV, c.CSV.");
    EXPECT_FALSE(anyReportWritten());
}

TEST_F(ReportsTables, AreThereForThreeReports)
{
    const auto isEnabled = [this] {
        screen.showState();
        return screen.cmdSaveCsv.enabled;
    };
    EXPECT_FALSE(isEnabled()) << "nothing is ticked";
    tick({kListing, kPlayerDetail, kByPlayer, kByTeam});
    EXPECT_FALSE(isEnabled());
    for (const Report report : {kStandings, kTeamSummary, kTeamDetail}) {
        tick({report});
        EXPECT_TRUE(isEnabled()) << report;
        screen.chkOptions[report].ticked = false;
    }
}

TEST_F(ReportsTables, AreRefusedAsTheReportsAre)
{
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    tick({kStandings});
    screen.cmdSaveCsv.click();

    EXPECT_THAT(platform.dialogs.fileChoices, IsEmpty());
    EXPECT_EQ(platform.dialogs.shown, (std::vector{critical("Tallyhoop - frmPoolReports, Tournament Standings",
                                                            "Game Results have not been entered, this option\r\n"
                                                            "is NOT valid until this activity has been completed")}));
    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_EQ(screen.news().text, "");
}

TEST_F(ReportsTables, SayNothingWhenThePersonCancels)
{
    tick({kStandings});
    platform.dialogs.pick(std::nullopt);
    screen.cmdSaveCsv.click();
    EXPECT_EQ(screen.news().text, "");
    EXPECT_TRUE(isTicked(kStandings));
}

} // namespace
} // namespace tallyhoop::test
