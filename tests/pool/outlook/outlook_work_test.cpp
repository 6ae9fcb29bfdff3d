// tests/pool/outlook/outlook_work_test.cpp - the parts of the work, their order, slices and stopping.
#include "pool/outlook/outlook_work.h"

#include "pool/outlook/duel_pool.h"
#include "pool/outlook/final_pool.h"
#include "pool/outlook/invented_pools.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

/// @returns the figures once all is done
OutlookFigures workedOut(OutlookWork work)
{
    while (!work.isDone())
        work.advance();
    return work.figures();
}

Contest inventedContest(std::size_t players, std::size_t openGames)
{
    InventedPools invented{7};
    const Bracket results = invented.withOpen(invented.picked(), openGames);
    return {results, invented.office(players), kUsualPayoffs};
}

void forecastQuickly(OutlookWork& work)
{
    while (work.stagesDone() == 0)
        work.advance();
}

TEST(OutlookWorkTest, CountsTheOnlyGameThatIsLeft)
{
    // Ann picks the one finalist, Bob and Cleo the other; all had the same points before.
    const OutlookFigures figures = workedOut({finalContest(), finalField(), ChanceKind::Alike});
    EXPECT_EQ(figures.source, ChanceSource::Counted);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.alone, 0.5);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.together, 0);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(1).all.alone, 0);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(1).all.together, 0.5);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(1).all.share, 0.25);
    EXPECT_DOUBLE_EQ(figures.chances.given(0, 0, Side::Upper).share, 1);
    EXPECT_DOUBLE_EQ(figures.chances.given(0, 0, Side::Lower).share, 0);
    EXPECT_THAT(figures.firstOutcomes, ElementsAre(1, 1, 1));
    EXPECT_THAT(figures.errors, ElementsAre(0, 0, 0));
    EXPECT_THAT(figures.swingErrors, SizeIs(0)) << "exact";
}

TEST(OutlookWorkTest, TakesThePicksOfThePoolAsChances)
{
    // One has picked the upper finalist, two the lower one: (1 + 1) / (1 + 2 + 2) = 0.4 for the upper.
    const OutlookFigures figures = workedOut({finalContest(), finalField(), ChanceKind::AsPicked});
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.share, 0.4);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(1).all.share, 0.3);
    EXPECT_THAT(figures.firstOutcomes, ElementsAre(1, 1, 1)) << "the verdicts come from counting, whatever the chances";
}

TEST(OutlookWorkTest, TakesTheSeedsAsChances)
{
    // The upper finalist is seeded 1, the lower one 3: 3 / (1 + 3).
    const OutlookFigures figures = workedOut({finalContest(), finalField(), ChanceKind::BySeed});
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.share, 0.75);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(2).all.share, 0.125);
}

TEST(OutlookWorkTest, KnowsEveryPlaceOfFewGames)
{
    const OutlookFigures figures = workedOut({finalContest(), finalField(), ChanceKind::Alike});
    EXPECT_EQ(figures.prospects.at(0).prospect, Prospect::Alive);
    EXPECT_EQ(figures.prospects.at(0).best, (PlaceBetween{1, 1}));
    EXPECT_EQ(figures.prospects.at(0).worst, (PlaceBetween{3, 3}));
    EXPECT_EQ(figures.prospects.at(1).worst, (PlaceBetween{2, 2}));
}

TEST(OutlookWorkTest, KnowsNothingBeforeTheFirstSlice)
{
    const OutlookWork work{finalContest(), finalField(), ChanceKind::Alike};
    const OutlookFigures figures = work.figures();
    EXPECT_EQ(work.fraction(), 0);
    EXPECT_EQ(figures.source, ChanceSource::None);
    ASSERT_THAT(figures.prospects, SizeIs(3));
    EXPECT_EQ(figures.prospects.at(0).prospect, Prospect::Open);
    EXPECT_EQ(figures.prospects.at(0).best, (PlaceBetween{1, 3}));
}

TEST(OutlookWorkTest, FindsWhatIsCertainBeforeItCountsManyGames)
{
    OutlookWork work{inventedContest(4, 20), finalField(), ChanceKind::Alike};
    forecastQuickly(work);
    EXPECT_EQ(work.figures().prospects.at(0).best.most, 4u);
    work.advance();
    EXPECT_EQ(work.figures().source, ChanceSource::Forecast);
    EXPECT_LT(work.figures().prospects.at(0).best.most, 4u) << "the search has found better places than the last";
}

TEST(OutlookWorkTest, ForecastsQuicklyBeforeItCountsManyGames)
{
    OutlookWork work{duelContest(), finalField(), ChanceKind::Alike};
    work.advance();
    const OutlookFigures first = work.figures();
    EXPECT_EQ(first.source, ChanceSource::Forecast);
    EXPECT_EQ(first.samples, 500u);
    EXPECT_DOUBLE_EQ(work.fraction(), 1.0 / 20 / 4) << "of the first of four parts";
    EXPECT_NEAR(first.chances.players.at(0).all.share, 0.5, 0.1);
    // A sample is won or lost as a whole: the error is the root of 1/2 * 1/2 / 499.
    EXPECT_NEAR(first.errors.at(0), 0.0224, 0.0002);
    EXPECT_NEAR(first.chances.given(0, 0, Side::Upper).share, 1, 1e-9) << "who is right in the duel is first";
    EXPECT_NEAR(first.chances.given(0, 0, Side::Lower).share, 0, 1e-9);
    forecastQuickly(work);
    EXPECT_EQ(work.figures().samples, 10'000u);
    EXPECT_FALSE(work.hasFigures()) << "nothing to take over as a result";
    while (!work.isDone())
        work.advance();
    const OutlookFigures counted = work.figures();
    EXPECT_EQ(counted.source, ChanceSource::Counted);
    EXPECT_EQ(counted.samples, 0u);
    EXPECT_EQ(counted.chances.players.at(0).all.share, 0.5);
    EXPECT_THAT(counted.errors, ElementsAre(0, 0));
}

TEST(OutlookWorkTest, ReplacesAForecastBySeedAsSoonAsTheChancesAreCounted)
{
    // The upper team of the duel is seeded 1, the lower one 3: 3 / (1 + 3).
    OutlookWork work{duelContest(), finalField(), ChanceKind::BySeed};
    forecastQuickly(work);
    EXPECT_NEAR(work.figures().chances.players.at(0).all.share, 0.75, 0.03);
    while (work.figures().source == ChanceSource::Forecast && !work.isDone())
        work.advance();
    EXPECT_NEAR(work.figures().chances.players.at(0).all.share, 0.75, 1e-6);
    EXPECT_THAT(work.figures().firstOutcomes, SizeIs(0)) << "the outcomes are counted later, for the verdicts";
}

TEST(OutlookWorkTest, ForecastsNoneOfFewGames)
{
    const Pool pool = duelPool();
    const Bracket results = advanced(pool.results->picks, kUpperOfDuel);
    OutlookWork work{{results, std::vector{pool.entries[0].picks, pool.entries[1].picks}, kUsualPayoffs},
                     finalField(),
                     ChanceKind::Alike};
    ASSERT_EQ(work.contest().games().size(), 15u);
    while (!work.isDone()) {
        work.advance();
        EXPECT_NE(work.figures().source, ChanceSource::Forecast);
    }
    EXPECT_EQ(work.figures().chances.players.at(0).all.share, 1);
}

TEST(OutlookWorkTest, WorksInSlicesWithAGrowingFraction)
{
    OutlookWork work{inventedContest(12, 22), finalField(), ChanceKind::Alike};
    double before = 0;
    int slices = 0;
    while (!work.isDone()) {
        work.advance();
        EXPECT_GE(work.fraction(), before);
        before = work.fraction();
        ++slices;
    }
    EXPECT_EQ(before, 1);
    EXPECT_GT(slices, 10);
}

TEST(OutlookWorkTest, ForecastsWhatCannotBeCounted)
{
    OutlookWork work{inventedContest(3, 40), finalField(), ChanceKind::BySeed};
    work.advance(); // what is certain
    work.advance(); // the first samples
    work.advance();
    const OutlookFigures figures = work.figures();
    EXPECT_EQ(figures.source, ChanceSource::Forecast);
    EXPECT_EQ(figures.samples, 1000u);
    EXPECT_THAT(figures.firstOutcomes, SizeIs(0));
    EXPECT_THAT(figures.errors, Each(testing::Gt(0)));
    ASSERT_THAT(figures.swingErrors, SizeIs(3));
    EXPECT_THAT(figures.swingErrors, Each(SizeIs(40)));
    EXPECT_THAT(figures.swingErrors, Each(Each(testing::Gt(0))));
    double shares = 0;
    for (const PlayerChances& player : figures.chances.players)
        shares += player.all.share;
    EXPECT_NEAR(shares, 1, 1e-9);
    EXPECT_FALSE(work.isDone());
}

TEST(OutlookWorkTest, StopsWhileItFindsWhatIsCertain)
{
    OutlookWork work{inventedContest(4, 20), finalField(), ChanceKind::Alike};
    forecastQuickly(work);
    int steps = 0;
    work.advance([&] { return ++steps < 2; });
    EXPECT_EQ(steps, 2);
    EXPECT_TRUE(work.isDone());
    EXPECT_EQ(work.figures().prospects.at(3).prospect, Prospect::Open);
}

TEST(OutlookWorkTest, StopsWhileItPreparesACount)
{
    OutlookWork work{inventedContest(40, 22), finalField(), ChanceKind::Alike};
    forecastQuickly(work);
    work.advance(); // what is certain
    int steps = 0;
    work.advance([&] { return ++steps < 3; });
    EXPECT_GE(steps, 3) << "asked in between, for the players that are compared";
    EXPECT_LT(steps, 3 + 6) << "it goes on no longer";
    EXPECT_TRUE(work.isDone());
    EXPECT_EQ(work.figures().source, ChanceSource::Forecast) << "what is known by then stays";
}

TEST(OutlookWorkTest, StopsWhileItCounts)
{
    OutlookWork work{inventedContest(4, 22), finalField(), ChanceKind::Alike};
    forecastQuickly(work);
    work.advance(); // what is certain
    work.advance(); // prepares
    work.advance([] { return false; });
    EXPECT_TRUE(work.isDone());
    EXPECT_EQ(work.figures().source, ChanceSource::Forecast) << "what is known by then stays";
}

TEST(OutlookWorkTest, ForecastsWhereACountWouldTakeTooMuchMemory)
{
    OutlookWork work{duelContest(), finalField(), ChanceKind::BySeed, {.countBytes = 1}};
    double before = 0;
    while (work.figures().samples <= 10'000) {
        work.advance();
        EXPECT_GE(work.fraction(), before);
        before = work.fraction();
    }
    EXPECT_EQ(work.figures().source, ChanceSource::Forecast);
    EXPECT_NEAR(work.figures().chances.players.at(0).all.share, 0.75, 0.03);
    EXPECT_EQ(work.figures().prospects.at(0).prospect, Prospect::Alive);
    EXPECT_FALSE(work.isDone()) << "it grows further";
}

TEST(OutlookWorkTest, LeavesNothingToChanceOfFewGamesAlsoWithLittleMemory)
{
    const OutlookFigures figures = workedOut({finalContest(), finalField(), ChanceKind::BySeed, {.countBytes = 1}});
    EXPECT_EQ(figures.source, ChanceSource::Counted);
    EXPECT_EQ(figures.samples, 0u);
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.share, 0.75);
    EXPECT_THAT(figures.errors, ElementsAre(0, 0, 0));
    EXPECT_EQ(figures.prospects.at(0).prospect, Prospect::Alive);
}

TEST(OutlookWorkTest, CountsTheFewGamesOfAnOfficeAtOnce)
{
    EXPECT_TRUE((OutlookWork{finalContest(), finalField(), ChanceKind::Alike, {.atOnce = 3}}.isCountedAtOnce()));
    EXPECT_FALSE((OutlookWork{finalContest(), finalField(), ChanceKind::Alike, {.atOnce = 2}}.isCountedAtOnce()));
    EXPECT_FALSE((OutlookWork{duelContest(), finalField(), ChanceKind::Alike}.isCountedAtOnce())) << "16 games";
}

TEST(OutlookWorkTest, CountsThePlacesOfNoMorePlayersThanThereIsMemoryFor)
{
    const auto parts = [](std::size_t placed) {
        OutlookWork work{finalContest(), finalField(), ChanceKind::Alike, {.placed = placed}};
        while (!work.isDone())
            work.advance();
        return work.stagesDone();
    };
    EXPECT_EQ(parts(3), 3u) << "first places, what is certain, places";
    EXPECT_EQ(parts(2), 2u);
}

TEST(OutlookWorkTest, IsDoneAtOnceWithoutPlayers)
{
    EXPECT_THAT(workedOut({inventedContest(0, 5), finalField(), ChanceKind::Alike}).prospects, SizeIs(0));
    EXPECT_THAT(workedOut({inventedContest(0, 40), finalField(), ChanceKind::Alike}).prospects, SizeIs(0));
}

} // namespace
} // namespace tallyhoop::test
