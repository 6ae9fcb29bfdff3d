// tests/pool/outlook/replay_2000_test.cpp - the tournament of 2000, game by game: what is once certain stays so.
#include "pool/outlook/first_count.h"
#include "pool/outlook/invented_pools.h"
#include "pool/outlook/prospects.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

/// The winners in the order of their games, as numbers of the teams in the field: 17 is Michigan St., 37 Florida.
constexpr std::array<int, kGames> kWinners{1,  3,  5,  7,  9,  11, 14, 15, 3,  7,  9,  14, 3,  9,  3,  // West
                                           17, 19, 21, 23, 25, 27, 29, 31, 17, 23, 25, 31, 17, 31, 17, // Midwest
                                           33, 35, 37, 39, 42, 43, 46, 47, 33, 37, 43, 46, 37, 43, 37, // East
                                           49, 51, 53, 55, 57, 59, 61, 63, 51, 55, 57, 61, 51, 61, 51, // South
                                           17, 37, 17};

Bracket resultsOf2000()
{
    Bracket results = test::startingField();
    for (const Position game : gamePositions())
        results.put(game, "Team " + std::to_string(kWinners.at(static_cast<std::size_t>(index(*gameOf(game))))));
    return results;
}

/// Holds what has been found so far against what is found now.
class Record
{
public:
    explicit Record(std::size_t players) : m_last(players, Prospect::Open) {}

    void add(const std::vector<PlayerProspect>& prospects, std::size_t open)
    {
        for (std::size_t player = 0; player < prospects.size(); ++player) {
            const Prospect now = prospects[player].prospect;
            Prospect& last = m_last[player];
            ASSERT_FALSE(last == Prospect::Out && now != Prospect::Out && now != Prospect::Open)
                << "player " << player << " is back with " << open << " open";
            ASSERT_FALSE(last == Prospect::Clinched && now != Prospect::Clinched)
                << "player " << player << " has lost with " << open << " open";
            if (now != Prospect::Open)
                last = now;
        }
    }

    std::size_t count(Prospect prospect) const
    {
        return static_cast<std::size_t>(std::ranges::count(m_last, prospect));
    }

private:
    std::vector<Prospect> m_last;
};

TEST(ReplayOf2000, NeverTakesBackAVerdictAndEndsWithTheWinner)
{
    test::InventedPools pools{2000};
    const std::vector<Bracket> picks = pools.office(100);
    Record record{picks.size()};
    std::vector<FirstOutlook> counted;
    for (const std::size_t open : {63, 47, 31, 23, 15, 12, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}) {
        const Contest contest{pools.withOpen(resultsOf2000(), open), picks, test::kUsualPayoffs};
        ASSERT_EQ(contest.games().size(), open);
        std::vector<PlayerProspect> prospects = findProspects(contest);
        ASSERT_NO_FATAL_FAILURE(record.add(prospects, open));
        if (open > 12)
            continue;
        counted.push_back(countFirsts(contest));
        addCount(prospects, counted.back());
        ASSERT_NO_FATAL_FAILURE(record.add(prospects, open));
        ASSERT_EQ(std::ranges::count(prospects, Prospect::Open, &PlayerProspect::prospect), 0);
    }
    // At the end those with the most points have clinched, and had a chance all along.
    const std::vector<PlayerFirsts>& ended = counted.back().players;
    EXPECT_EQ(record.count(Prospect::Alive), 0u);
    std::size_t winners = 0;
    for (std::size_t player = 0; player < picks.size(); ++player) {
        if (ended[player].all.outcomes() == 0)
            continue;
        ++winners;
        for (const FirstOutlook& before : counted)
            EXPECT_GT(before.players[player].all.outcomes(), 0u);
    }
    EXPECT_EQ(record.count(Prospect::Clinched), winners);
    EXPECT_GE(winners, 1u);
}

} // namespace
} // namespace tallyhoop
