// tests/files/read_pool_test.cpp - all players' files at once, and their scores.
#include "files/read_pool.h"

#include "fakes/fake_platform.h"
#include "reports/report_pool.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct ReadingAPool : testing::Test {
    ScratchFolder folder;
    FakeProgress progress;

    ReadPool read()
    {
        Work work{progress, "reading", 4};
        return readPool(folder.folder().files(".THC"), work);
    }
};

TEST_F(ReadingAPool, GivesEveryPlayerInTheOrderOfTheList)
{
    putFourPlayers(folder);

    const ReadPool pool = read();

    ASSERT_EQ(pool.players.size(), 4u);
    EXPECT_EQ(pool.players[0].fileName, "Adams_AB.THC");
    EXPECT_EQ(pool.players[3].fileName, "Dunn_EF.THC");
    EXPECT_EQ(pool.players[3].lines[selection_line::kName], "Dunn");
    EXPECT_TRUE(pool.troubled.empty());
    EXPECT_EQ(progress.begun, 1);
    EXPECT_EQ(progress.ended, 1);
}

TEST_F(ReadingAPool, KeepsWhatWasReadOfADamagedFileAndNamesIt)
{
    putFourPlayers(folder);
    folder.put("Baker_C.THC", "first\r\nsecond\r\n");

    const ReadPool pool = read();

    ASSERT_EQ(pool.players.size(), 4u);
    EXPECT_EQ(pool.players[1].lines[2], "second");
    EXPECT_EQ(pool.players[1].lines[3], "");
    EXPECT_EQ(pool.troubled, std::vector{folder.path() / "Baker_C.THC"});
}

TEST_F(ReadingAPool, StopsWhenThePersonCancels)
{
    putFourPlayers(folder);
    progress.cancelAt = 2;

    EXPECT_EQ(read().players.size(), 2u);
    EXPECT_EQ(progress.ended, 1);
}

TEST(ScoringAPool, GivesOneScoreForEachPlayer)
{
    FakeProgress progress;
    Work work{progress, "scoring", 4};

    const auto scores = scorePool(fourPlayers(), fourPlayersResults().lines, kUsualPayoffs, work);

    ASSERT_TRUE(scores);
    ASSERT_EQ(scores->size(), 4u);
    EXPECT_EQ((*scores)[0],
              (ScoreLine{"Adams_AB.THC", "AB, Adams", 128, 168, 60, 0, "CEDAR RAPIDS", "PINE BLUFF", 150}));
    EXPECT_EQ((*scores)[2], (ScoreLine{"Clark_D.THC", "D, Clark", 0, 0, 0, 63, "", "", 0}));
}

TEST(ScoringAPool, FailsForANumberThatDoesNotFit)
{
    ReadPool pool = fourPlayers();
    pool.players[2].lines[selection_line::kFinalPoints] = "32768";
    FakeProgress progress;
    Work work{progress, "scoring", 4};

    const auto scores = scorePool(pool, fourPlayersResults().lines, kUsualPayoffs, work);

    ASSERT_FALSE(scores);
    EXPECT_NE(scores.failure().message.find("Clark_D.THC"), std::string::npos);
}

} // namespace
} // namespace tallyhoop::test
