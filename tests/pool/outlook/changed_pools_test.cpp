// tests/pool/outlook/changed_pools_test.cpp - what must become of the figures when a pool is changed, on odd pools.
#include "pool/outlook/close_chances.h"
#include "pool/outlook/first_count.h"
#include "pool/outlook/odd_pools.h"
#include "pool/outlook/prospects.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <numeric>

namespace tallyhoop {
namespace {

using test::InventedPools;
using test::OddPool;

/// Calls with 150 pools of one player or more, with 12 open games at most.
void forManyPools(unsigned seed, const std::function<void(const OddPool&, InventedPools&)>& check)
{
    InventedPools pools{seed};
    for (int made = 0; made < 150;) {
        const OddPool pool = test::oddPool(pools, pools.number(24), 1 + pools.number(12), made % 4 == 0);
        if (pool.contest().games().size() > 12)
            continue;
        ++made;
        check(pool, pools);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << "pool " << made;
    }
}

/// Goes by the names of the teams, which stay when other games are open.
UpperChance bySeed(const Contest& contest)
{
    Field field = defaultField();
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "Team " + std::to_string(index(row) + 1);
    return seedChances(contest.games(), field);
}

TEST(ChangedPools, WithPlayersInAnotherOrderHaveTheFiguresInThatOrder)
{
    forManyPools(1, [](const OddPool& pool, InventedPools& pools) {
        // Given: the player at i was the one at order[i].
        std::vector<std::size_t> order(pool.picks.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        for (std::size_t i = order.size(); i > 1; --i)
            std::swap(order[i - 1], order[pools.number(i)]);
        const Contest before = pool.contest();
        const Contest after = before.among(order);
        const FirstOutlook firsts = countFirsts(before);
        const FirstOutlook firstsAfter = countFirsts(after);
        const ChanceOutlook chances = countChances(before, bySeed(before));
        const ChanceOutlook chancesAfter = countChances(after, bySeed(after));
        const std::vector<PlayerPlaces> places = countPlaces(before);
        const std::vector<PlayerPlaces> placesAfter = countPlaces(after);
        for (std::size_t i = 0; i < order.size(); ++i) {
            ASSERT_EQ(firstsAfter.players[i].all, firsts.players[order[i]].all);
            ASSERT_EQ(firstsAfter.players[i].ifUpperWins, firsts.players[order[i]].ifUpperWins);
            ASSERT_EQ(placesAfter[i], places[order[i]]);
            ASSERT_NO_FATAL_FAILURE(test::expectClose(chancesAfter.players[i].all, chances.players[order[i]].all));
        }
    });
}

/// @returns the first places once the player, who is first in all of these outcomes, is there twice
FirstPlaces sharedWithACopy(const FirstPlaces& before)
{
    FirstPlaces after;
    after.add(2, before.alone);
    for (const auto& [together, outcomes] : before.shared)
        after.add(together + 1, outcomes);
    return after;
}

TEST(ChangedPools, WithACopyOfAPlayerLetTheTwoShareWhatWasTheOnes)
{
    int alone = 0;
    forManyPools(2, [&](const OddPool& pool, InventedPools& pools) {
        const std::size_t player = pools.number(pool.picks.size());
        const FirstOutlook before = countFirsts(pool.contest());
        OddPool copied = pool;
        copied.picks.push_back(pool.picks[player]);
        const FirstOutlook after = countFirsts(copied.contest());
        const FirstPlaces& own = before.players[player].all;
        const FirstPlaces& now = after.players[player].all;
        ASSERT_EQ(now, sharedWithACopy(own));
        ASSERT_EQ(after.players.back().all, now);
        // Then: each of the two has half of what was the one's alone, and everybody else what he had before against
        // the one, or less where the two are first with him.
        if (own.shared.empty()) {
            ASSERT_EQ(2 * now.share(), own.share());
            alone += own.alone > 0;
        }
        for (std::size_t other = 0; other < pool.picks.size(); ++other) {
            ASSERT_EQ(after.players[other].all.outcomes(), before.players[other].all.outcomes());
            ASSERT_LE(after.players[other].all.share(), before.players[other].all.share());
        }
    });
    EXPECT_GE(alone, 10);
}

/// @returns the open games whose two teams are known
std::vector<std::size_t> nextGames(const OpenGames& games)
{
    std::vector<std::size_t> found;
    for (std::size_t game = 0; game < games.size(); ++game) {
        const auto [upper, lower] = *feeders(games.games()[game]);
        if (!games.known().isEmpty(upper) && !games.known().isEmpty(lower))
            found.push_back(game);
    }
    return found;
}

/// Enters that a side wins a game, and compares with what was foretold for this.
std::vector<PlayerPlaces> enter(const OddPool& pool, std::size_t game, Side side, const FirstOutlook& firsts,
                                const ChanceOutlook& chances)
{
    const Contest contest = pool.contest();
    const auto [upper, lower] = *feeders(contest.games().games()[game]);
    OddPool entered = pool;
    entered.results = contest.games().known();
    entered.results.copy(side == Side::Upper ? upper : lower, contest.games().games()[game]);
    const Contest after = entered.contest();
    EXPECT_EQ(2 * after.games().outcomes(), contest.games().outcomes());
    const FirstOutlook firstsAfter = countFirsts(after);
    const ChanceOutlook chancesAfter = countChances(after, bySeed(after));
    for (std::size_t player = 0; player < pool.picks.size(); ++player) {
        EXPECT_EQ(firstsAfter.players[player].all, firsts.players[player].given(game, side));
        test::expectClose(chancesAfter.players[player].all, chances.given(player, game, side));
    }
    return countPlaces(after);
}

TEST(ChangedPools, WithAResultEnteredHaveTheFiguresGivenThatResult)
{
    int entered = 0;
    forManyPools(3, [&](const OddPool& pool, InventedPools& pools) {
        const Contest contest = pool.contest();
        const std::vector<std::size_t> next = nextGames(contest.games());
        if (next.empty())
            return;
        ++entered;
        const std::size_t game = next[pools.number(next.size())];
        const FirstOutlook firsts = countFirsts(contest);
        const ChanceOutlook chances = countChances(contest, bySeed(contest));
        const std::vector<PlayerPlaces> all = countPlaces(contest);
        const std::vector<PlayerPlaces> ifUpper = enter(pool, game, Side::Upper, firsts, chances);
        const std::vector<PlayerPlaces> ifLower = enter(pool, game, Side::Lower, firsts, chances);
        for (std::size_t player = 0; player < all.size(); ++player)
            for (std::size_t place = 0; place < all.size(); ++place)
                ASSERT_EQ(ifUpper[player].outcomes[place] + ifLower[player].outcomes[place],
                          all[player].outcomes[place]);
        ASSERT_FALSE(testing::Test::HasFailure());
    });
    EXPECT_GE(entered, 75);
}

TEST(ChangedPools, WithOneHalfForEveryGameHaveTheSameFiguresAsWithoutChances)
{
    forManyPools(4, [](const OddPool& pool, InventedPools&) {
        const FirstOutlook firsts = countFirsts(pool.contest());
        const ChanceOutlook chances = countChances(pool.contest(), alikeChances());
        const auto outcomes = static_cast<double>(firsts.outcomes);
        for (std::size_t player = 0; player < pool.picks.size(); ++player) {
            const FirstPlaces& own = firsts.players[player].all;
            // Halves of halves are exact; only parts of a shared first place are rounded.
            ASSERT_EQ(chances.players[player].all.alone * outcomes, static_cast<double>(own.alone));
            ASSERT_NEAR(chances.players[player].all.together * outcomes,
                        static_cast<double>(own.outcomes() - own.alone), 1e-9 * outcomes);
            ASSERT_NEAR(chances.players[player].all.share * outcomes, own.share(), 1e-9 * outcomes);
            for (std::size_t game = 0; game < chances.upperWins.size(); ++game) {
                ASSERT_NEAR(chances.upperWins[game], 0.5, 1e-9);
                ASSERT_NEAR(chances.given(player, game, Side::Lower).share * outcomes / 2,
                            firsts.players[player].given(game, Side::Lower).share(), 1e-9 * outcomes);
            }
        }
    });
}

} // namespace
} // namespace tallyhoop
