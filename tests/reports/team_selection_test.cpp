// tests/reports/team_selection_test.cpp - pick entries, the summary and the detail.
#include "reports/team_selection.h"

#include "reports/four_players.h"
#include "reports/team_selection_detail.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr std::size_t kHeader = 7;
const std::string kRule = std::string(27, ' ') + "+------+------+------+------+-------+---------+";

/// One pick of one player for each of this many teams, "T001" and on.
std::vector<std::string> entriesOfTeams(int teams)
{
    std::vector<std::string> entries;
    for (int i = 1; i <= teams; ++i)
        entries.push_back("T" + std::string(i < 10 ? "00" : i < 100 ? "0" : "") + std::to_string(i) + ",Smith_JS,1");
    return entries;
}

std::vector<std::string> entriesOfPlayers(int players)
{
    std::vector<std::string> entries;
    for (int i = 1; i <= players; ++i)
        entries.push_back("DUKE,P" + std::string(i < 10 ? "00" : i < 100 ? "0" : "") + std::to_string(i) + "_X,1");
    return entries;
}

ReportLines summary(const std::vector<std::string>& entries, std::string_view title = "Pool")
{
    const Result<ReportLines> lines = teamSelectionSummaryLines(title, entries);
    EXPECT_TRUE(lines) << lines.failure().message;
    return lines ? *lines : ReportLines{};
}

ReportLines detail(const std::vector<std::string>& entries, std::string_view title = "Pool")
{
    const Result<ReportLines> lines = teamSelectionDetailLines(title, entries);
    EXPECT_TRUE(lines) << lines.failure().message;
    return lines ? *lines : ReportLines{};
}

TEST(PickEntry, PacksTeamPlayerAndCategory) { EXPECT_EQ(pickEntry("DUKE", "Smith_JS", 6), "DUKE,Smith_JS,6"); }

TEST(PickEntries, AreInOrderWithoutRegardToCase)
{
    std::vector<Entry> players;
    for (const auto& [name, pick] : {std::pair{"Zoe", "Duke"}, {"Adam", "DUKE"}, {"Mia", "Duke St"}, {"Ben", "Ball"}}) {
        Entry& player = players.emplace_back();
        player.name = name;
        player.initials = "X";
        player.picks.put(kChampion, pick);
    }

    EXPECT_EQ(pickEntries(players),
              (std::vector<std::string>{"Ball,Ben_X,6", "Duke St,Mia_X,6", "DUKE,Adam_X,6", "Duke,Zoe_X,6"}));
}

TEST(PickEntries, AreSortedAsTheyArePackedAlsoWhenATeamHoldsAComma)
{
    std::vector<Entry> players;
    for (const auto& [name, pick] : {std::pair{"B", "A"}, {"x", "A,A"}, {"A", "A"}, {"x", "A,C"}}) {
        Entry& player = players.emplace_back();
        player.name = name;
        player.picks.put(kChampion, pick);
    }

    // A comma comes before an underscore.
    EXPECT_EQ(pickEntries(players), (std::vector<std::string>{"A,A,x_,6", "A,A_,6", "A,B_,6", "A,C,x_,6"}));
}

TEST(PickEntry, IsSplitAgain)
{
    const Result<Pick> pick = parsePickEntry("DUKE,Smith_JS,6");

    ASSERT_TRUE(pick);
    EXPECT_EQ(pick->team, "DUKE");
    EXPECT_EQ(pick->playerLabel, "Smith_JS");
    EXPECT_EQ(pick->category, 6u);
}

TEST(PickEntry, IsShiftedByACommaInATeam)
{
    const Result<Pick> pick = parsePickEntry("MIAMI, OHIO,Smith_JS,6");

    ASSERT_TRUE(pick);
    EXPECT_EQ(pick->team, "MIAMI");
    EXPECT_EQ(pick->playerLabel, " OHIO");
    EXPECT_EQ(pick->category, 0u);
}

TEST(PickEntry, TakesTheLeadingNumberOfAllThatIsLeftForTheCategory)
{
    EXPECT_EQ(parsePickEntry("MIAMI, OHIO,4Seasons_Q,6")->category, 4u);
}

TEST(PickEntry, FailsWhenWhatIsLeftIsNoCategory)
{
    const Result<Pick> pick = parsePickEntry("MIAMI, OHIO,99 Luftballons_N,6");

    ASSERT_FALSE(pick);
    EXPECT_NE(pick.failure().message.find("MIAMI, OHIO,99 Luftballons_N,6"), std::string::npos);
    EXPECT_FALSE(parsePickEntry("MIAMI, OHIO,-1_N,6"));
    EXPECT_FALSE(parsePickEntry("MIAMI, OHIO,40000_N,6"));
}

TEST(PickEntries, AreOneForEveryPickThatWasMadeInOrder)
{
    std::vector<Entry> players{EntryBuilder{}.finals("", "DUKE", "duke").player("JS", "Smith", "").entry};
    players[0].picks.put(gamesOfRegion(kWest)[0], "BUTLER");
    players[0].picks.put(regionWinner(kSouth), "DUKE");

    EXPECT_EQ(pickEntries(players),
              (std::vector<std::string>{"BUTLER,Smith_JS,1", "DUKE,Smith_JS,4", "DUKE,Smith_JS,5", "duke,Smith_JS,6"}));
}

TEST(PickEntries, OfACompleteBracketAreSixtyThreeAndTheChampionHasAllSixCategories)
{
    const std::vector<Entry> players{fourPlayers()[0]};

    const std::vector<std::string> entries = pickEntries(players);

    EXPECT_EQ(entries.size(), 63u);
    for (int category = 1; category <= 6; ++category)
        EXPECT_EQ(entries[static_cast<std::size_t>(category - 1)], "CEDAR RAPIDS,Adams_AB," + std::to_string(category));
}

TEST(PickEntries, IgnoreTheStartingField)
{
    const std::vector<Entry> players{fourPlayers()[2]}; // a field without a pick

    EXPECT_TRUE(pickEntries(players).empty());
}

TEST(TeamSelectionSummary, CountsThePlayersWhoSendATeamOn)
{
    const ReportLines lines =
        summary({"BUTLER,Smith_JS,1", "DUKE,Adams_AB,1", "DUKE,Adams_AB,2", "DUKE,Smith_JS,1", "DUKE,Smith_JS,6"});

    EXPECT_EQ(lines, (ReportLines{
                         " ",
                         std::string(35, ' ') + "Pool",                   // 37 - 2
                         std::string(26, ' ') + "Team Selection Summary", // 37 - 11
                         " ",
                         "                             2nd    3rd    4th   Region   Tour     Tour  ",
                         "                            Round  Round  Round  Finals  Finals  Champion",
                         kRule,
                         "BUTLER                         1      0      0      0       0        0",
                         kRule,
                         "DUKE                           2      1      0      0       0        1",
                         kRule,
                     }));
}

TEST(TeamSelectionSummary, WidensAColumnBeyondThreeDigits)
{
    const std::vector<std::string> entries(1234, "DUKE,Smith_JS,1");

    EXPECT_EQ(summary(entries)[kHeader], "DUKE                         1234      0      0      0       0        0");
}

TEST(TeamSelectionSummary, WithoutAnyPickIsOneHeader) { EXPECT_EQ(summary({}).size(), kHeader); }

TEST(TeamSelectionSummary, HoldsThirtyTwoTeamsOnAPage)
{
    const ReportLines thirtyOne = summary(entriesOfTeams(31)); // 1 + 2 * 31 = 63
    EXPECT_EQ(thirtyOne.size(), kHeader + 62);
    EXPECT_EQ(std::ranges::count(thirtyOne, kFormFeedLine), 0);

    const ReportLines thirtyTwo = summary(entriesOfTeams(32)); // 65
    ASSERT_EQ(thirtyTwo.size(), kHeader + 64 + 2);
    EXPECT_EQ(thirtyTwo[kHeader + 64], " ");
    EXPECT_EQ(thirtyTwo.back(), kFormFeedLine);
}

TEST(TeamSelectionSummary, StartsTheNextPageUnderItsHeader)
{
    const ReportLines lines = summary(entriesOfTeams(33));

    ASSERT_EQ(lines.size(), kHeader + 66 + kHeader + 2);
    EXPECT_TRUE(std::equal(lines.begin(), lines.begin() + kHeader, lines.begin() + kHeader + 66));
    EXPECT_TRUE(lines[2 * kHeader + 66].starts_with("T033 "));
}

TEST(TeamSelectionSummary, CarriesOneHeaderOnEachPage)
{
    const ReportLines lines = summary(entriesOfTeams(70));

    EXPECT_EQ(std::ranges::count(lines, lines[2]), 3); // 32 and 32 and 6 teams
    EXPECT_EQ(std::ranges::count(lines, kFormFeedLine), 2);
}

TEST(TeamSelectionSummary, WritesTheLastTeamAlsoAfterEveryLetterOfTheAlphabet)
{
    const ReportLines lines = summary({"ZZZZ,Smith_JS,1", "\xC9LAN,Smith_JS,1"});

    ASSERT_EQ(lines.size(), kHeader + 4);
    EXPECT_TRUE(lines[kHeader].starts_with("ZZZZ   "));
    EXPECT_TRUE(lines[kHeader + 2].starts_with("\xC9LAN   "));
}

TEST(TeamSelectionSummary, FailsForATeamOfThirtyCharacters)
{
    EXPECT_TRUE(summary({std::string(29, 'D') + ",Smith_JS,1"})[kHeader].starts_with(std::string(29, 'D') + "  1 "));

    const Result<ReportLines> lines = teamSelectionSummaryLines("Pool", {std::string(30, 'D') + ",Smith_JS,1"});
    ASSERT_FALSE(lines);
    EXPECT_NE(lines.failure().message.find(std::string(30, 'D')), std::string::npos);
}

TEST(TeamSelectionSummary, FailsForATitleWiderThanThePage)
{
    EXPECT_TRUE(teamSelectionSummaryLines(std::string(74, 'T'), {}));  // 37 - 37
    EXPECT_FALSE(teamSelectionSummaryLines(std::string(75, 'T'), {})); // 37 - 38
}

TEST(TeamSelectionDetail, ShowsEachPlayerBelowTheTeam)
{
    const ReportLines lines =
        detail({"BUTLER,Smith_JS,1", "DUKE,Adams_AB,1", "DUKE,Adams_AB,2", "DUKE,Smith_JS,1", "DUKE,Smith_JS,6"});

    EXPECT_EQ(lines, (ReportLines{
                         " ",
                         " ",
                         std::string(35, ' ') + "Pool",                  // 37 - 2
                         std::string(27, ' ') + "Team Selection Detail", // 37 - 10
                         " ",
                         "                             2nd    3rd    4th   Region   Tour     Tour  ",
                         "                            Round  Round  Round  Finals  Finals  Champion",
                         kRule,
                         "BUTLER                       ",
                         "     Smith_JS                  1      0      0      0       0        0",
                         "DUKE                         ",
                         "     Adams_AB                  1      1      0      0       0        0",
                         "     Smith_JS                  1      0      0      0       0        1",
                     }));
}

TEST(TeamSelectionDetail, CutsAPlayerLabelToTwentyTwoCharacters)
{
    const ReportLines lines = detail({"DUKE,Wolfeschlegelsteinhausenberger_HB,1"});

    EXPECT_EQ(lines.back(), "     Wolfeschlegelsteinhaus    1      0      0      0       0        0");
}

TEST(TeamSelectionDetail, KeepsPlayersApartWhoDifferOnlyInCase)
{
    const std::vector<Entry> players{EntryBuilder{}.finals("", "", "DUKE").player("JS", "smith", "").entry,
                                     EntryBuilder{}.finals("", "", "DUKE").player("JS", "Smith", "").entry};

    const ReportLines lines = detail(pickEntries(players));

    ASSERT_EQ(lines.size(), 1 + kHeader + 3);
    EXPECT_TRUE(lines[kHeader + 2].starts_with("     smith_JS "));
    EXPECT_TRUE(lines[kHeader + 3].starts_with("     Smith_JS "));
}

TEST(TeamSelectionDetail, WithoutAnyPickIsOneHeader) { EXPECT_EQ(detail({}).size(), 1 + kHeader); }

TEST(TeamSelectionDetail, FillsTheFirstPageWithFiftySixLines)
{
    // 8 header lines, the team's line, then players: 9 + 54 = 63, 9 + 55 = 64.
    const ReportLines fits = detail(entriesOfPlayers(54));
    EXPECT_EQ(fits.size(), 1 + kHeader + 1 + 54);
    EXPECT_EQ(std::ranges::count(fits, kFormFeedLine), 0);

    const ReportLines full = detail(entriesOfPlayers(55));
    ASSERT_EQ(full.size(), 1 + kHeader + 1 + 55 + 1);
    EXPECT_EQ(full.back(), kFormFeedLine);
}

TEST(TeamSelectionDetail, GoesOnUnderANewHeaderWithoutRepeatingTheTeam)
{
    const ReportLines lines = detail(entriesOfPlayers(56));

    const std::size_t second = 1 + kHeader + 1 + 55 + 1;
    ASSERT_EQ(lines.size(), second + kHeader + 1);
    EXPECT_TRUE(std::equal(lines.begin() + 1, lines.begin() + 1 + kHeader, lines.begin() + static_cast<long>(second)));
    EXPECT_TRUE(lines.back().starts_with("     P056_X "));
}

TEST(TeamSelectionDetail, HoldsFiftySevenLinesOnLaterPages)
{
    // 7 + 56 = 63, 7 + 57 = 64.
    EXPECT_EQ(std::ranges::count(detail(entriesOfPlayers(55 + 56)), kFormFeedLine), 1);
    EXPECT_EQ(std::ranges::count(detail(entriesOfPlayers(55 + 57)), kFormFeedLine), 2);
}

TEST(TeamSelectionDetail, NeverEndsAPageWithATeamsLine)
{
    std::vector<std::string> entries = entriesOfPlayers(54); // the counter is at 63
    entries.emplace_back("UTAH,Smith_JS,1");

    const ReportLines lines = detail(entries);

    ASSERT_EQ(lines.size(), 1u + kHeader + 1 + 54 + 2 + 1);
    EXPECT_TRUE(lines[lines.size() - 3].starts_with("UTAH "));
    EXPECT_TRUE(lines[lines.size() - 2].starts_with("     Smith_JS "));
    EXPECT_EQ(lines.back(), kFormFeedLine);
}

TEST(TeamSelectionDetail, CountsEachPlayersPicksFromZero)
{
    const ReportLines lines = detail({"DUKE,Adams_AB,1", "DUKE,Adams_AB,2", "DUKE,Baker_C,3"});

    ASSERT_EQ(lines.size(), 1 + kHeader + 3);
    EXPECT_EQ(lines[kHeader + 2], "     Adams_AB                  1      1      0      0       0        0");
    EXPECT_EQ(lines[kHeader + 3], "     Baker_C                   0      0      1      0       0        0");
}

TEST(TeamSelectionDetail, WritesNoRowForATeamWhoseNameIsEmpty)
{
    // A team whose name begins with a comma: what is left of it is no team.
    const ReportLines lines = detail({",X,Smith_JS,1", "DUKE,Smith_JS,2"});

    ASSERT_EQ(lines.size(), 1 + kHeader + 2);
    EXPECT_EQ(lines[kHeader + 1], "DUKE" + std::string(25, ' '));
    EXPECT_EQ(lines[kHeader + 2], "     Smith_JS                  0      1      0      0       0        0");
}

TEST(TeamSelectionDetail, FailsForATeamOfThirtyCharacters)
{
    const Result<ReportLines> lines = teamSelectionDetailLines("Pool", {std::string(30, 'D') + ",Smith_JS,1"});

    ASSERT_FALSE(lines);
    EXPECT_EQ(lines.failure().message,
              "This team's name is too long for the report, which has room for 29 characters:\r\n" +
                  std::string(30, 'D'));
}

TEST(TeamSelectionDetail, FailsForAnEntryWithoutACategory)
{
    EXPECT_FALSE(teamSelectionDetailLines("Pool", {"MIAMI, OHIO,99 Luftballons_N,6"}));
}

TEST(TeamSelectionDetail, FailsForATitleWiderThanThePage)
{
    EXPECT_TRUE(teamSelectionDetailLines(std::string(74, 'T'), {"DUKE,Smith_JS,1"}));  // 37 - 37
    EXPECT_FALSE(teamSelectionDetailLines(std::string(75, 'T'), {"DUKE,Smith_JS,1"})); // 37 - 38
}

} // namespace
} // namespace tallyhoop::test
