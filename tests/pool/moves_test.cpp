// tests/pool/moves_test.cpp - clicks, drags, clears and high seeds, each worked by hand on one bracket.
#include "pool/moves.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The 64 rows hold "R<region>T<row>", such as "R0T15"; nothing is picked.
Bracket startingField()
{
    Bracket bracket;
    for (int region = 0; region < kRegions; ++region)
        for (int row = 0; row < kRowsPerRegion; ++row)
            bracket.put(firstRoundPosition(region, row), "R" + std::to_string(region) + "T" + std::to_string(row));
    return bracket;
}

const std::string& at(const Bracket& bracket, int position) { return bracket.at(Position{position}); }

/// @returns who is on these positions, in their order
std::vector<std::string> teamsAt(const Bracket& bracket, const std::vector<int>& positions)
{
    std::vector<std::string> teams;
    for (const int position : positions)
        teams.push_back(at(bracket, position));
    return teams;
}

void drag(Bracket& bracket, int from, int to)
{
    const std::string pressed = at(bracket, from);
    bracket = dropped(bracket, Position{from}, Position{to}, pressed);
}

/// A press and a release on the same place.
void click(Bracket& bracket, int position) { drag(bracket, position, position); }

ByTeamRow<std::int16_t> usualSeeds()
{
    constexpr std::array<std::int16_t, 16> kRows{1, 16, 8, 9, 5, 12, 4, 13, 6, 11, 3, 14, 7, 10, 2, 15};
    ByTeamRow<std::int16_t> seeds;
    for (std::size_t i = 0; i < seeds.values.size(); ++i)
        seeds.values[i] = kRows[i % 16];
    return seeds;
}

TEST(Click, AdvancesATeamRoundByRoundUpToTheChampion)
{
    Bracket bracket = startingField();
    // Row 0 of region 0 plays for 16, 24, 28, 30, 124 and 126.
    int from = 0;
    for (const int to : {16, 24, 28, 30, 124, 126}) {
        EXPECT_EQ(at(bracket, to), "");
        click(bracket, from);
        EXPECT_EQ(at(bracket, to), "R0T0");
        from = to;
    }
}

TEST(Click, OnTheChampionChangesNothing)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    const Bracket before = bracket;
    click(bracket, 126);
    EXPECT_EQ(bracket, before);
}

TEST(Click, ReplacesTheOpponentAndRemovesItFromEveryLaterRound)
{
    Bracket bracket = startingField();
    drag(bracket, 1, 30); // the opponent won the region
    click(bracket, 0);
    EXPECT_THAT(teamsAt(bracket, {16, 24, 28, 30}), ElementsAre("R0T0", "", "", ""));
}

TEST(Click, LeavesOtherTeamsFurtherAlongUntouched)
{
    Bracket bracket = startingField();
    drag(bracket, 1, 24);               // the opponent, two rounds far
    drag(bracket, 15, 30);              // another team won the region
    bracket.put(Position{124}, "R0T1"); // and after it comes the opponent once more
    click(bracket, 0);
    EXPECT_THAT(teamsAt(bracket, {24, 28, 30}), ElementsAre("", "", "R0T15"));
    EXPECT_EQ(at(bracket, 124), "") << "the walk goes on after a position that holds another team";
}

TEST(Click, OnAnEmptyPositionEmptiesTheNextOne)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 28);
    bracket.clear(Position{16});
    click(bracket, 16);
    EXPECT_EQ(at(bracket, 24), "");
    EXPECT_EQ(at(bracket, 28), "") << "the team was displaced from there on";
}

TEST(Click, OnTheTeamThatAdvancedAlreadyKeepsItsLaterRounds)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    const Bracket before = bracket;
    click(bracket, 0);
    EXPECT_EQ(bracket, before);
}

TEST(Click, CopiesWhoIsOnThePlaceByNow)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 16);
    bracket = dropped(bracket, Position{16}, Position{16}, "R0T1"); // who was there when it was pressed
    EXPECT_EQ(at(bracket, 24), "R0T0");
}

TEST(Advanced, LetsTheTeamOfAPlaceWinItsGame)
{
    const Bracket bracket = advanced(startingField(), Position{107});
    EXPECT_EQ(at(bracket, 116), "R3T14");
    const Bracket replaced = advanced(bracket, Position{108});
    EXPECT_EQ(at(replaced, 116), "R3T15");
    EXPECT_EQ(advanced(replaced, kChampion), replaced);
}

TEST(Drag, OfAFirstRoundTeamOntoTheChampionFillsItsWholePathWhoeverWasThere)
{
    Bracket bracket = startingField();
    for (const int position : {93 + 23, 119, 122, 123, 125, 126})
        bracket.put(Position{position}, "R3T0");
    drag(bracket, 93 + 15, 126); // last row of the last region
    for (const int position : {93 + 23, 93 + 27, 93 + 29, 123, 125, 126})
        EXPECT_EQ(at(bracket, position), "R3T15") << position;
    EXPECT_EQ(at(bracket, 119), "R3T0") << "not on the path";
}

TEST(Drag, RemovesTheDisplacedTeamAfterTheTarget)
{
    Bracket bracket = startingField();
    drag(bracket, 2, 126);
    drag(bracket, 0, 24);
    EXPECT_THAT(teamsAt(bracket, {16, 17, 24}), ElementsAre("R0T0", "R0T2", "R0T0"));
    EXPECT_THAT(teamsAt(bracket, {28, 30, 124, 126}), ElementsAre("", "", "", ""));
}

TEST(Drag, OntoAnotherRegionOrAnEarlierRoundChangesNothing)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 28);
    const Bracket before = bracket;
    drag(bracket, 0, 47);  // first round of region 1
    drag(bracket, 0, 92);  // winner of region 2
    drag(bracket, 0, 125); // the other semi-final
    drag(bracket, 28, 16); // backwards on its own path
    drag(bracket, 0, 17);  // the neighbour's game
    drag(bracket, 0, 1);   // a row of the field
    EXPECT_EQ(bracket, before);
}

TEST(Drag, OfAnEmptyPositionClearsWhatItReaches)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    bracket.clear(Position{16});
    drag(bracket, 16, 28);
    EXPECT_EQ(at(bracket, 24), "");
    EXPECT_EQ(at(bracket, 28), "");
    EXPECT_EQ(at(bracket, 30), "") << "the displaced team leaves the rounds after the target too";
    EXPECT_EQ(at(bracket, 126), "");
}

TEST(Cleared, EmptiesARegionWinnerAndItsSemifinalAndTitle)
{
    Bracket bracket = startingField();
    drag(bracket, 62, 126);
    bracket = cleared(bracket, Position{92});
    EXPECT_THAT(teamsAt(bracket, {92, 125, 126}), ElementsAre("", "", ""));
    EXPECT_EQ(at(bracket, 90), "R2T0") << "earlier rounds stay";
}

TEST(Cleared, LeavesAnotherTeamInTheTitleAlone)
{
    Bracket bracket = startingField();
    drag(bracket, 62, 125);
    drag(bracket, 0, 126);
    bracket = cleared(bracket, Position{92});
    EXPECT_EQ(at(bracket, 126), "R0T0");
}

TEST(Cleared, OnTheChampionEmptiesOnlyTheChampion)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    bracket = cleared(bracket, kChampion);
    EXPECT_EQ(at(bracket, 126), "");
    EXPECT_EQ(at(bracket, 124), "R0T0");
}

TEST(Cleared, NeverEmptiesAFirstRoundRow)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    for (const int position : {0, 15, 31, 46, 62, 77, 93, 108})
        EXPECT_EQ(cleared(bracket, Position{position}), bracket);
}

TEST(WithoutTeamFrom, NowhereOnDoesNothing)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    EXPECT_EQ(withoutTeamFrom(bracket, std::nullopt, "R0T0"), bracket);
    EXPECT_EQ(withoutTeamFrom(bracket, next(kChampion), "R0T0"), bracket);
}

TEST(WithoutTeamFrom, TakesANameOfTheBracketItself)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    bracket = withoutTeamFrom(bracket, Position{16}, bracket.at(Position{16})); // gone at the first step
    EXPECT_THAT(teamsAt(bracket, {16, 24, 28, 30, 124, 126}), ElementsAre("", "", "", "", "", ""));
    EXPECT_EQ(at(bracket, 0), "R0T0");
}

TEST(HighSeeds, LetTheBetterSeedWinEveryGameOfARegion)
{
    const Bracket bracket = withHighSeeds(startingField(), usualSeeds());
    // Seeds 1, 8, 5, 4, 6, 3, 7, 2 are in rows 0, 2, 4, 6, 8, 10, 12, 14.
    for (int game = 0; game < 8; ++game)
        EXPECT_EQ(at(bracket, 16 + game), "R0T" + std::to_string(2 * game));
    // Then 1, 4, 3, 2; then 1, 2; then 1.
    EXPECT_THAT(teamsAt(bracket, {24, 25, 26, 27}), ElementsAre("R0T0", "R0T6", "R0T10", "R0T14"));
    EXPECT_THAT(teamsAt(bracket, {28, 29}), ElementsAre("R0T0", "R0T14"));
    EXPECT_THAT(teamsAt(bracket, {30, 61, 92, 123}), ElementsAre("R0T0", "R1T0", "R2T0", "R3T0"));
}

TEST(HighSeeds, LetTheLowerRowWinWhenSeedsAreEqual)
{
    ByTeamRow<std::int16_t> seeds = usualSeeds();
    seeds[TeamRow{1}] = 1; // as good as row 0
    const Bracket bracket = withHighSeeds(startingField(), seeds);
    EXPECT_EQ(at(bracket, 16), "R0T1");
    EXPECT_EQ(at(bracket, 30), "R0T1");
}

TEST(HighSeeds, AreThoseOfEachRegionsOwnRows)
{
    ByTeamRow<std::int16_t> seeds = usualSeeds();
    seeds[TeamRow{63}] = -1; // the last row of the last region
    const Bracket bracket = withHighSeeds(startingField(), seeds);
    EXPECT_THAT(teamsAt(bracket, {30, 61, 92, 123}), ElementsAre("R0T0", "R1T0", "R2T0", "R3T15"));
}

TEST(HighSeeds, KeepTheSemifinalsAndTheChampion)
{
    Bracket bracket = startingField();
    bracket.put(kSemifinalA, "R0T15");
    bracket.put(kChampion, "R0T15");
    bracket = withHighSeeds(bracket, usualSeeds());
    EXPECT_THAT(teamsAt(bracket, {124, 125, 126}), ElementsAre("R0T15", "", "R0T15"));
}

TEST(HighSeeds, ReplaceWhatWasPickedBefore)
{
    Bracket bracket = startingField();
    drag(bracket, 15, 30);
    bracket = withHighSeeds(bracket, usualSeeds());
    EXPECT_EQ(at(bracket, 23), "R0T14");
    EXPECT_EQ(at(bracket, 30), "R0T0");
}

TEST(PathOf, IsEveryPlaceThatTheTeamHasReached)
{
    Bracket bracket = startingField();
    drag(bracket, 15, 30);
    const auto path = std::vector{Position{15}, Position{23}, Position{27}, Position{29}, Position{30}};
    EXPECT_EQ(pathOf(bracket, Position{15}), path);
    EXPECT_EQ(pathOf(bracket, Position{27}), path) << "from wherever one looks";
    EXPECT_EQ(pathOf(bracket, Position{31}), std::vector{Position{31}}) << "a team that won nothing";
}

TEST(PathOf, LeavesOutTheGapsOfADamagedBracket)
{
    Bracket bracket = startingField();
    drag(bracket, 0, 126);
    bracket.clear(Position{24});
    bracket.put(Position{30}, "R0T9");
    EXPECT_THAT(pathOf(bracket, Position{16}),
                ElementsAre(Position{0}, Position{16}, Position{28}, Position{124}, Position{126}));
}

TEST(PathOf, IsEmptyForNobodyAndForATeamThatDoesNotComeFromThere)
{
    Bracket bracket = startingField();
    EXPECT_THAT(pathOf(bracket, Position{16}), IsEmpty());
    bracket.put(Position{16}, "R3T0"); // from another region
    bracket.put(Position{17}, "Nobody");
    EXPECT_THAT(pathOf(bracket, Position{16}), IsEmpty());
    EXPECT_THAT(pathOf(bracket, Position{17}), IsEmpty());
}

TEST(PathOf, DistinguishesTwoTeamsOfOneNameByTheirPaths)
{
    Bracket bracket = startingField();
    bracket.put(Position{93}, "R0T0");
    drag(bracket, 0, 16);
    drag(bracket, 93, 109);
    EXPECT_THAT(pathOf(bracket, Position{109}), ElementsAre(Position{93}, Position{109}));
    EXPECT_THAT(pathOf(bracket, Position{16}), ElementsAre(Position{0}, Position{16}));
}

TEST(OpenGameAfter, GoesRegionByRegionEachRoundByRound)
{
    Bracket bracket = startingField();
    std::vector<int> order;
    Position game = kChampion;
    while (const auto open = openGameAfter(bracket, game)) {
        game = *open;
        order.push_back(index(game));
        bracket.put(game, "a winner");
    }
    // The rounds of region 1 are 16..23, 24..27, 28..29 and 30; each region begins 31 positions after the one before.
    std::vector<int> expected;
    for (const int region : {0, 31, 62, 93})
        for (int place = 16; place <= 30; ++place)
            expected.push_back(region + place);
    expected.insert(expected.end(), {124, 125, 126});
    EXPECT_EQ(order, expected);
}

TEST(OpenGameAfter, LeavesOutWhatHasAWinnerAndBeginsAgainAfterTheFinal)
{
    Bracket bracket = startingField();
    for (const Position game : gamePositions())
        bracket.put(game, "a winner");
    EXPECT_EQ(openGameAfter(bracket, Position{16}), std::nullopt);
    bracket.clear(Position{47});
    bracket.clear(Position{123});
    EXPECT_EQ(openGameAfter(bracket, Position{16}), Position{47}) << "the first of the second region, after 30";
    EXPECT_EQ(openGameAfter(bracket, Position{47}), Position{123});
    EXPECT_EQ(openGameAfter(bracket, Position{123}), Position{47});
    EXPECT_EQ(openGameAfter(bracket, kChampion), Position{47});
    bracket.put(Position{123}, "a winner");
    EXPECT_EQ(openGameAfter(bracket, Position{47}), Position{47}) << "the only one";
}

} // namespace
} // namespace tallyhoop
