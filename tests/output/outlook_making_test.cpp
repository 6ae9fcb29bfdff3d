// tests/output/outlook_making_test.cpp - the outlook worked out to its end: its report, its counts, forecasts.
#include "output/outlook_making.h"

#include "pool/outlook/duel_pool.h"
#include "pool/outlook/final_pool.h"
#include "reports/approved_reports.h"
#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

OpenedPool fourPlayersPool()
{
    OpenedPool opened;
    opened.pool.field = defaultField();
    opened.pool.field.title = kSmallTitle;
    opened.pool.field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "16"}};
    opened.pool.results = Entry{fourPlayersResults()};
    opened.pool.entries = fourPlayers();
    return opened;
}

TEST(OutlookMaking, MakesTheReportAsWorkedOutByHand)
{
    const Result<MadeOutlook> made = makeOutlook(fourPlayersPool(), ChanceKind::Alike);
    ASSERT_TRUE(made);
    expectApproved(fileOf(outlookLines(made->heading, made->rows)), "small", kOutlookFile);
}

TEST(OutlookMaking, SaysInHowManyOutcomesEachIsFirst)
{
    // Of the two ways the final can end Ann is first alone in the one that she picked; in the other Bob and Cleo share.
    const Result<MadeOutlook> made = makeOutlook({.pool = finalPool()}, ChanceKind::Alike);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->basis.openGames, 1u);
    ASSERT_NE(made->firsts, nullptr);
    EXPECT_EQ(made->firsts->outcomes, 2u);
    ASSERT_THAT(made->firsts->players, SizeIs(3));
    EXPECT_EQ(made->firsts->players[0].all.alone, 1u);
    EXPECT_EQ(made->firsts->players[0].all.outcomes(), 1u);
    EXPECT_EQ(made->firsts->players[1].all.alone, 0u);
    EXPECT_EQ(made->firsts->players[1].all.outcomes(), 1u);
}

TEST(OutlookMaking, PutsTheLargestSharesFirst)
{
    // Ann has one outcome of two to herself, 50 %; Bob and Cleo have half of the other each.
    const Result<MadeOutlook> made = makeOutlook({.pool = finalPool()}, ChanceKind::Alike);
    ASSERT_TRUE(made);
    ASSERT_THAT(made->rows, SizeIs(3));
    EXPECT_EQ(made->rows[0].name, "X, Ann");
    EXPECT_EQ(made->rows[0].share, 50);
    EXPECT_EQ(made->rows[1].name, "X, Bob");
    EXPECT_EQ(made->rows[1].share, 25);
    EXPECT_EQ(made->rows[2].name, "X, Cleo");
}

TEST(OutlookMaking, CountsByOtherChancesToo)
{
    // The duel decides between the two: the team seeded first beats that seeded third with the chance 3 / 4.
    const Result<MadeOutlook> made = makeOutlook({.pool = duelPool()}, ChanceKind::BySeed);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->basis.chances, ChanceKind::BySeed);
    EXPECT_EQ(made->basis.source, ChanceSource::Counted);
    ASSERT_THAT(made->rows, SizeIs(2));
    EXPECT_EQ(made->rows[0].name, "X, Ann");
    EXPECT_NEAR(*made->rows[0].share, 75, 1e-5);
    ASSERT_NE(made->firsts, nullptr) << "outcomes are counted all the same";
    EXPECT_EQ(made->firsts->players[0].all.alone, std::uint64_t{1} << 15) << "half of 2^16";
}

TEST(OutlookMaking, ForecastsWhatIsTooMuchToCount)
{
    Pool pool = finalPool();
    pool.results = std::nullopt;
    const Result<MadeOutlook> made = makeOutlook({.pool = std::move(pool)}, ChanceKind::Alike);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->basis.openGames, 63u);
    EXPECT_EQ(made->basis.source, ChanceSource::Forecast);
    EXPECT_GE(made->basis.samples, kForecastSamples);
    EXPECT_LT(made->basis.samples, kForecastSamples + 1'000) << "it stops when it is whole";
    EXPECT_EQ(made->firsts, nullptr);
}

TEST(OutlookMaking, SaysWhatWasNotRead)
{
    OpenedPool opened{.pool = finalPool()};
    opened.missing = 1;
    const Result<MadeOutlook> made = makeOutlook(opened, ChanceKind::Alike);
    ASSERT_TRUE(made);
    EXPECT_THAT(made->heading.basis,
                ElementsAre("Chances: all outcomes alike", "Counted: all 2 outcomes of 1 open game",
                            "1 player is missing: the selection cannot be read"));
}

TEST(OutlookMaking, IsImpossibleWithoutPayoffs)
{
    Pool pool = finalPool();
    pool.field.payoffs = PayoffTexts{{"1", "2", "40000", "8", "12", "16"}};
    const Result<MadeOutlook> made = makeOutlook({.pool = std::move(pool)}, ChanceKind::Alike);
    ASSERT_FALSE(made);
    EXPECT_THAT(made.failure().message, HasSubstr("40000"));
}

TEST(OutlookMaking, CountsThePlacesOfSoManyPlayersAsItMay)
{
    const auto stepsWith = [](std::size_t placed) {
        int steps = 0;
        OutlookLimits limits;
        limits.placed = placed;
        EXPECT_TRUE(makeOutlook(
            fourPlayersPool(), ChanceKind::Alike, [&steps] { return ++steps > 0; }, limits));
        return steps;
    };
    EXPECT_LT(stepsWith(3), stepsWith(4));
}

TEST(OutlookMaking, CanBeStopped)
{
    Pool pool = finalPool();
    pool.results = std::nullopt;
    int steps = 0;
    const Result<MadeOutlook> made =
        makeOutlook({.pool = std::move(pool)}, ChanceKind::Alike, [&steps] { return ++steps < 3; });
    ASSERT_TRUE(made);
    EXPECT_LT(steps, 10);
    EXPECT_EQ(made->basis.samples, 0u);
}

} // namespace
} // namespace tallyhoop::test
