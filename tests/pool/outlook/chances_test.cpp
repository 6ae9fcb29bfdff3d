// tests/pool/outlook/chances_test.cpp - the three models, by hand and against real tournaments.
#include "pool/outlook/chances.h"

#include "pool/outlook/seed_results.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

/// The default field with teams named like their rows: "TEAM1" .. "TEAM16" have the seeds 1, 16, 8, 9, 5, 12, ...
const OpenGames& nothingPlayed()
{
    static const OpenGames games{startingBracket(defaultField())};
    return games;
}

double between(const UpperChance& chance, const std::string& upper, const std::string& lower)
{
    const TeamNames& names = nothingPlayed().known().names();
    return chance(0, names.numberOf(upper), names.numberOf(lower));
}

/// The mean squared error of a model that says how likely the better of two seeds is to win, over real games.
template <class Model>
double brierScore(Model model)
{
    double sum = 0;
    int games = 0;
    for (const test::SeedResult& result : test::kSeedResults) {
        const double chance = model(result.better, result.worse);
        sum += result.wonByBetter * (1 - chance) * (1 - chance);
        sum += (result.games - result.wonByBetter) * chance * chance;
        games += result.games;
    }
    return sum / games;
}

/// @returns a team of the default field with this seed, of the first or the second region
TeamNumber teamOfSeed(int seed, int region)
{
    const Field field = defaultField();
    for (int row = 0; row < kRowsPerRegion; ++row)
        if (std::stoi(field.seedOf(teamRowAt(region, row))) == seed)
            return nothingPlayed().known().numbers()[firstRoundPosition(region, row)];
    return kNoTeam;
}

TEST(AlikeChances, AreOneHalf)
{
    EXPECT_EQ(between(alikeChances(), "TEAM1", "TEAM2"), 0.5);
    EXPECT_EQ(between(alikeChances(), "TEAM2", "TEAM1"), 0.5);
}

TEST(SeedChances, AreTheOtherSeedsPartOfTheSum)
{
    const UpperChance chance = seedChances(nothingPlayed(), defaultField());
    EXPECT_DOUBLE_EQ(between(chance, "TEAM1", "TEAM2"), 16.0 / 17); // 1 against 16
    EXPECT_DOUBLE_EQ(between(chance, "TEAM2", "TEAM1"), 1.0 / 17);
    EXPECT_DOUBLE_EQ(between(chance, "TEAM5", "TEAM9"), 6.0 / 11); // 5 against 6
}

TEST(SeedChances, AreOneHalfForEqualSeedsOfTwoRegions)
{
    const UpperChance chance = seedChances(nothingPlayed(), defaultField());
    EXPECT_EQ(between(chance, "TEAM2", "TEAM18"), 0.5); // 16 against 16
}

TEST(SeedChances, AreOneHalfWhereASeedIsNoNumberAboveNought)
{
    Field field = defaultField();
    field.seeds[1] = "";
    field.seeds[2] = "best";
    field.seeds[3] = "0";
    field.seeds[4] = "-5";
    field.seeds[5] = "99999";
    const UpperChance chance = seedChances(nothingPlayed(), field);
    for (const char* team : {"TEAM2", "TEAM3", "TEAM4", "TEAM5", "TEAM6"}) {
        EXPECT_EQ(between(chance, "TEAM1", team), 0.5) << team;
        EXPECT_EQ(between(chance, team, "TEAM1"), 0.5) << team;
    }
    EXPECT_DOUBLE_EQ(between(chance, "TEAM1", "TEAM7"), 4.0 / 5); // 1 against 4: these still have theirs
}

TEST(SeedChances, AreOneHalfForNamesThatTheFieldHasTwiceOrNotAtAll)
{
    Field field = defaultField();
    field.teams[TeamRow{1}] = "TEAM40"; // TEAM2's row; TEAM40 is in the third region
    const UpperChance chance = seedChances(nothingPlayed(), field);
    EXPECT_EQ(between(chance, "TEAM1", "TEAM2"), 0.5);
    EXPECT_EQ(between(chance, "TEAM1", "TEAM40"), 0.5);
}

TEST(SeedChances, ForetellTheGamesOfRealTournamentsBetterThanACoin)
{
    const UpperChance bySeed = seedChances(nothingPlayed(), defaultField());
    const double seedScore =
        brierScore([&](int better, int worse) { return bySeed(0, teamOfSeed(better, 0), teamOfSeed(worse, 1)); });
    EXPECT_NEAR(seedScore, 0.184, 0.0005);
    EXPECT_DOUBLE_EQ(brierScore([](int, int) { return 0.5; }), 0.25);
}

/// Four players of whom three pick "Team 1" to win its first game and one "Team 2"; nobody picks a later game.
Contest fourPlayers()
{
    const Position game = *next(firstRoundPosition(0, 0));
    std::vector<Bracket> picks(4, test::startingField());
    for (Bracket& bracket : picks)
        bracket.put(game, "Team 1");
    picks[3].put(game, "Team 2");
    return Contest{test::startingField(), picks, {1, 1, 1, 1, 1, 1}};
}

double inGame(const Contest& contest, std::size_t openGame, const std::string& upper, const std::string& lower)
{
    const TeamNames& names = contest.games().known().names();
    return pickedChances(contest)(openGame, names.numberOf(upper), names.numberOf(lower));
}

TEST(PickedChances, FollowThePlayersWhoPickedOneOfTheTwo)
{
    EXPECT_DOUBLE_EQ(inGame(fourPlayers(), 0, "Team 1", "Team 2"), (3.0 + 1) / (4 + 2));
    EXPECT_DOUBLE_EQ(inGame(fourPlayers(), 0, "Team 2", "Team 1"), (1.0 + 1) / (4 + 2));
}

TEST(PickedChances, LeaveATeamThatNobodyPickedAChance)
{
    EXPECT_DOUBLE_EQ(inGame(fourPlayers(), 0, "Team 3", "Team 1"), 1.0 / (3 + 2));
}

TEST(PickedChances, AreOneHalfWhereNobodyPickedEither)
{
    EXPECT_EQ(inGame(fourPlayers(), 1, "Team 3", "Team 4"), 0.5); // the second game: no picks at all
    EXPECT_EQ(inGame(Contest{test::startingField(), {}, {}}, 0, "Team 1", "Team 2"), 0.5);
}

TEST(PickedChances, CountPicksOfThisGameAndNotOfTheOneBefore)
{
    const Contest contest = fourPlayers();
    const std::vector<Position>& games = contest.games().games();
    const auto lastOfRegion =
        static_cast<std::size_t>(std::ranges::find(games, regionWinner(0)) - games.begin()); // the region's last game
    EXPECT_EQ(inGame(contest, lastOfRegion, "Team 1", "Team 16"), 0.5);
}

TEST(PickedChances, IgnorePicksOfTeamsFromElsewhere)
{
    const Position game = *next(firstRoundPosition(0, 0));
    std::vector<Bracket> picks(2, test::startingField());
    picks[0].put(game, "Nobody's");
    picks[1].put(game, "Team 2");
    const Contest contest{test::startingField(), picks, {1, 1, 1, 1, 1, 1}};
    EXPECT_DOUBLE_EQ(inGame(contest, 0, "Team 1", "Team 2"), 1.0 / 3);
}

} // namespace
} // namespace tallyhoop
