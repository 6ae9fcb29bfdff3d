// tests/output/final_sheet_making_test.cpp - the final sheet of a pool, in the report and on the page.
#include "output/final_sheet_making.h"

#include "reports/approved_reports.h"
#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

const PrizeTable kPrizes{Money{1001}, Percent{1000}, {Percent{6000}, Percent{3000}, Percent{1000}}};

OpenedPool playedPool()
{
    OpenedPool opened;
    opened.pool.field = defaultField();
    opened.pool.field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "16"}};
    opened.pool.results = fourPlayersResults();
    opened.pool.entries = fourPlayers();
    return opened;
}

TEST(FinalSheetMaking, MakesTheSheetAsWorkedOutByHand)
{
    const Result<FinalSheet> sheet = makeFinalSheet(playedPool(), kPrizes);
    ASSERT_TRUE(sheet);
    expectApproved(fileOf(finalSheetLines(kSmallTitle, *sheet)), "small", kFinalSheetFile);
}

TEST(FinalSheetMaking, SaysWhatWasNotRead)
{
    OpenedPool opened = playedPool();
    opened.missing = 1;
    const Result<FinalSheet> sheet = makeFinalSheet(opened, kPrizes);
    ASSERT_TRUE(sheet);
    EXPECT_THAT(sheet->remarks, ElementsAre("1 player is missing: the selection cannot be read"));
}

TEST(FinalSheetMaking, SaysThatThePrizesAreNotWhole)
{
    OpenedPool opened = playedPool();
    opened.missing = 1;
    const Failure trouble{"Row 2 of PRIZES.CSV is not understood:\r\nPrize, 2, " + std::string(80, 'x')};
    const Result<FinalSheet> sheet = makeFinalSheet(opened, kPrizes, trouble);
    ASSERT_TRUE(sheet);
    // 38 + 1 + 10 characters of the reason, and 23 of 72 are left.
    EXPECT_THAT(sheet->remarks,
                ElementsAre("PRIZES.CSV could not be read whole: these prizes are not final",
                            "Row 2 of PRIZES.CSV is not understood: Prize, 2, " + std::string(23, 'x') + "...",
                            "1 player is missing: the selection cannot be read"));
}

TEST(FinalSheetMaking, IsImpossibleWithoutResultsOrPayoffs)
{
    OpenedPool opened = playedPool();
    opened.pool.results.reset();
    EXPECT_FALSE(makeFinalSheet(opened, kPrizes));
    opened = playedPool();
    opened.pool.field.payoffs = PayoffTexts{{"1", "2", "40000", "8", "12", "16"}};
    EXPECT_FALSE(makeFinalSheet(opened, kPrizes));
}

TEST(FinalSheetMaking, PutsTheSheetOnThePage)
{
    const Result<FinalSheet> sheet = makeFinalSheet(playedPool(), kPrizes);
    ASSERT_TRUE(sheet);
    const PageFinalSheet page = pageFinalSheetOf(*sheet);
    EXPECT_THAT(page.notes, Contains("If it ended like this: 3 games are open"));
    ASSERT_THAT(page.rows, SizeIs(4));
    EXPECT_EQ(page.rows[1].place, "2=");
    EXPECT_EQ(page.rows[1].name, "EF, Dunn");
    EXPECT_EQ(page.rows[1].points, "96");
    EXPECT_EQ(page.rows[1].total, "250");
    EXPECT_EQ(page.rows[1].prize, "7.21");
    EXPECT_FALSE(page.rows[1].isLast);
    // Baker's 99 and Dunn's 250 are equally far from 174.5.
    ASSERT_THAT(page.pairs, SizeIs(1));
    EXPECT_EQ(page.pairs[0].words.lower, "C, Baker (99)");
    EXPECT_EQ(page.pairs[0].words.upTo, "174");
    EXPECT_EQ(page.pairs[0].words.tiedAt, "");
    EXPECT_EQ(page.pairs[0].words.higher, "EF, Dunn (250)");
    EXPECT_EQ(page.pairs[0].words.from, "175");
    EXPECT_THAT(page.pairsNotes, ElementsAre("Ties, by the total points of the final"));
    EXPECT_EQ(page.rows[1].off, "");
    EXPECT_EQ(page.rows[3].total, "") << "Clark has predicted none";
    EXPECT_TRUE(page.rows[3].isLast);
}

} // namespace
} // namespace tallyhoop::test
