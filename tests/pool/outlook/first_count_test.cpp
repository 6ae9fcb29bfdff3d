// tests/pool/outlook/first_count_test.cpp - the count against every outcome scored, on pools of every kind.
#include "pool/outlook/first_count.h"

#include "pool/outlook/brute_force.h"
#include "pool/outlook/counted_runners.h"
#include "pool/outlook/odd_pools.h"
#include "pool/outlook/open_regions.h"
#include "pool/outlook/runners.h"
#include "pool/outlook/without_avx2.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::InventedPools;

/// A witness may be any outcome in which the player is first.
void expectWitness(const PlayerFirsts& firsts, std::size_t player, const OpenGames& games,
                   const std::vector<Bracket>& picks, const Payoffs& payoffs)
{
    ASSERT_EQ(firsts.witness.has_value(), firsts.all.outcomes() > 0);
    if (!firsts.witness)
        return;
    ASSERT_LT(*firsts.witness, games.outcomes());
    const Bracket results = games.outcome(*firsts.witness);
    const std::int32_t own = score(picks[player], results, payoffs).points;
    for (const Bracket& other : picks)
        ASSERT_LE(score(other, results, payoffs).points, own);
}

void expectCountedRight(const Bracket& results, const std::vector<Bracket>& picks, const Payoffs& payoffs)
{
    const Contest contest{results, picks, payoffs};
    const FirstOutlook outlook = countFirsts(contest);
    const FirstOutlook expected = test::countByScoring(contest.games(), picks, payoffs).firsts;
    ASSERT_EQ(outlook.outcomes, expected.outcomes);
    ASSERT_EQ(outlook.players.size(), picks.size());
    for (std::size_t player = 0; player < picks.size(); ++player) {
        ASSERT_EQ(outlook.players[player].all, expected.players[player].all) << "player " << player;
        ASSERT_EQ(outlook.players[player].ifUpperWins, expected.players[player].ifUpperWins) << "player " << player;
        ASSERT_NO_FATAL_FAILURE(expectWitness(outlook.players[player], player, contest.games(), picks, payoffs));
    }
}

TEST(FirstCount, AgreesWithScoringOnPoolsAsOfficesPickThem)
{
    InventedPools pools{15};
    for (int round = 0; round < 150; ++round) {
        const std::vector<Bracket> picks = pools.office(pools.number(12));
        const Bracket results = pools.withOpen(pools.picked(), pools.number(9));
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, AgreesWithScoringWhereverTheOpenGamesAre)
{
    InventedPools pools{16};
    for (int round = 0; round < 150; ++round) {
        std::vector<Bracket> picks = pools.office(pools.number(8));
        for (Bracket& bracket : picks)
            if (pools.chance(30))
                bracket = pools.tossed();
        const Bracket results = pools.withOpenAnywhere(pools.tossed(), pools.number(11));
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, AgreesWithScoringOnDamagedBrackets)
{
    InventedPools pools{17};
    for (int round = 0; round < 150; ++round) {
        std::vector<Bracket> picks = pools.office(1 + pools.number(8));
        for (Bracket& bracket : picks)
            pools.damage(bracket, static_cast<unsigned>(pools.number(30)));
        Bracket results = pools.withOpenAnywhere(pools.picked(), pools.number(9));
        pools.damage(results, 5);
        if (OpenGames{results}.size() > 11)
            continue;
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, HasNobodyWithoutPlayersAndOnePlayerInEveryOutcome)
{
    const Contest nobody{test::InventedPools{1}.withOpen(test::InventedPools{2}.picked(), 15), {}, test::kUsualPayoffs};
    EXPECT_EQ(countFirsts(nobody).outcomes, 32768u);
    EXPECT_TRUE(countFirsts(nobody).players.empty());

    InventedPools pools{3};
    const std::vector<Bracket> one{pools.picked()};
    const FirstOutlook outlook = countFirsts({pools.withOpen(pools.picked(), 15), one, test::kUsualPayoffs});
    EXPECT_EQ(outlook.players[0].all, (FirstPlaces{32768, {}}));
    EXPECT_EQ(outlook.players[0].ifUpperWins[7], (FirstPlaces{16384, {}}));
    EXPECT_EQ(outlook.players[0].given(7, Side::Lower), (FirstPlaces{16384, {}}));
}

TEST(FirstCount, AddsUpToTheNumberOfOutcomes)
{
    InventedPools pools{18};
    for (const std::size_t open : {13, 18, 20}) {
        const FirstOutlook outlook =
            countFirsts({pools.withOpen(pools.picked(), open), pools.office(40), test::kUsualPayoffs});
        EXPECT_EQ(test::sumOfShares(outlook), std::uint64_t{1} << open);
    }
}

TEST(FirstCount, FollowsThePlayersWhenTheyChangePlaces)
{
    InventedPools pools{19};
    const Bracket results = pools.withOpen(pools.picked(), 15);
    std::vector<Bracket> picks = pools.office(20);
    const FirstOutlook outlook = countFirsts({results, picks, test::kUsualPayoffs});
    std::ranges::reverse(picks);
    const FirstOutlook reversed = countFirsts({results, picks, test::kUsualPayoffs});
    for (std::size_t player = 0; player < picks.size(); ++player) {
        EXPECT_EQ(outlook.players[player].all, reversed.players[19 - player].all);
        EXPECT_EQ(outlook.players[player].ifUpperWins, reversed.players[19 - player].ifUpperWins);
    }
}

TEST(FirstCount, GivesAPlayerAndHisCopyHalfEach)
{
    InventedPools pools{20};
    const Bracket results = pools.withOpen(pools.picked(), 15);
    std::vector<Bracket> picks = pools.office(12);
    const FirstOutlook outlook = countFirsts({results, picks, test::kUsualPayoffs});
    const auto most =
        std::ranges::max_element(outlook.players, {}, [](const PlayerFirsts& player) { return player.all.alone; });
    const auto player = static_cast<std::size_t>(most - outlook.players.begin());
    ASSERT_GT(most->all.alone, 0u);
    picks.push_back(picks[player]);
    const FirstOutlook copied = countFirsts({results, picks, test::kUsualPayoffs});
    // What was his alone is now shared by two; what he shared with k - 1 is shared by k + 1.
    const FirstPlaces& now = copied.players[player].all;
    EXPECT_EQ(now.alone, 0u);
    std::vector<SharedFirsts> shared{{2, most->all.alone}};
    for (const auto& [together, outcomes] : most->all.shared)
        shared.push_back({together + 1, outcomes});
    EXPECT_EQ(now.shared, shared);
    EXPECT_EQ(copied.players.back().all, now);
}

TEST(FirstCount, LeavesTheConditionalFiguresWhenAResultIsEntered)
{
    InventedPools pools{21};
    const std::vector<Bracket> picks = pools.office(15);
    Bracket results = pools.withOpen(pools.picked(), 14);
    const Contest contest{results, picks, test::kUsualPayoffs};
    const FirstOutlook outlook = countFirsts(contest);
    // Game 0 is one whose two teams are known.
    const Position game = contest.games().games()[0];
    for (const Side side : {Side::Upper, Side::Lower}) {
        results.copy((*feeders(game))[side == Side::Upper ? 0 : 1], game);
        const FirstOutlook entered = countFirsts({results, picks, test::kUsualPayoffs});
        for (std::size_t player = 0; player < picks.size(); ++player)
            EXPECT_EQ(outlook.players[player].given(0, side), entered.players[player].all);
    }
}

TEST(FirstCount, CanBeStoppedAndTellsHowFarItIs)
{
    InventedPools pools{22};
    FirstCount count{Contest{pools.withOpen(pools.picked(), 15), pools.office(9), test::kUsualPayoffs}};
    EXPECT_EQ(count.fraction(), 0);
    double last = 0;
    while (!count.isDone()) {
        count.advance();
        EXPECT_GT(count.fraction(), last);
        last = count.fraction();
    }
    EXPECT_EQ(last, 1);
    count.advance(); // nothing
    EXPECT_EQ(count.outlook().outcomes, 32768u);
}

TEST(FirstCount, KeepsOnlyTheTiesThatComeTrue)
{
    FirstPlaces places;
    places.add(10'000, 5);
    places.add(3, 4);
    places.add(1, 2);
    places.add(2, 0);
    places.add(10'000, 1);
    EXPECT_EQ(places, (FirstPlaces{2, {{3, 4}, {10'000, 6}}}));
    EXPECT_EQ(places.outcomes(), 12u);
    EXPECT_DOUBLE_EQ(places.share(), 2 + 4.0 / 3 + 6.0 / 10'000);
    EXPECT_EQ(without(places, {1, {{3, 4}, {10'000, 2}}}), (FirstPlaces{1, {{10'000, 4}}}));
}

/// Two who have picked different champions, before the final.
Contest twoBeforeTheFinal(const Payoffs& payoffs)
{
    const Bracket all = test::everyUpperTeamWins();
    Bracket other = all;
    other.copy(kSemifinalB, kChampion);
    return {test::without(all, 126, 126), std::vector{all, other}, payoffs};
}

TEST(FirstCount, IsNotMadeWhereItsTablesAreTooLarge)
{
    // Given: two against two, for each of the teams that win the four regions and for their sum, 2 bytes each.
    const Contest contest = twoBeforeTheFinal(test::kUsualPayoffs);
    EXPECT_FALSE((FirstCount{contest, goOn, 2 * 2 * 5 * 2}.isTooLarge()));
    const FirstCount tooLarge{contest, goOn, 2 * 2 * 5 * 2 - 1};
    EXPECT_TRUE(tooLarge.isTooLarge());
    EXPECT_TRUE(tooLarge.isDone());
    EXPECT_TRUE((ChanceCount{contest, alikeChances(), goOn, 2 * 2 * 5 * 2 - 1}.isTooLarge()));
    // Larger points take 4 bytes.
    const Contest high = twoBeforeTheFinal({1000, 1000, 1000, 1000, 1000, 1000});
    EXPECT_FALSE((FirstCount{high, goOn, 2 * 2 * 5 * 4}.isTooLarge()));
    EXPECT_TRUE((FirstCount{high, goOn, 2 * 2 * 5 * 4 - 1}.isTooLarge()));
}

TEST(FirstCount, AgreesWithScoringWithoutAvx2)
{
    const test::WithoutAvx2 plain;
    InventedPools pools{25};
    for (int round = 0; round < 20; ++round) {
        const std::vector<Bracket> picks = pools.office(6 + pools.number(12));
        const Bracket results = pools.withOpen(pools.picked(), 3 + pools.number(7));
        ASSERT_NO_FATAL_FAILURE(expectCountedRight(results, picks, pools.payoffs())) << "round " << round;
    }
}

TEST(FirstCount, CountsMorePlayersTogetherThanSixteenBitsHold)
{
    // Given: two games are open; each half of the players is right in one of them when its upper team wins.
    constexpr std::size_t kHalf = 20'000;
    Bracket results = test::everyUpperTeamWins();
    std::vector<Bracket> picks;
    for (const Position game : {gamesOfRegion(0)[1], gamesOfRegion(0)[3]}) {
        Bracket half;
        half.put(game, results.at(game));
        picks.insert(picks.end(), kHalf, half);
        results.clear(game);
    }
    // When:
    CountedRunners<std::uint64_t> count{{results, picks, test::kUsualPayoffs}, {}, goOn, kMostCountBytes};
    while (!count.isDone())
        count.advance();
    // Then: in two outcomes all are first, in one the half.
    std::size_t told = 0;
    count.forEachPlayer([&](std::size_t, std::size_t runner, std::size_t, const auto& tree) {
        for (const auto& counted : tree.counts())
            ASSERT_EQ(counted.all[runner], counted.together == 2 * kHalf ? 2u : counted.together == kHalf ? 1u : 0u);
        ++told;
    });
    EXPECT_EQ(told, 2 * kHalf);
}

TEST(FirstCount, TakesManySlicesAlsoWhenAllRegionWinnersAreKnown)
{
    // Given: everybody differs in two regions only, of which no more than the winners is known.
    InventedPools pools{27};
    const Bracket results = pools.picked();
    FirstCount count{
        {test::withOpenRegions(results, 2), test::differingInRegions(pools, results, 2, 64), test::kUsualPayoffs}};
    double last = 0;
    double mostAtOnce = 0;
    while (!count.isDone()) {
        count.advance();
        mostAtOnce = std::max(mostAtOnce, count.fraction() - last);
        last = count.fraction();
    }
    EXPECT_LT(mostAtOnce, 0.7);
    EXPECT_EQ(test::sumOfShares(count.outlook()), std::uint64_t{1} << 22);
}

TEST(FirstCount, IsOfNoUseAfterItWasStoppedWhileItWasPrepared)
{
    InventedPools pools{22};
    const Contest contest{pools.withOpen(pools.picked(), 15), pools.office(9), test::kUsualPayoffs};
    int steps = 0;
    const FirstCount whole{contest, [&] { return ++steps > 0; }};
    EXPECT_FALSE(whole.isDone());
    const int last = steps;
    for (int stop = 1; stop <= last; ++stop) {
        steps = 0;
        EXPECT_TRUE((FirstCount{contest, [&] { return ++steps < stop; }}.isDone())) << "stopped at step " << stop;
    }
}

TEST(Runners, AreNotComparedFurtherAfterAStop)
{
    InventedPools pools{22};
    const Contest contest{pools.withOpen(pools.picked(), 22), pools.office(40), test::kUsualPayoffs};
    int steps = 0;
    // A dozen steps for those with the most points, then one for each who is left.
    EXPECT_LE(runnersOf(contest, [&] { return ++steps < 14; }).players.size(), 2u);
    EXPECT_EQ(steps, 14);
}

} // namespace
} // namespace tallyhoop
