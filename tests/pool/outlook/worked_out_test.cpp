// tests/pool/outlook/worked_out_test.cpp - of which results something is kept, and what the next work does with it.
#include "pool/outlook/worked_out.h"

#include "pool/outlook/duel_pool.h"
#include "pool/outlook/final_pool.h"
#include "pool/outlook/invented_pools.h"
#include "pool/outlook/outlook_work.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

/// Something to know again.
WorkedOut somethingFound()
{
    WorkedOut found;
    found.proven = std::make_shared<const std::vector<PlayerProspect>>();
    return found;
}

struct KeptOutlooksTest : testing::Test {
    Bracket entered = beforeTheFinal();
    Bracket upper = advanced(entered, kSemifinalA);
    Bracket lower = advanced(entered, kSemifinalB);
    KeptOutlooks kept{entered};
    WorkedOut found = somethingFound();
};

TEST_F(KeptOutlooksTest, KnowsNothingAtFirst)
{
    EXPECT_EQ(kept.turnTo(entered).proven, nullptr);
    EXPECT_EQ(kept.turnTo(upper).proven, nullptr);
}

TEST_F(KeptOutlooksTest, KeepsTheResultsAsEnteredWhateverIsSupposed)
{
    kept.keep(entered, found);
    EXPECT_EQ(kept.turnTo(upper).proven, nullptr) << "nothing is known of these";
    EXPECT_EQ(kept.turnTo(lower).proven, nullptr);
    EXPECT_EQ(kept.turnTo(entered).proven, found.proven);
}

TEST_F(KeptOutlooksTest, KeepsWhatWasSupposedLast)
{
    kept.turnTo(upper);
    kept.keep(upper, found);
    EXPECT_EQ(kept.turnTo(upper).proven, found.proven) << "by other chances";
    EXPECT_EQ(kept.turnTo(entered).proven, nullptr);
    EXPECT_EQ(kept.turnTo(upper).proven, found.proven) << "as entered, and undone";
}

TEST_F(KeptOutlooksTest, ForgetsWhatWasSupposedBefore)
{
    kept.turnTo(upper);
    kept.keep(upper, found);
    kept.turnTo(lower);
    EXPECT_EQ(found.proven.use_count(), 1) << "it is kept nowhere";
    kept.keep(upper, found);
    EXPECT_EQ(kept.turnTo(lower).proven, nullptr) << "these are others";
}

OutlookWork workOf(Contest contest, ChanceKind kind, WorkedOut known = {}, const OutlookLimits& limits = {})
{
    return {std::move(contest), finalField(), kind, limits, std::move(known)};
}

/// @returns what is known once all is done
WorkedOut allOf(OutlookWork work)
{
    while (!work.isDone())
        work.advance();
    return work.workedOut();
}

Contest contestBeforeTheFirstGame()
{
    const Pool pool = finalPool();
    return {startingField(), std::vector{pool.entries[0].picks, pool.entries[1].picks}, kUsualPayoffs};
}

TEST(KeptWork, FindsTheVerdictsOnceForAllChances)
{
    // Ann is first when the upper team wins the duel, in 2^15 of 2^16 outcomes. By seed that is 3 to 1.
    OutlookWork bySeed = workOf(duelContest(), ChanceKind::BySeed, allOf(workOf(duelContest(), ChanceKind::Alike)));
    const OutlookFigures before = bySeed.figures();
    EXPECT_EQ(before.source, ChanceSource::None) << "the chances are others";
    EXPECT_EQ(before.prospects.at(0).prospect, Prospect::Alive);
    EXPECT_EQ(before.prospects.at(0).worst, (PlaceBetween{2, 2}));
    EXPECT_THAT(before.firstOutcomes, ElementsAre(32768, 32768));
    while (!bySeed.isDone())
        bySeed.advance();
    EXPECT_EQ(bySeed.stagesDone(), 2u) << "a quick forecast, and the chances";
    EXPECT_NEAR(bySeed.figures().chances.players.at(0).all.share, 0.75, 1e-6);
}

TEST(KeptWork, IsDoneAtOnceWhereAllIsKnown)
{
    const WorkedOut known =
        allOf(workOf(duelContest(), ChanceKind::BySeed, allOf(workOf(duelContest(), ChanceKind::Alike))));
    const OutlookWork alike = workOf(duelContest(), ChanceKind::Alike, known);
    EXPECT_TRUE(alike.isDone());
    EXPECT_EQ(alike.fraction(), 1);
    EXPECT_TRUE(alike.hasFigures());
    EXPECT_EQ(alike.figures().source, ChanceSource::Counted);
    EXPECT_EQ(alike.figures().chances.players.at(0).all.share, 0.5);
    EXPECT_THAT(alike.figures().errors, ElementsAre(0, 0));
    const OutlookWork bySeed = workOf(duelContest(), ChanceKind::BySeed, known);
    EXPECT_TRUE(bySeed.isDone());
    EXPECT_NEAR(bySeed.figures().chances.players.at(0).all.share, 0.75, 1e-6);
}

TEST(KeptWork, HasCountedAllAlikeWithTheVerdictsOfOtherChances)
{
    const OutlookWork alike =
        workOf(finalContest(), ChanceKind::Alike, allOf(workOf(finalContest(), ChanceKind::AsPicked)));
    EXPECT_TRUE(alike.isDone());
    EXPECT_DOUBLE_EQ(alike.figures().chances.players.at(0).all.share, 0.5) << "as picked it is 0.4";
}

TEST(KeptWork, CountsOnlyTheChancesOfFewGames)
{
    OutlookWork picked = workOf(finalContest(), ChanceKind::AsPicked, allOf(workOf(finalContest(), ChanceKind::Alike)));
    EXPECT_FALSE(picked.hasChances());
    while (!picked.isDone())
        picked.advance();
    EXPECT_EQ(picked.stagesDone(), 1u);
    EXPECT_DOUBLE_EQ(picked.figures().chances.players.at(0).all.share, 0.4);
}

TEST(KeptWork, KeepsEachPartAsSoonAsItIsFound)
{
    OutlookWork alike = workOf(duelContest(), ChanceKind::Alike);
    while (alike.stagesDone() < 2) // a quick forecast, and what is certain
        alike.advance();
    const WorkedOut known = alike.workedOut();
    EXPECT_EQ(known.firsts, nullptr);
    EXPECT_EQ(workOf(duelContest(), ChanceKind::BySeed, known).figures().prospects.at(1).prospect, Prospect::Alive);
}

TEST(KeptWork, KeepsNoSearchThatWasStopped)
{
    OutlookWork alike = workOf(finalContest(), ChanceKind::Alike);
    while (alike.stagesDone() < 1)
        alike.advance();
    alike.advance([] { return false; });
    ASSERT_TRUE(alike.isDone());
    EXPECT_EQ(alike.workedOut().proven, nullptr);
    EXPECT_NE(alike.workedOut().firsts, nullptr);
}

TEST(KeptWork, ShowsTheOldForecastUntilTheNewOneIsLarger)
{
    OutlookWork first = workOf(contestBeforeTheFirstGame(), ChanceKind::Alike);
    for (int slice = 0; slice < 3; ++slice) // what is certain, and twice 500 samples
        first.advance();
    const std::vector<double> errors = first.figures().errors;
    const WorkedOut known = first.workedOut();
    OutlookWork second = workOf(contestBeforeTheFirstGame(), ChanceKind::Alike, known);
    EXPECT_DOUBLE_EQ(second.fraction(), 1000.0 / 200'000) << "of the only part";
    for (int slice = 0; slice < 2; ++slice) {
        EXPECT_EQ(second.figures().source, ChanceSource::Forecast);
        EXPECT_EQ(second.figures().samples, 1000u);
        EXPECT_EQ(second.figures().errors, errors);
        second.advance();
    }
    EXPECT_EQ(second.workedOut().forecasts.at(0), known.forecasts.at(0)) << "not yet larger";
    second.advance();
    EXPECT_EQ(second.figures().samples, 1500u);
    EXPECT_EQ(second.workedOut().forecasts.at(0)->samples, 1500u);
}

TEST(KeptWork, MakesAQuickForecastOnceForEachKindOfChances)
{
    OutlookWork first = workOf(duelContest(), ChanceKind::BySeed);
    while (first.stagesDone() < 1)
        first.advance();
    OutlookWork second = workOf(duelContest(), ChanceKind::BySeed, first.workedOut());
    EXPECT_EQ(second.figures().samples, 10'000u);
    EXPECT_NEAR(second.figures().chances.players.at(0).all.share, 0.75, 0.03);
    EXPECT_FALSE(second.hasFigures()) << "nothing to take over as a result";
    while (!second.isDone())
        second.advance();
    EXPECT_EQ(second.stagesDone(), 4u) << "what is certain, the chances, the first places, and all places";
    EXPECT_THAT(second.workedOut().forecasts, Each(nullptr)) << "once it is counted";
    EXPECT_EQ(workOf(duelContest(), ChanceKind::Alike, first.workedOut()).figures().source, ChanceSource::None);
}

TEST(KeptWork, KeepsWhatIsExactWithoutACount)
{
    const OutlookLimits little{.countBytes = 1};
    const OutlookWork again = workOf(finalContest(), ChanceKind::BySeed,
                                     allOf(workOf(finalContest(), ChanceKind::BySeed, {}, little)), little);
    EXPECT_TRUE(again.hasFigures());
    EXPECT_EQ(again.figures().source, ChanceSource::Counted);
    EXPECT_DOUBLE_EQ(again.figures().chances.players.at(0).all.share, 0.75);
}

} // namespace
} // namespace tallyhoop::test
