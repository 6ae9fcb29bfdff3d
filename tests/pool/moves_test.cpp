// tests/pool/moves_test.cpp - clicks, drags, clears and high seeds, each worked by hand on one bracket.
#include "pool/moves.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

/// The 64 rows hold "R<region>T<row>", such as "R0T15"; nothing is picked.
TeamNamesOnBoard startingField()
{
    TeamNamesOnBoard teams;
    for (int region = 0; region < kRegions; ++region)
        for (int row = 0; row < kRowsPerRegion; ++row)
            teams.at(static_cast<std::size_t>(index(firstRoundPosition(region, row)))) =
                "R" + std::to_string(region) + "T" + std::to_string(row);
    return teams;
}

void click(TeamNamesOnBoard& teams, int position)
{
    const std::string pressed = teams.at(static_cast<std::size_t>(position));
    dropOnPosition(teams, position, position, pressed);
}

void drag(TeamNamesOnBoard& teams, int from, int to)
{
    const std::string pressed = teams.at(static_cast<std::size_t>(from));
    dropOnPosition(teams, from, to, pressed);
}

std::array<std::int16_t, kTeams> usualSeeds()
{
    constexpr std::array<std::int16_t, 16> kRows{1, 16, 8, 9, 5, 12, 4, 13, 6, 11, 3, 14, 7, 10, 2, 15};
    std::array<std::int16_t, kTeams> seeds{};
    for (std::size_t i = 0; i < seeds.size(); ++i)
        seeds[i] = kRows[i % 16];
    return seeds;
}

TEST(Click, AdvancesATeamRoundByRoundUpToTheChampion)
{
    TeamNamesOnBoard teams = startingField();
    // Row 0 of region 0 plays for 16, 24, 28, 30, 124 and 126.
    int from = 0;
    for (const int to : {16, 24, 28, 30, 124, 126}) {
        EXPECT_EQ(teams.at(static_cast<std::size_t>(to)), "");
        click(teams, from);
        EXPECT_EQ(teams.at(static_cast<std::size_t>(to)), "R0T0");
        from = to;
    }
}

TEST(Click, OnTheChampionChangesNothing)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    const TeamNamesOnBoard before = teams;
    click(teams, 126);
    EXPECT_EQ(teams, before);
}

TEST(Click, ReplacesTheOpponentAndRemovesItFromEveryLaterRound)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 1, 30); // the opponent won the region
    click(teams, 0);
    EXPECT_EQ(teams[16], "R0T0");
    EXPECT_EQ(teams[24], "");
    EXPECT_EQ(teams[28], "");
    EXPECT_EQ(teams[30], "");
}

TEST(Click, LeavesOtherTeamsFurtherAlongUntouched)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 1, 24);  // the opponent, two rounds far
    drag(teams, 15, 30); // another team won the region
    teams[124] = "R0T1"; // and the opponent stands once more behind it
    click(teams, 0);
    EXPECT_EQ(teams[24], "");
    EXPECT_EQ(teams[28], "");
    EXPECT_EQ(teams[30], "R0T15");
    EXPECT_EQ(teams[124], "") << "the walk goes on behind a position that holds another team";
}

TEST(Click, OnAnEmptyPositionEmptiesTheNextOne)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 28);
    teams[16].clear();
    click(teams, 16);
    EXPECT_EQ(teams[24], "");
    EXPECT_EQ(teams[28], "") << "the team was displaced from there on";
}

TEST(Click, OnTheTeamThatAdvancedAlreadyKeepsItsLaterRounds)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    const TeamNamesOnBoard before = teams;
    click(teams, 0);
    EXPECT_EQ(teams, before);
}

TEST(Drag, OfAFirstRoundTeamOntoTheChampionFillsItsWholePathWhateverStoodThere)
{
    TeamNamesOnBoard teams = startingField();
    for (const std::size_t position : {93u + 23u, 119u, 122u, 123u, 125u, 126u})
        teams[position] = "R3T0";
    drag(teams, 93 + 15, 126); // last row of the last region
    for (const std::size_t position : {93u + 23u, 93u + 27u, 93u + 29u, 123u, 125u, 126u})
        EXPECT_EQ(teams[position], "R3T15") << position;
    EXPECT_EQ(teams[119], "R3T0") << "not on the path";
}

TEST(Drag, RemovesTheDisplacedTeamBehindTheTarget)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 2, 126);
    drag(teams, 0, 24);
    EXPECT_EQ(teams[16], "R0T0");
    EXPECT_EQ(teams[17], "R0T2");
    EXPECT_EQ(teams[24], "R0T0");
    for (const std::size_t position : {28u, 30u, 124u, 126u})
        EXPECT_EQ(teams[position], "") << position;
}

TEST(Drag, OntoAnotherRegionOrAnEarlierRoundChangesNothing)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 28);
    const TeamNamesOnBoard before = teams;
    drag(teams, 0, 47);  // first round of region 1
    drag(teams, 0, 92);  // winner of region 2
    drag(teams, 0, 125); // the other semi-final
    drag(teams, 28, 16); // backwards on its own path
    drag(teams, 0, 17);  // the neighbour's game
    drag(teams, 0, 1);   // a row of the field
    EXPECT_EQ(teams, before);
}

TEST(Drag, OfAnEmptyPositionClearsWhatItReaches)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    teams[16].clear();
    drag(teams, 16, 28);
    EXPECT_EQ(teams[24], "");
    EXPECT_EQ(teams[28], "");
    EXPECT_EQ(teams[30], "") << "the displaced team leaves the rounds behind the target too";
    EXPECT_EQ(teams[126], "");
}

TEST(RightPress, EmptiesARegionWinnerAndItsSemifinalAndTitle)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 62, 126);
    clearPosition(teams, 92);
    EXPECT_EQ(teams[92], "");
    EXPECT_EQ(teams[125], "");
    EXPECT_EQ(teams[126], "");
    EXPECT_EQ(teams[90], "R2T0") << "earlier rounds stay";
}

TEST(RightPress, LeavesAnotherTeamInTheTitleAlone)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 62, 125);
    drag(teams, 0, 126);
    clearPosition(teams, 92);
    EXPECT_EQ(teams[126], "R0T0");
}

TEST(RightPress, OnTheChampionEmptiesOnlyTheChampion)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    clearPosition(teams, 126);
    EXPECT_EQ(teams[126], "");
    EXPECT_EQ(teams[124], "R0T0");
}

TEST(RightPress, NeverEmptiesAFirstRoundRow)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    const TeamNamesOnBoard before = teams;
    for (const int position : {0, 15, 31, 46, 62, 77, 93, 108})
        clearPosition(teams, position);
    EXPECT_EQ(teams, before);
}

TEST(ClearTeamForward, BehindTheChampionDoesNothing)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    const TeamNamesOnBoard before = teams;
    ClearTeamForward(teams, "R0T0", kChampionEnd);
    EXPECT_EQ(teams, before);
}

TEST(ClearTeamForward, TakesANameOfTheBoardItself)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 0, 126);
    ClearTeamForward(teams, teams[16], 16); // the name vanishes at the first step
    for (const std::size_t position : {16u, 24u, 28u, 30u, 124u, 126u})
        EXPECT_EQ(teams[position], "") << position;
}

TEST(HighSeeds, LetTheBetterSeedWinEveryGameOfARegion)
{
    TeamNamesOnBoard teams = startingField();
    selectHighSeeds(teams, usualSeeds());
    // Seeds 1, 8, 5, 4, 6, 3, 7, 2 stand in rows 0, 2, 4, 6, 8, 10, 12, 14.
    for (std::size_t game = 0; game < 8; ++game)
        EXPECT_EQ(teams[16 + game], "R0T" + std::to_string(2 * game));
    // Then 1, 4, 3, 2; then 1, 2; then 1.
    EXPECT_EQ(teams[24], "R0T0");
    EXPECT_EQ(teams[25], "R0T6");
    EXPECT_EQ(teams[26], "R0T10");
    EXPECT_EQ(teams[27], "R0T14");
    EXPECT_EQ(teams[28], "R0T0");
    EXPECT_EQ(teams[29], "R0T14");
    EXPECT_EQ(teams[30], "R0T0");
    EXPECT_EQ(teams[61], "R1T0");
    EXPECT_EQ(teams[92], "R2T0");
    EXPECT_EQ(teams[123], "R3T0");
}

TEST(HighSeeds, LetTheLowerRowWinWhenSeedsAreEqual)
{
    TeamNamesOnBoard teams = startingField();
    std::array<std::int16_t, kTeams> seeds = usualSeeds();
    seeds[1] = 1; // as good as row 0
    selectHighSeeds(teams, seeds);
    EXPECT_EQ(teams[16], "R0T1");
    EXPECT_EQ(teams[30], "R0T1");
}

TEST(HighSeeds, KeepTheSemifinalsAndTheChampion)
{
    TeamNamesOnBoard teams = startingField();
    teams[124] = "R0T15";
    teams[126] = "R0T15";
    selectHighSeeds(teams, usualSeeds());
    EXPECT_EQ(teams[124], "R0T15");
    EXPECT_EQ(teams[125], "");
    EXPECT_EQ(teams[126], "R0T15");
}

TEST(HighSeeds, ReplaceWhatWasPickedBefore)
{
    TeamNamesOnBoard teams = startingField();
    drag(teams, 15, 30);
    selectHighSeeds(teams, usualSeeds());
    EXPECT_EQ(teams[23], "R0T14");
    EXPECT_EQ(teams[30], "R0T0");
}

} // namespace
} // namespace tallyhoop
