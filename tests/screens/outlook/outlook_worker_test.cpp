// tests/screens/outlook/outlook_worker_test.cpp - what is news and when, stopping, replacing, and the real thread.
#include "screens/outlook/outlook_worker.h"

#include "fakes/fake_background.h"
#include "pool/outlook/final_pool.h"
#include "pool/outlook/invented_pools.h"
#include "ui/background_thread.h"

#include <gmock/gmock.h>
#include <new>
#include <thread>

namespace tallyhoop::test {
namespace {

using testing::SizeIs;

struct OutlookWorkerTest : testing::Test {
    Pool pool = finalPool();
    std::vector<Bracket> picks{pool.entries[0].picks, pool.entries[1].picks, pool.entries[2].picks};
    Bracket entered = pool.results->picks;
    FakeBackground* background = nullptr;
    std::unique_ptr<OutlookWorker> worker;

    void make(std::unique_ptr<ui::Background> where)
    {
        worker =
            std::make_unique<OutlookWorker>(entered, picks, *pool.field.payoffs.points(), pool.field, std::move(where));
    }

    void begin(ChanceKind kind = ChanceKind::Alike)
    {
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        make(std::move(fake));
        worker->begin(entered, kind);
    }

    /// Without the road.
    void findFigures()
    {
        std::optional<OutlookKnown> known;
        while (!known || !known->isWhole) {
            ASSERT_TRUE(background->doSlice());
            known = worker->news();
        }
    }

    /// Too many open games to count them.
    void beginAForecast()
    {
        entered = startingField();
        begin();
    }
};

TEST_F(OutlookWorkerTest, KnowsTheChancesOfFewGamesAtOnce)
{
    begin();
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_EQ(known->figures.source, ChanceSource::Counted);
    EXPECT_DOUBLE_EQ(known->figures.chances.players.at(0).all.share, 0.5);
    EXPECT_FALSE(known->isWhole);
    EXPECT_TRUE(worker->isWorking());
    EXPECT_FALSE(worker->news()) << "nothing has happened since";
}

TEST_F(OutlookWorkerTest, IsWorkingUntilTheLastNewsIsTaken)
{
    EXPECT_FALSE(
        OutlookWorker(entered, picks, *pool.field.payoffs.points(), pool.field, std::make_unique<FakeBackground>())
            .isWorking());
    picks.clear(); // then there is not much to do
    begin();
    background->doAll();
    EXPECT_TRUE(worker->isWorking());
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_TRUE(known->isWhole);
    EXPECT_THAT(known->road, SizeIs(6));
    EXPECT_FALSE(worker->isWorking());
    EXPECT_EQ(worker->fraction(), 1);
}

TEST_F(OutlookWorkerTest, CollectsAnewOnceItsNewsIsTakenAndAfterEachPart)
{
    beginAForecast();
    background->doSlice(); // what is certain, a part of its own: it replaces the news that nobody has taken
    background->doSlice(); // 500 samples: nobody has asked
    const std::optional<OutlookKnown> certain = worker->news();
    EXPECT_EQ(certain->figures.source, ChanceSource::None);
    EXPECT_EQ(certain->figures.prospects.at(0).best.most, 1u) << "it is the news after the search";
    EXPECT_FALSE(worker->news());
    background->doSlice();
    background->doSlice();
    EXPECT_EQ(worker->news()->figures.samples, 1000u);
}

TEST_F(OutlookWorkerTest, TellsHowFarItIsInTheMiddleOfASlice)
{
    beginAForecast();
    EXPECT_EQ(worker->fraction(), 0);
    std::vector<double> fractions;
    background->doSlice([&] {
        fractions.push_back(worker->fraction());
        return true;
    });
    // Two steps for each of three players are the first of two parts.
    ASSERT_THAT(fractions, SizeIs(6));
    EXPECT_DOUBLE_EQ(fractions.at(0), 1.0 / 12);
    EXPECT_DOUBLE_EQ(fractions.at(5), 6.0 / 12);
}

TEST_F(OutlookWorkerTest, StopsAfterTheSliceWithAllThatIsKnown)
{
    beginAForecast();
    background->doSlice();
    background->doSlice();
    static_cast<void>(worker->news());
    worker->stop();
    EXPECT_TRUE(worker->isWorking()) << "what is known by now is still to come";
    EXPECT_FALSE(background->doSlice());
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_EQ(known->figures.samples, 1000u);
    EXPECT_FALSE(known->isWhole);
    EXPECT_FALSE(worker->isWorking());
}

TEST_F(OutlookWorkerTest, StopsInTheMiddleOfALongSlice)
{
    beginAForecast();
    int steps = 0;
    EXPECT_FALSE(background->doSlice([&] {
        worker->stop();
        return ++steps < 100;
    }));
    EXPECT_EQ(steps, 1) << "the next step ends it";
    EXPECT_FALSE(worker->news()->isWhole) << "what is certain was not found for all";
    EXPECT_FALSE(worker->isWorking());
}

TEST_F(OutlookWorkerTest, GoesOnWithTheNextJobAfterAStop)
{
    begin();
    worker->stop();
    EXPECT_FALSE(background->doSlice());
    worker->begin(advanced(entered, kSemifinalB), ChanceKind::Alike);
    EXPECT_DOUBLE_EQ(worker->news()->figures.chances.players.at(1).all.share, 0.5);
    EXPECT_TRUE(background->doSlice());
    EXPECT_TRUE(worker->isWorking());
}

TEST_F(OutlookWorkerTest, KeepsTheRoadOfEachKindOfChances)
{
    begin(ChanceKind::BySeed);
    background->doSlice();
    EXPECT_DOUBLE_EQ(worker->news()->road.back().chances.at(0).share, 0.75);
    worker->begin(entered, ChanceKind::Alike);
    EXPECT_THAT(worker->news()->road, SizeIs(0)) << "the thread may still be working on one";
    background->doSlice();
    EXPECT_DOUBLE_EQ(worker->news()->road.back().chances.at(0).share, 0.5);
    worker->begin(advanced(entered, kSemifinalB), ChanceKind::BySeed);
    static_cast<void>(worker->news());
    background->doSlice();
    EXPECT_DOUBLE_EQ(worker->news()->road.back().chances.at(0).share, 0.75) << "found in no more than one slice";
}

TEST_F(OutlookWorkerTest, KnowsTheVerdictsAtOnceWhenTheChancesChange)
{
    begin();
    findFigures();
    worker->begin(entered, ChanceKind::BySeed);
    const std::optional<OutlookKnown> known = worker->news();
    EXPECT_DOUBLE_EQ(known->figures.chances.players.at(0).all.share, 0.75);
    EXPECT_EQ(known->figures.prospects.at(0).worst, (PlaceBetween{3, 3}));
    EXPECT_TRUE(known->isWhole);
    EXPECT_EQ(worker->fraction(), 1);
    EXPECT_TRUE(worker->isWorking()) << "on the road";
}

TEST_F(OutlookWorkerTest, KnowsTheResultsAsEnteredAfterASupposition)
{
    begin();
    findFigures();
    worker->begin(advanced(entered, kSemifinalB), ChanceKind::Alike);
    EXPECT_FALSE(worker->news()->isWhole) << "they are other results";
    worker->begin(entered, ChanceKind::Alike);
    const std::optional<OutlookKnown> known = worker->news();
    EXPECT_DOUBLE_EQ(known->figures.chances.players.at(0).all.share, 0.5);
    EXPECT_EQ(known->figures.prospects.at(0).worst, (PlaceBetween{3, 3}));
    EXPECT_TRUE(known->isWhole);
}

TEST_F(OutlookWorkerTest, KeepsWhatAnAbandonedJobHasFound)
{
    beginAForecast();
    background->doSlice(); // what is certain
    worker->begin(entered, ChanceKind::BySeed);
    const std::optional<OutlookKnown> known = worker->news();
    EXPECT_EQ(known->figures.source, ChanceSource::None);
    EXPECT_EQ(known->figures.prospects.at(0).best.most, 1u) << "it is known after the search";
}

TEST_F(OutlookWorkerTest, SaysThatNothingFollowsWhereThereIsNoThread)
{
    auto fake = std::make_unique<FakeBackground>();
    fake->isThere = false;
    make(std::move(fake));
    worker->begin(entered, ChanceKind::Alike);
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_EQ(known->figures.source, ChanceSource::Counted) << "few games are counted all the same";
    EXPECT_FALSE(known->isWhole);
    EXPECT_FALSE(worker->isWorking());
}

bool lacksMemory() { throw std::bad_alloc{}; }

TEST_F(OutlookWorkerTest, KeepsWhatIsKnownWhenASliceThrows)
{
    beginAForecast();
    EXPECT_FALSE(worker->trouble());
    EXPECT_FALSE(background->doSlice(lacksMemory));
    ASSERT_TRUE(worker->trouble());
    EXPECT_THROW(std::rethrow_exception(worker->trouble()), std::bad_alloc);
    EXPECT_TRUE(worker->isWorking()) << "the news of before is not taken yet";
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_THAT(known->figures.prospects, SizeIs(3));
    EXPECT_FALSE(known->isWhole);
    EXPECT_FALSE(worker->isWorking());
}

TEST_F(OutlookWorkerTest, GoesOnWithTheNextJobAfterASliceHasThrown)
{
    beginAForecast();
    background->doSlice(lacksMemory);
    worker->begin(beforeTheFinal(), ChanceKind::Alike);
    EXPECT_FALSE(worker->trouble());
    EXPECT_DOUBLE_EQ(worker->news()->figures.chances.players.at(0).all.share, 0.5);
    EXPECT_TRUE(background->doSlice());
}

/// The system has no memory to begin with.
struct ScarceBackground : FakeBackground {
    bool run(Slice, Failed) override { throw std::bad_alloc{}; }
};

TEST_F(OutlookWorkerTest, KnowsNothingOfWhatItCouldNotBegin)
{
    make(std::make_unique<ScarceBackground>());
    worker->begin(startingField(), ChanceKind::Alike);
    EXPECT_THROW(std::rethrow_exception(worker->trouble()), std::bad_alloc);
    const std::optional<OutlookKnown> known = worker->news();
    ASSERT_TRUE(known);
    EXPECT_THAT(known->figures.prospects, SizeIs(3));
    EXPECT_EQ(known->figures.prospects.at(2).best, (PlaceBetween{1, 3}));
    EXPECT_FALSE(worker->isWorking());
}

struct OutlookWorkerInItsThread : OutlookWorkerTest {
    OutlookWorkerInItsThread() { make(std::make_unique<ui::BackgroundThread>()); }

    OutlookFigures wholeFigures() const
    {
        while (true) {
            if (std::optional<OutlookKnown> known = worker->news(); known && known->isWhole)
                return std::move(known->figures);
            std::this_thread::yield();
        }
    }
};

TEST_F(OutlookWorkerInItsThread, FindsTheFiguresOfWhatWasBegunLast)
{
    for (const ChanceKind kind : {ChanceKind::Alike, ChanceKind::BySeed, ChanceKind::AsPicked, ChanceKind::BySeed}) {
        worker->begin(startingField(), kind);
        worker->begin(advanced(entered, kSemifinalB), kind);
        worker->begin(entered, kind);
    }
    const OutlookFigures figures = wholeFigures();
    EXPECT_DOUBLE_EQ(figures.chances.players.at(0).all.share, 0.75);
    EXPECT_EQ(figures.prospects.at(0).worst, (PlaceBetween{3, 3}));
}

TEST_F(OutlookWorkerInItsThread, CanBeClosedWhileItWorks)
{
    worker->begin(startingField(), ChanceKind::Alike);
    while (worker->fraction() == 0)
        std::this_thread::yield();
    EXPECT_TRUE(worker->isWorking());
    worker.reset();
}

TEST_F(OutlookWorkerInItsThread, StopsWhileItWorks)
{
    worker->begin(startingField(), ChanceKind::Alike);
    worker->stop();
    bool isWhole = true;
    while (worker->isWorking()) {
        if (const std::optional<OutlookKnown> known = worker->news())
            isWhole = known->isWhole;
        std::this_thread::yield();
    }
    EXPECT_FALSE(isWhole);
}

} // namespace
} // namespace tallyhoop::test
