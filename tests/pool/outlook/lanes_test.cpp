// tests/pool/outlook/lanes_test.cpp - the lanes of vectors against one lane after the other, on every kind of
// processor.
#include "pool/outlook/lanes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tallyhoop {
namespace {

using Points = std::int16_t;
constexpr std::size_t kVector = Lanes<Points>::kCount;

/// Some runners with random points, so few different ones that there are many ties.
struct RandomHeat {
    static constexpr std::size_t kLanes = 4 * kVector;
    static constexpr std::size_t kUsed = kLanes - 5;

    std::vector<std::vector<Points>> points;
    std::vector<std::vector<std::uint16_t>> alone;
    std::vector<Points> inUse = std::vector<Points>(kLanes);
    std::vector<std::uint16_t> weights = std::vector<std::uint16_t>(kLanes);
    Heat<Points, std::uint64_t> heat;

    RandomHeat(std::mt19937& random, std::size_t runners)
        : points(runners, std::vector<Points>(kLanes)), alone(runners, std::vector<std::uint16_t>(kLanes))
    {
        std::fill_n(inUse.begin(), kUsed, Points{-1});
        for (std::uint16_t& weight : weights)
            weight = static_cast<std::uint16_t>(random() % 100);
        heat.lanes = kLanes;
        heat.inUse = inUse.data();
        heat.weights = weights.data();
        heat.before = static_cast<std::uint16_t>(random() % 9 + 1);
        for (std::size_t i = 0; i < runners; ++i) {
            for (Points& each : points[i])
                each = static_cast<Points>(static_cast<int>(random() % 7) - 3);
            heat.runners.push_back({points[i].data(), static_cast<Points>(static_cast<int>(random() % 3) - 1),
                                    static_cast<Points>(random() % 4 == 0 ? 2 : 1), alone[i].data(), 0});
        }
    }

    int pointsOf(std::size_t runner, std::size_t lane) const
    {
        return points[runner][lane] + heat.runners[runner].before;
    }

    /// @returns how many players are first in a lane when the runner is; else 0
    std::size_t together(std::size_t runner, std::size_t lane) const
    {
        std::size_t players = 0;
        for (std::size_t other = 0; other < points.size(); ++other) {
            if (pointsOf(other, lane) > pointsOf(runner, lane))
                return 0;
            if (pointsOf(other, lane) == pointsOf(runner, lane))
                players += static_cast<std::size_t>(heat.runners[other].players);
        }
        return players;
    }

    /// @returns how many players are first in a lane according to the ties listed for the runner; 0 = none listed
    std::size_t listed(std::size_t runner, std::size_t lane) const
    {
        std::size_t players = 0;
        for (const Tie<Points>& tie : heat.ties)
            if (tie.runner == runner && tie.firstLane == lane / kVector * kVector && tie.lanes.at(lane % kVector) != 0)
                players += tie.players;
        return players;
    }
};

class LanesOnEveryProcessor : public testing::TestWithParam<void (*)(Heat<Points, std::uint64_t>&)>
{
};

TEST_P(LanesOnEveryProcessor, CountThoseWhoAreAloneAndListTheTies)
{
    std::mt19937 random{16};
    for (int round = 0; round < 200; ++round) {
        RandomHeat test{random, 1 + random() % 6};
        GetParam()(test.heat);
        for (std::size_t runner = 0; runner < test.points.size(); ++runner) {
            std::uint64_t sum = 0;
            for (std::size_t lane = 0; lane < RandomHeat::kLanes; ++lane) {
                const std::size_t together = lane < RandomHeat::kUsed ? test.together(runner, lane) : 0;
                ASSERT_EQ(test.alone[runner][lane], together == 1 ? test.heat.before : 0);
                ASSERT_EQ(test.listed(runner, lane), together > 1 ? together : 0);
                sum += together == 1 ? test.weights[lane] : 0U;
            }
            ASSERT_EQ(test.heat.runners[runner].sum, sum);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, LanesOnEveryProcessor,
                         testing::Values(&countLanes<Points, std::uint64_t>,
                                         &countLanesAnywhere<Points, std::uint64_t>));

TEST(KeepAlive, DropsThoseWhoCannotReachSomebodyAnyMore)
{
    // Given: the second is 3 behind the first and can gain 3; the third is 4 behind the first and can gain 3.
    std::vector<Points> limits(3 * kVector, 3);
    std::vector<Points> points(kVector, -100);
    points[0] = 10;
    points[1] = 7;
    points[2] = 6;
    std::vector<std::size_t> kept{9};
    keepAlive(limits, points, {0, 1, 2}, kept);
    EXPECT_EQ(kept, (std::vector<std::size_t>{0, 1}));
    // Then: somebody who has dropped out earlier is not asked again, but still counts as a rival.
    keepAlive(limits, points, {1, 2}, kept);
    EXPECT_EQ(kept, (std::vector<std::size_t>{1}));
}

} // namespace
} // namespace tallyhoop
