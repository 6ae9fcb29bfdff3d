// tests/output/pool_page_making_test.cpp - what is gathered for the pool's page.
#include "output/pool_page_making.h"

#include "pool/outlook/final_pool.h"
#include "pool/outlook/quick_road.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::SizeIs;

Result<PoolPage> pageOf(const OpenedPool& opened, const Read<Prizes>& prizes = {})
{
    return makePoolPage(opened, prizes, ChanceKind::Alike, goOn, kQuickRoad);
}

Result<PoolPage> pageOf(const Pool& pool) { return pageOf(OpenedPool{.pool = pool}); }

TEST(PoolPageMaking, GathersTheOutlookInTheOrderOfTheEntries)
{
    // Of the two ways the final can end Ann is first in one; in the other Bob and Cleo share.
    Pool pool = finalPool();
    std::swap(pool.entries[0], pool.entries[2]); // so that the largest share is not the first
    const Result<PoolPage> page = pageOf(pool);
    ASSERT_TRUE(page);
    ASSERT_TRUE(page->outlook);
    EXPECT_EQ(page->outlook->outcomes, "2");
    EXPECT_TRUE(page->outlook->exact);
    ASSERT_THAT(page->outlook->players, SizeIs(3));
    EXPECT_EQ(page->players[0].name, "X, Cleo");
    EXPECT_EQ(page->outlook->players[0].firstAlone, "0");
    EXPECT_EQ(page->outlook->players[0].firstShared, "1");
    EXPECT_EQ(page->outlook->players[2].firstAlone, "1");
    EXPECT_EQ(page->outlook->players[2].share, "50.0");
}

TEST(PoolPageMaking, FollowsTheRoadToItsEnd)
{
    const Result<PoolPage> page = pageOf(finalPool());
    ASSERT_TRUE(page);
    const std::vector<PageRoadPoint>& road = page->outlook->road;
    ASSERT_THAT(road, SizeIs(6)) << "the start, four rounds, and now in the fifth";
    EXPECT_EQ(road.front().round, 0);
    EXPECT_TRUE(road.back().isNow);
    EXPECT_THAT(road.back().shares, ElementsAre(DoubleNear(0.5, 1e-9), DoubleNear(0.25, 1e-9), DoubleNear(0.25, 1e-9)));
}

TEST(PoolPageMaking, WorksOnTheRoadAsMuchAsItMay)
{
    // A slice of a forecast has 100 samples. Of the six points those with 63, 31 and 15 open games are sampled; the 7
    // games of the last three rounds are counted in any case.
    const auto stepsWith = [](std::uint64_t samples) {
        int steps = 0;
        const Step counting = [&steps] { return ++steps > 0; };
        EXPECT_TRUE(makePoolPage({.pool = finalPool()}, {}, ChanceKind::Alike, counting,
                                 {.countedGames = 0, .samples = samples}));
        return steps;
    };
    EXPECT_EQ(stepsWith(200) - stepsWith(100), 3);
}

TEST(PoolPageMaking, CountsPlacesWhereItTakesSeconds)
{
    EXPECT_EQ(mostPlacedOnPage(0), 2000U) << "as many as there is memory for";
    EXPECT_EQ(mostPlacedOnPage(20), 2000U);
    EXPECT_EQ(mostPlacedOnPage(21), 1024U);
    EXPECT_EQ(mostPlacedOnPage(24), 128U);
    EXPECT_EQ(mostPlacedOnPage(63), 0U);
}

TEST(PoolPageMaking, HasAFinalSheetFromTheLastFourOn)
{
    Pool pool = finalPool();
    EXPECT_TRUE(pageOf(pool)->finalSheet);
    pool.results->picks = cleared(pool.results->picks, regionWinner(0));
    EXPECT_FALSE(pageOf(pool)->finalSheet);
}

TEST(PoolPageMaking, SaysWhatWasNotRead)
{
    OpenedPool opened{.pool = finalPool()};
    opened.inPart = 2;
    EXPECT_THAT(pageOf(opened)->outlook->basis, Contains("2 selections were read only in part"));
}

TEST(PoolPageMaking, SaysThatThePrizesAreNotWhole)
{
    const Read<Prizes> prizes{{}, Failure{"Row 2 of PRIZES.CSV is not understood:\r\nFee"}};
    EXPECT_THAT(pageOf({.pool = finalPool()}, prizes)->finalSheet->notes,
                Contains("PRIZES.CSV could not be read whole: these prizes are not final"));
}

TEST(PoolPageMaking, IsImpossibleWithoutPayoffs)
{
    Pool pool = finalPool();
    pool.field.payoffs = PayoffTexts{{"1", "2", "40000", "8", "12", "16"}};
    EXPECT_FALSE(pageOf(pool));
}

} // namespace
} // namespace tallyhoop::test
