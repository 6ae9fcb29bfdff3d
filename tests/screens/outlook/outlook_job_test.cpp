// tests/screens/outlook/outlook_job_test.cpp - in which order a job finds things, and what it leaves to the next.
#include "screens/outlook/outlook_job.h"

#include "pool/outlook/duel_pool.h"
#include "pool/outlook/final_pool.h"
#include "pool/outlook/invented_pools.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::SizeIs;

struct OutlookJobTest : testing::Test {
    Pool pool = finalPool();
    std::vector<Bracket> picks{pool.entries[0].picks, pool.entries[1].picks, pool.entries[2].picks};
    Bracket entered = pool.results->picks;
    std::shared_ptr<Road> road;

    OutlookJob begin(const Bracket& supposed, ChanceKind kind = ChanceKind::Alike)
    {
        const Payoffs payoffs = *pool.field.payoffs.points();
        if (!road) {
            RoadLimits small;
            small.samples = 200;
            road = std::make_shared<Road>(
                entered, picks, payoffs,
                [this, kind](const Contest& contest) { return chancesOf(kind, contest, pool.field); }, small);
        }
        return {Contest{supposed, picks, payoffs}, pool.field, kind, road, supposed == entered};
    }

    double shareNow(std::size_t player) const { return road->points().back().chances.at(player).share; }
};

TEST_F(OutlookJobTest, CountsFewGamesWithoutASlice)
{
    OutlookJob job = begin(entered);
    EXPECT_FALSE(job.work().hasFigures());
    job.countFewGames();
    EXPECT_TRUE(job.work().hasFigures());
    EXPECT_FALSE(job.work().isDone()) << "the places are found later";
}

TEST_F(OutlookJobTest, LeavesManyGamesToTheSlices)
{
    InventedPools invented{7};
    entered = invented.withOpen(invented.picked(), 16);
    OutlookJob job = begin(entered);
    job.countFewGames();
    EXPECT_EQ(job.work().fraction(), 0);
}

TEST_F(OutlookJobTest, LeavesManyPlayersToTheSlices)
{
    picks.assign(1001, picks.front());
    OutlookJob job = begin(entered);
    job.countFewGames();
    EXPECT_FALSE(job.work().hasChances());
    picks.resize(1000);
    OutlookJob fewer = begin(entered);
    fewer.countFewGames();
    EXPECT_TRUE(fewer.work().hasChances());
}

TEST_F(OutlookJobTest, TakesItsOwnChancesAsThoseOfNow)
{
    OutlookJob job = begin(entered, ChanceKind::BySeed);
    job.countFewGames();
    job.advance();
    ASSERT_THAT(road->points(), SizeIs(1)) << "counting them once more takes more than a slice";
    EXPECT_DOUBLE_EQ(shareNow(0), 0.75) << "seeded 1 against 3";
    EXPECT_DOUBLE_EQ(shareNow(2), 0.125);
    EXPECT_EQ(road->points()[0].samples, 0u);
    EXPECT_EQ(road->points()[0].openGames, 1u);
    EXPECT_THAT(road->points()[0].errors, testing::ElementsAre(0, 0, 0));
    EXPECT_TRUE(road->points()[0].isNow);
    EXPECT_EQ(road->points()[0].round, 5);
}

TEST_F(OutlookJobTest, TakesNoQuickForecastAsThatOfNow)
{
    pool = duelPool();
    picks = {pool.entries[0].picks, pool.entries[1].picks};
    entered = pool.results->picks;
    OutlookJob job = begin(entered);
    while (road->points().empty())
        job.advance();
    EXPECT_EQ(road->points()[0].samples, 0u);
    EXPECT_EQ(shareNow(0), 0.5);
}

TEST_F(OutlookJobTest, FindsTheChancesAsEnteredBesideThoseSupposed)
{
    OutlookJob job = begin(advanced(entered, kSemifinalB));
    job.countFewGames();
    EXPECT_DOUBLE_EQ(job.work().figures().chances.players.at(0).all.share, 0);
    while (road->points().empty())
        job.advance();
    EXPECT_DOUBLE_EQ(shareNow(0), 0.5) << "nobody has won the final";
    EXPECT_FALSE(job.work().isDone()) << "what is supposed is compared before its places are found";
}

TEST_F(OutlookJobTest, FindsTheRoadAfterItsFigures)
{
    OutlookJob job = begin(entered);
    job.countFewGames();
    while (!job.work().isDone()) {
        job.advance();
        EXPECT_THAT(road->points(), SizeIs(1));
    }
    EXPECT_FALSE(job.isDone());
    std::size_t stages = job.stagesDone();
    while (!job.isDone())
        job.advance();
    EXPECT_EQ(job.stagesDone(), stages + 5) << "before the first game, and after four rounds";
    EXPECT_TRUE(road->isDone());
}

TEST_F(OutlookJobTest, LeavesTheRoadToTheNextJob)
{
    OutlookJob first = begin(entered);
    first.countFewGames();
    while (!first.isDone())
        first.advance();
    OutlookJob second = begin(advanced(entered, kSemifinalB));
    second.countFewGames();
    while (!second.work().isDone()) {
        EXPECT_FALSE(second.isDone());
        second.advance();
    }
    EXPECT_TRUE(second.isDone());
}

TEST_F(OutlookJobTest, IsDoneWithoutPlayers)
{
    picks.clear();
    OutlookJob job = begin(entered);
    while (!job.isDone())
        job.advance();
    EXPECT_THAT(road->points(), SizeIs(6));
}

TEST_F(OutlookJobTest, TakesAForecastWithItsSamplesAsThatOfNow)
{
    picks.clear(); // without players the first slice of a forecast is enough
    entered = startingField();
    OutlookJob job = begin(entered);
    while (!job.isDone())
        job.advance();
    ASSERT_THAT(road->points(), SizeIs(1));
    EXPECT_EQ(road->points()[0].samples, 500u);
    EXPECT_EQ(road->points()[0].openGames, 63u);
}

} // namespace
} // namespace tallyhoop::test
