// tests/pool/outlook/merged_outcomes_test.cpp - outcomes by the million that make no difference, counted as one:
// against a plain split into regions.
#include "pool/outlook/first_count.h"
#include "pool/outlook/open_regions.h"
#include "pool/scoring.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace tallyhoop {
namespace {

using test::InventedPools;

/// How many outcomes of one region bring the players the same points.
struct Alike {
    std::uint64_t outcomes = 0;
    std::map<Position, std::uint64_t> ifUpperWins; ///< by open game
};
using AlikeByPoints = std::map<std::vector<std::int32_t>, Alike>;

AlikeByPoints splitRegion(const Contest& contest, int region)
{
    const OpenGames& games = contest.games();
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < games.size(); ++i)
        if (std::ranges::count(gamesOfRegion(region), games.games()[i]) > 0)
            open.push_back(i);
    AlikeByPoints split;
    for (std::uint64_t number = 0; number < std::uint64_t{1} << open.size(); ++number) {
        OutcomeNumber outcome = 0;
        for (std::size_t i = 0; i < open.size(); ++i)
            outcome |= (number >> i & 1) << open[i];
        const ByPosition<TeamNumber> teams = games.outcomeNumbers(outcome);
        std::vector<std::int32_t> points;
        for (std::size_t player = 0; player < contest.players(); ++player)
            points.push_back(contest.points(player, teams, gamesOfRegion(region)));
        Alike& alike = split[points];
        ++alike.outcomes;
        for (const std::size_t game : open)
            if (sideOf(outcome, game) == Side::Upper)
                ++alike.ifUpperWins[games.games()[game]];
    }
    return split;
}

/// @pre no game is open but in the first three regions
class PlainSplit
{
public:
    explicit PlainSplit(const Contest& contest)
        : m_contest{contest}, m_firsts(contest.players(), PlayerFirsts{{}, {}, std::nullopt})
    {
        for (PlayerFirsts& player : m_firsts)
            player.ifUpperWins.resize(contest.games().size());
        std::vector<std::int32_t> decided;
        std::vector<Position> elsewhere{gamesOfRegion(3).begin(), gamesOfRegion(3).end()};
        elsewhere.insert(elsewhere.end(), finalGames().begin(), finalGames().end());
        for (std::size_t player = 0; player < contest.players(); ++player)
            decided.push_back(contest.points(player, contest.games().known().numbers(), elsewhere));
        std::array<AlikeByPoints, 3> regions;
        for (int region = 0; region < 3; ++region)
            regions.at(static_cast<std::size_t>(region)) = splitRegion(contest, region);
        for (const auto& first : regions[0])
            for (const auto& second : regions[1])
                for (const auto& third : regions[2])
                    add(decided, {&first, &second, &third});
    }

    const std::vector<PlayerFirsts>& firsts() const { return m_firsts; }

private:
    void add(std::vector<std::int32_t> points, const std::array<const AlikeByPoints::value_type*, 3>& regions)
    {
        std::uint64_t outcomes = 1;
        for (const auto* region : regions) {
            outcomes *= region->second.outcomes;
            for (std::size_t player = 0; player < points.size(); ++player)
                points[player] += region->first[player];
        }
        const std::int32_t most = std::ranges::max(points);
        const auto together = static_cast<std::size_t>(std::ranges::count(points, most));
        for (std::size_t player = 0; player < points.size(); ++player)
            if (points[player] == most)
                addFirst(m_firsts[player], together, outcomes, regions);
    }

    void addFirst(PlayerFirsts& firsts, std::size_t together, std::uint64_t outcomes,
                  const std::array<const AlikeByPoints::value_type*, 3>& regions) const
    {
        firsts.all.add(together, outcomes);
        for (std::size_t game = 0; game < m_contest.games().size(); ++game)
            for (const auto* region : regions)
                if (const auto found = region->second.ifUpperWins.find(m_contest.games().games()[game]);
                    found != region->second.ifUpperWins.end())
                    firsts.ifUpperWins[game].add(together, outcomes / region->second.outcomes * found->second);
    }

    const Contest& m_contest;
    std::vector<PlayerFirsts> m_firsts;
};

/// Brackets with so few picks that few outcomes differ from each other.
std::vector<Bracket> fewPicks(InventedPools& pools, std::size_t players)
{
    std::vector<Bracket> picks(players);
    for (Bracket& bracket : picks) {
        const Bracket all = pools.tossed();
        for (int region = 0; region < 3; ++region)
            for (int pick = 0; pick < 2; ++pick) {
                const Position game = gamesOfRegion(region)[pools.number(12)];
                bracket.put(game, all.at(game));
            }
    }
    return picks;
}

TEST(MergedOutcomes, AreCountedAsAPlainSplitCountsThem)
{
    InventedPools pools{31};
    for (int round = 0; round < 12; ++round) {
        const Bracket results = pools.tossed();
        const Contest contest{test::withOpenRegions(results, 3), fewPicks(pools, 2 + pools.number(3)),
                              round % 2 == 0 ? test::kUsualPayoffs : Payoffs{1, 1, 1, 1, 1, 1}};
        ASSERT_EQ(contest.games().size(), 33u);
        const FirstOutlook counted = countFirsts(contest);
        const PlainSplit split{contest};
        for (std::size_t player = 0; player < contest.players(); ++player) {
            ASSERT_EQ(counted.players[player].all, split.firsts()[player].all) << "round " << round;
            ASSERT_EQ(counted.players[player].ifUpperWins, split.firsts()[player].ifUpperWins) << "round " << round;
        }
    }
}

} // namespace
} // namespace tallyhoop
