// tests/pool/outlook/forecast_test.cpp - the forecast against the sum over every outcome, and its errors against
// theirs.
#include "pool/outlook/forecast.h"

#include "pool/outlook/close_chances.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/invented_pools.h"
#include "pool/outlook/summed_chances.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;
using test::kUsualPayoffs;

ChanceOutlook forecast(const Contest& contest, std::uint64_t samples, const UpperChance& upperChance = alikeChances())
{
    Forecast made{contest, upperChance};
    made.add(samples);
    return made.outlook();
}

void expectSame(const ChanceOutlook& made, const ChanceOutlook& expected)
{
    ASSERT_EQ(made.upperWins, expected.upperWins);
    ASSERT_EQ(made.players.size(), expected.players.size());
    for (std::size_t player = 0; player < made.players.size(); ++player) {
        ASSERT_EQ(made.players[player].all, expected.players[player].all) << "player " << player;
        ASSERT_EQ(made.players[player].andUpperWins, expected.players[player].andUpperWins) << "player " << player;
    }
}

void expectExact(const Contest& contest)
{
    const ChanceOutlook made = forecast(contest, 1, test::someChance);
    const ChanceOutlook expected = test::summedChances(contest, test::someChance);
    for (std::size_t player = 0; player < contest.players(); ++player) {
        ASSERT_NO_FATAL_FAILURE(test::expectClose(made.players[player].all, expected.players[player].all, 1e-9));
        for (std::size_t game = 0; game < contest.games().size(); ++game) {
            ASSERT_NEAR(made.upperWins[game], expected.upperWins[game], 1e-9);
            ASSERT_NO_FATAL_FAILURE(test::expectClose(made.players[player].andUpperWins[game],
                                                      expected.players[player].andUpperWins[game], 1e-9));
        }
    }
}

TEST(Forecast, IsExactWhereFewGamesAreOpen)
{
    InventedPools pools{1};
    for (int round = 0; round < 150; ++round) {
        const std::vector<Bracket> picks = pools.office(1 + pools.number(12));
        const Bracket results = pools.withOpenAnywhere(pools.picked(), pools.number(8));
        ASSERT_NO_FATAL_FAILURE(expectExact({results, picks, pools.payoffs()})) << "round " << round;
    }
}

TEST(Forecast, IsExactOnDamagedBrackets)
{
    InventedPools pools{2};
    int counted = 0;
    for (int round = 0; round < 150; ++round) {
        std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        for (Bracket& bracket : picks)
            pools.damage(bracket, static_cast<unsigned>(pools.number(30)));
        Bracket results = pools.withOpenAnywhere(pools.picked(), pools.number(7));
        pools.damage(results, 4);
        if (pools.chance(30)) // of one region nothing is known: walkovers
            for (const Position team : teamsOfRegion(static_cast<int>(pools.number(4))))
                results.clear(team);
        const Contest contest{results, picks, pools.payoffs()};
        if (contest.games().size() > Forecast::kCountedGames)
            continue;
        ++counted;
        ASSERT_NO_FATAL_FAILURE(expectExact(contest)) << "round " << round;
    }
    EXPECT_GT(counted, 50);
}

TEST(Forecast, TakesNoSecondSampleWhereOneIsExact)
{
    InventedPools pools{3};
    Forecast made{{pools.withOpen(pools.picked(), 7), pools.office(5), kUsualPayoffs}, alikeChances()};
    EXPECT_TRUE(made.isExact());
    made.add(1000);
    made.add(1000);
    EXPECT_EQ(made.samples(), 1);
    EXPECT_EQ(made.standardError(0), 0);
    EXPECT_EQ(made.standardErrorGiven(0.5, 0.5), 0);
}

/// Every figure lies within five standard errors of the sum over all outcomes.
void expectWithinErrors(const Contest& contest, const UpperChance& upperChance)
{
    Forecast forecast{contest, upperChance};
    forecast.add(1500);
    const ChanceOutlook made = forecast.outlook();
    const ChanceOutlook expected = test::summedChances(contest, upperChance);
    for (std::size_t player = 0; player < contest.players(); ++player) {
        ASSERT_NEAR(made.players[player].all.share, expected.players[player].all.share,
                    5 * forecast.standardError(player) + 1e-9);
        for (std::size_t game = 0; game < contest.games().size(); ++game)
            for (const Side side : {Side::Upper, Side::Lower}) {
                const double upperWins = expected.upperWins[game];
                const FirstChances exact = expected.given(player, game, side);
                const double error =
                    forecast.standardErrorGiven(exact.share, side == Side::Upper ? upperWins : 1 - upperWins);
                ASSERT_NEAR(made.given(player, game, side).share, exact.share, 5 * error + 1e-9);
            }
    }
}

TEST(Forecast, AddsTheErrorsOfTheTwoSidesOfASwing)
{
    // Given: a share of 0.2 when the upper side wins, which it does in a quarter of 404 samples, else of 0.5.
    InventedPools pools{6};
    Forecast forecast{{test::startingField(), pools.office(1), kUsualPayoffs}, alikeChances()};
    forecast.add(404);
    ChanceOutlook made;
    made.upperWins = {0.25};
    made.players = {{{.share = 0.25 * 0.2 + 0.75 * 0.5}, {{.share = 0.25 * 0.2}}}};

    // 101 samples for the one, 303 for the other: sqrt(0.2 * 0.8 / 100) = 0.04 and sqrt(0.5 * 0.5 / 302).
    EXPECT_NEAR(forecast.standardErrorOfSwing(made, 0, 0), std::sqrt(0.0016 + 0.25 / 302), 1e-12);
    made.upperWins = {0.004};
    made.players = {{{.share = 0.5}, {{.share = 0.002}}}};
    EXPECT_GE(forecast.standardErrorOfSwing(made, 0, 0), 1) << "the upper side wins in 1.6 samples";
}

TEST(Forecast, IsWithinItsErrorsWhereverTheOpenGamesAre)
{
    InventedPools pools{4};
    for (int round = 0; round < 12; ++round) {
        const std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        const Bracket results = pools.withOpenAnywhere(pools.picked(), 8 + pools.number(4));
        ASSERT_NO_FATAL_FAILURE(expectWithinErrors({results, picks, pools.payoffs()}, alikeChances()));
    }
}

TEST(Forecast, IsWithinItsErrorsWithChancesOfAnyKind)
{
    InventedPools pools{5};
    for (int round = 0; round < 12; ++round) {
        const std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        const Contest contest{pools.withOpen(pools.picked(), 8 + pools.number(4)), picks, pools.payoffs()};
        ASSERT_NO_FATAL_FAILURE(expectWithinErrors(contest, test::someChance));
        ASSERT_NO_FATAL_FAILURE(expectWithinErrors(contest, pickedChances(contest)));
    }
}

TEST(Forecast, HasErrorsAsLargeAsItSays)
{
    // Given: how far forty forecasts with different seeds are from the truth, in standard errors.
    InventedPools pools{6};
    const Contest contest{pools.withOpen(pools.picked(), 15), pools.office(10), kUsualPayoffs};
    const ChanceOutlook expected = countChances(contest, alikeChances());
    double squares = 0;
    int figures = 0;
    for (std::uint64_t seed = 0; seed < 40; ++seed) {
        Forecast made{contest, alikeChances(), seed};
        made.add(400);
        for (std::size_t player = 0; player < contest.players(); ++player) {
            if (expected.players[player].all.share < 0.01)
                continue;
            const double off = made.outlook().players[player].all.share - expected.players[player].all.share;
            squares += std::pow(off / made.standardError(player), 2);
            ++figures;
        }
    }
    // Then: the mean square is about 1.
    ASSERT_GT(figures, 100);
    EXPECT_GT(squares / figures, 0.7);
    EXPECT_LT(squares / figures, 1.4);
}

/// The standard error of a share if whole outcomes were sampled.
double plainError(const FirstOutlook& exact, std::size_t player, double samples)
{
    const FirstPlaces& firsts = exact.players[player].all;
    const auto outcomes = static_cast<double>(exact.outcomes);
    const double mean = firsts.share() / outcomes;
    double squares = static_cast<double>(firsts.alone) / outcomes;
    for (const SharedFirsts& some : firsts.shared)
        squares += static_cast<double>(some.outcomes) / outcomes / std::pow(some.together, 2);
    return std::sqrt((squares - mean * mean) / samples);
}

TEST(Forecast, HasSmallerErrorsThanIfWholeOutcomesWereSampled)
{
    InventedPools pools{7};
    const Contest contest{pools.withOpen(pools.picked(), 18), pools.office(30), kUsualPayoffs};
    const FirstOutlook exact = countFirsts(contest);
    Forecast made{contest, alikeChances()};
    made.add(3000);
    for (std::size_t player = 0; player < contest.players(); ++player)
        if (exact.players[player].all.share() / static_cast<double>(exact.outcomes) > 0.05) {
            EXPECT_LT(made.standardError(player) / plainError(exact, player, 3000), 0.75) << "player " << player;
        }
}

TEST(Forecast, GrowsInSlicesToTheSameNumbers)
{
    InventedPools pools{8};
    const Contest contest{test::startingField(), pools.office(6), kUsualPayoffs};
    Forecast inSlices{contest, alikeChances()};
    inSlices.add(1);
    inSlices.add(0);
    inSlices.add(149);
    inSlices.add(50);
    EXPECT_EQ(inSlices.samples(), 200);
    expectSame(inSlices.outlook(), forecast(contest, 200));
}

TEST(Forecast, AgreesWithOneOfAnotherSeedWithinTheirErrors)
{
    InventedPools pools{9};
    const Contest contest{test::startingField(), pools.office(10), kUsualPayoffs};
    Forecast one{contest, alikeChances(), 1};
    Forecast other{contest, alikeChances(), 2};
    one.add(1000);
    other.add(1000);
    double sum = 0;
    bool allEqual = true;
    for (std::size_t player = 0; player < contest.players(); ++player) {
        const double share = one.outlook().players[player].all.share;
        const double otherShare = other.outlook().players[player].all.share;
        EXPECT_NEAR(share, otherShare, 5 * std::hypot(one.standardError(player), other.standardError(player)));
        allEqual = allEqual && share == otherShare;
        sum += share;
    }
    EXPECT_NEAR(sum, 1, 1e-9);
    EXPECT_FALSE(allEqual);
}

TEST(Forecast, PlaysAnEarlyGameByTheNumbersOfItsGenerator)
{
    // Given: eight open games, of which seven are counted. The eighth decides: its round is the only one that brings
    // points, one player picked the upper team there, the other one the lower.
    const Bracket results = InventedPools{14}.withOpen(test::everyUpperTeamWins(), 8);
    const Position early = *std::ranges::min_element(OpenGames{results}.games(), {}, roundOf);
    std::vector<Bracket> picks(2);
    for (std::size_t player = 0; player < 2; ++player)
        picks[player].put(early, results.at((*feeders(early))[player]));
    Payoffs payoffs{};
    payoffs[roundIndex(roundOf(early))] = 1;
    // When: the seed is the one that the generator has by default. It begins with 14514284786278117030 and
    // 4620546740167642908, of 2^64 that is 0.787 and 0.2505.
    const auto shareAfterTwo = [&](double upperWins) {
        Forecast made{{results, picks, payoffs}, [=](std::size_t, TeamNumber, TeamNumber) { return upperWins; }, 5489};
        made.add(2);
        return made.outlook().players[0].all.share;
    };
    // Then: the upper team wins when the number is less than its chance.
    EXPECT_NEAR(shareAfterTwo(0.25), 0, 1e-12);
    EXPECT_NEAR(shareAfterTwo(0.251), 0.5, 1e-12);
    EXPECT_NEAR(shareAfterTwo(0.786), 0.5, 1e-12);
    EXPECT_NEAR(shareAfterTwo(0.787), 1, 1e-12);
}

TEST(Forecast, BeginsWithTheNumberThatIsShown)
{
    const Contest contest{test::startingField(), InventedPools{11}.office(3), kUsualPayoffs};
    Forecast shown{contest, alikeChances(), kForecastSeed};
    Forecast usual{contest, alikeChances()};
    shown.add(100);
    usual.add(100);
    for (std::size_t player = 0; player < contest.players(); ++player)
        EXPECT_EQ(usual.outlook().players[player].all, shown.outlook().players[player].all);
}

TEST(Forecast, OfPermutedPlayersIsPermuted)
{
    InventedPools pools{10};
    std::vector<Bracket> picks = pools.office(9);
    const Contest contest{test::startingField(), picks, kUsualPayoffs};
    ChanceOutlook made = forecast(contest, 300);
    std::ranges::reverse(picks);
    std::ranges::reverse(made.players);
    expectSame(forecast({test::startingField(), picks, kUsualPayoffs}, 300), made);
}

TEST(Forecast, HalvesEverybodysShareWhenEveryPlayerIsThereTwice)
{
    InventedPools pools{11};
    std::vector<Bracket> picks = pools.office(9);
    const ChanceOutlook single = forecast({test::startingField(), picks, kUsualPayoffs}, 300);
    const std::vector<Bracket> copies = picks;
    picks.insert(picks.end(), copies.begin(), copies.end());
    const ChanceOutlook twice = forecast({test::startingField(), picks, kUsualPayoffs}, 300);
    for (std::size_t player = 0; player < picks.size(); ++player) {
        const FirstChances& before = single.players[player % copies.size()].all;
        EXPECT_NEAR(twice.players[player].all.share, before.share / 2, 1e-12);
        EXPECT_EQ(twice.players[player].all.alone, 0);
        EXPECT_NEAR(twice.players[player].all.together, before.alone + before.together, 1e-12);
    }
}

TEST(Forecast, OfOnePlayerIsCertain)
{
    InventedPools pools{12};
    const Contest contest{test::startingField(), pools.office(1), kUsualPayoffs};
    const ChanceOutlook made = forecast(contest, 50);
    EXPECT_NEAR(made.players[0].all.alone, 1, 1e-12);
    EXPECT_NEAR(made.given(0, 0, Side::Lower).share, 1, 1e-12);
    EXPECT_NEAR(made.given(0, 62, Side::Upper).share, 1, 1e-12);
}

TEST(Forecast, OfPlayersWithoutPicksIsATieOfAll)
{
    const std::vector<Bracket> picks(4);
    const ChanceOutlook made = forecast({test::startingField(), picks, kUsualPayoffs}, 20);
    for (const PlayerChances& player : made.players) {
        EXPECT_EQ(player.all.alone, 0);
        EXPECT_NEAR(player.all.together, 1, 1e-12);
        EXPECT_NEAR(player.all.share, 0.25, 1e-12);
    }
}

TEST(Forecast, WithoutPlayersIsEmpty)
{
    const ChanceOutlook made = forecast({test::startingField(), {}, kUsualPayoffs}, 20);
    EXPECT_TRUE(made.players.empty());
    EXPECT_EQ(made.upperWins, std::vector<double>(63));
}

TEST(Forecast, SaysHowLittleIsKnownBeforeItHasSamples)
{
    InventedPools pools{13};
    Forecast made{{test::startingField(), pools.office(3), kUsualPayoffs}, alikeChances()};
    EXPECT_FALSE(made.isExact());
    EXPECT_EQ(made.standardError(0), 1);
    EXPECT_EQ(made.standardErrorGiven(0.5, 0.5), 1);
    EXPECT_EQ(made.outlook().players[0].all, FirstChances{});
}

TEST(Forecast, DoesNotCallCertainWhatOnlyNeverCameUp)
{
    // Given: a player who picked nothing, and one whose picks all can come true. Only when all of them fail is the
    // first one first too; in a few samples that does not happen.
    const std::vector<Bracket> picks{Bracket{}, test::everyUpperTeamWins()};
    Forecast made{{test::startingField(), picks, kUsualPayoffs}, alikeChances()};
    made.add(100);
    ASSERT_EQ(made.outlook().players[0].all.share, 0);
    EXPECT_EQ(made.standardError(0), 0.01);
}

} // namespace
} // namespace tallyhoop
