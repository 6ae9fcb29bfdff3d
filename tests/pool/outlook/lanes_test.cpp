// tests/pool/outlook/lanes_test.cpp - the lanes of vectors against one lane after the other, on every kind of
// processor.
#include "pool/outlook/lanes.h"

#include "pool/outlook/without_avx2.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace tallyhoop {
namespace {

/// Some runners with random points, so few different ones that there are many ties.
template <class Points, class Number>
struct RandomHeat {
    using Weight = LaneWeight<Points, Number>;
    static constexpr std::size_t kVector = Lanes<Points>::kCount;
    static constexpr std::size_t kLanes = 4 * kVector;
    static constexpr std::size_t kUsed = kLanes - 5;

    std::vector<std::vector<Points>> points;
    std::vector<std::vector<Weight>> alone;
    std::vector<Points> inUse = std::vector<Points>(kLanes);
    std::vector<Weight> weights = std::vector<Weight>(kLanes);
    Heat<Points, Number> heat;

    RandomHeat(std::mt19937& random, std::size_t runners)
        : points(runners, std::vector<Points>(kLanes)), alone(runners, std::vector<Weight>(kLanes))
    {
        std::fill_n(inUse.begin(), kUsed, Points{-1});
        for (Weight& weight : weights)
            weight = static_cast<Weight>(random() % 100);
        heat.lanes = kLanes;
        heat.inUse = inUse.data();
        heat.weights = weights.data();
        heat.before = static_cast<Weight>(random() % 9 + 1);
        for (std::size_t i = 0; i < runners; ++i) {
            for (Points& each : points[i])
                each = static_cast<Points>(static_cast<int>(random() % 7) - 3);
            heat.runners.push_back({points[i].data(), static_cast<Points>(static_cast<int>(random() % 3) - 1),
                                    static_cast<Points>(random() % 4 == 0 ? 2 : 1), alone[i].data(), Number{}});
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

template <class Points, class Number>
void expectCounted()
{
    using Test = RandomHeat<Points, Number>;
    std::mt19937 random{16};
    for (int round = 0; round < 100; ++round) {
        Test test{random, 1 + random() % 6};
        countLanes(test.heat);
        for (std::size_t runner = 0; runner < test.points.size(); ++runner) {
            Number sum{};
            for (std::size_t lane = 0; lane < Test::kLanes; ++lane) {
                const std::size_t together = lane < Test::kUsed ? test.together(runner, lane) : 0;
                ASSERT_EQ(test.alone[runner][lane], together == 1 ? test.heat.before : 0);
                ASSERT_EQ(test.listed(runner, lane), together > 1 ? together : 0);
                sum += together == 1 ? static_cast<Number>(test.weights[lane]) : Number{};
            }
            ASSERT_EQ(test.heat.runners[runner].sum, sum);
        }
    }
}

/// All weights are small whole numbers, so that also chances are added up without rounding.
template <class Points, class Number>
void expectCountedOnEveryProcessor()
{
    ASSERT_NO_FATAL_FAILURE((expectCounted<Points, Number>()));
    const test::WithoutAvx2 plain;
    ASSERT_NO_FATAL_FAILURE((expectCounted<Points, Number>()));
}

TEST(LanesOnEveryProcessor, CountThoseWhoAreAloneAndListTheTies)
{
    expectCountedOnEveryProcessor<std::int16_t, std::uint64_t>();
    expectCountedOnEveryProcessor<std::int32_t, std::uint64_t>();
}

TEST(LanesOnEveryProcessor, AddUpChancesAsWell)
{
    expectCountedOnEveryProcessor<std::int16_t, double>();
    expectCountedOnEveryProcessor<std::int32_t, double>();
}

void expectDropped()
{
    using Points = std::int16_t;
    constexpr std::size_t kVector = Lanes<Points>::kCount;
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

TEST(KeepAlive, DropsThoseWhoCannotReachSomebodyAnyMoreOnEveryProcessor)
{
    expectDropped();
    const test::WithoutAvx2 plain;
    expectDropped();
}

TEST(UseAvx2, IsTakenBackWhenNobodyDoesWithout)
{
    const bool had = useAvx2(true);
    {
        const test::WithoutAvx2 plain;
        EXPECT_FALSE(useAvx2(false));
    }
    EXPECT_EQ(useAvx2(had), had);
}

} // namespace
} // namespace tallyhoop
