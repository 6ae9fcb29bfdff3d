// tests/pool/scoring_test.cpp - scores worked out by hand.
//
// The usual payoffs are 1, 2, 4, 8, 12, 16; a right bracket earns 32 + 32 + 32 + 32 + 24 + 16 = 168.
#include "pool/scoring.h"

#include "pool/sample_brackets.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using test::everyLowerTeamWins;
using test::everyUpperTeamWins;
using test::startingField;
using test::without;
using testing::HasSubstr;

constexpr Payoffs kUsual{1, 2, 4, 8, 12, 16};

Score scoreOf(const Bracket& picks, const Bracket& results) { return score(picks, results, kUsual); }

/// Anonymous but for the file.
Entry entryOf(Bracket picks) { return {std::move(picks), "", "", "", "Smith_JS.THC"}; }

PlayerScore playerScoreOf(const Entry& entry)
{
    const Result<PlayerScore> scored = scoreEntry(entry, startingField(), kUsual);
    EXPECT_TRUE(scored) << (scored ? "" : scored.failure().message);
    return scored ? *scored : PlayerScore{};
}

TEST(Score, GivesEverythingPossibleBeforeTheFirstGame)
{
    const Score scored = scoreOf(everyUpperTeamWins(), startingField());
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.possible, 168);
    EXPECT_EQ(scored.goodPicks, 0);
    EXPECT_EQ(scored.badPicks, 0);
}

TEST(Score, GivesEverythingPossibleAgainstEmptyResults)
{
    const Score scored = scoreOf(everyUpperTeamWins(), Bracket{});
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.possible, 168);
    EXPECT_EQ(scored.badPicks, 0);
}

TEST(Score, GivesAllPointsForARightBracket)
{
    const Score scored = scoreOf(everyUpperTeamWins(), everyUpperTeamWins());
    EXPECT_EQ(scored.points, 168);
    EXPECT_EQ(scored.possible, 0);
    EXPECT_EQ(scored.goodPicks, 63);
    EXPECT_EQ(scored.badPicks, 0);
}

TEST(Score, GivesNothingForABracketThatIsWrongEverywhere)
{
    const Score scored = scoreOf(everyUpperTeamWins(), everyLowerTeamWins());
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.possible, 0);
    EXPECT_EQ(scored.goodPicks, 0);
    EXPECT_EQ(scored.badPicks, 63);
}

TEST(Score, CountsTheGamesOfTheLastRegionAndOfTheFinals)
{
    // Only the first game of region 4 (position 109), its winner (123) and the last three games are decided.
    Bracket results = without(everyUpperTeamWins(), 0, 108);
    results = without(results, 110, 122);
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.goodPicks, 5) << "positions 109, 123, 124, 125, 126";
    EXPECT_EQ(scored.points, 1 + 8 + 12 + 12 + 16);
}

TEST(Score, NeverCountsTheStartingFieldThoughItsRowsAreGood)
{
    const Score scored = scoreOf(startingField(), startingField());
    EXPECT_EQ(scored.goodPicks, 0);
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.verdicts[Position{0}], Verdict::Good);
    EXPECT_EQ(scored.verdicts[Position{108}], Verdict::Good);
    EXPECT_EQ(scored.badPicks, 63) << "every game is open and without a pick";
}

TEST(Score, CountsAnotherTeamInARowBadAndEverythingThatItWasPickedFor)
{
    Bracket picks = everyUpperTeamWins();
    picks.put(Position{1}, "Team 99"); // Team 2 of the results; picked for nothing
    Score scored = scoreOf(picks, startingField());
    EXPECT_EQ(scored.badPicks, 1);
    EXPECT_EQ(scored.verdicts[Position{1}], Verdict::Bad);
    EXPECT_EQ(scored.verdicts[Position{0}], Verdict::Good) << "the other rows of the region stay good";
    EXPECT_EQ(scored.possible, 168);

    picks.put(Position{16}, "Team 99");
    scored = scoreOf(picks, startingField());
    EXPECT_EQ(scored.badPicks, 2);
    EXPECT_EQ(scored.possible, 168 - 1) << "Team 1 can still win from position 24 on: Team 3 may come from 17";
}

TEST(Score, CountsARowWithoutATeamBadThoughTheResultsHaveNoneEither)
{
    Bracket picks = everyUpperTeamWins();
    picks.clear(Position{1});
    const Score scored = scoreOf(picks, picks);
    EXPECT_EQ(scored.badPicks, 1);
    EXPECT_EQ(scored.verdicts[Position{1}], Verdict::Bad);
    EXPECT_EQ(scored.goodPicks, 63);
}

TEST(Score, CountsAnEmptyPickInAnOpenGameBadOnceAndNothingPossible)
{
    Bracket picks = everyUpperTeamWins();
    picks.clear(kChampion);
    Score scored = scoreOf(picks, startingField());
    EXPECT_EQ(scored.badPicks, 1);
    EXPECT_EQ(scored.possible, 168 - 16);

    picks.clear(Position{16}); // its winner in the next round still has the other feeder
    scored = scoreOf(picks, startingField());
    EXPECT_EQ(scored.badPicks, 2);
    EXPECT_EQ(scored.possible, 168 - 16 - 1);
}

TEST(Score, CountsAnEmptyPickInADecidedGameBadOnceAndEliminatesNobody)
{
    Bracket picks = everyUpperTeamWins();
    picks.clear(Position{16});
    Bracket results = startingField();
    results.put(Position{16}, "Team 1");
    const Score scored = scoreOf(picks, results);
    EXPECT_EQ(scored.badPicks, 1);
    EXPECT_EQ(scored.possible, 168 - 1) << "every later pick is as possible as before";
}

TEST(Score, TurnsTheLaterPicksOfATeamThatLostBad)
{
    // Team 1 was picked for positions 16, 24, 28, 30, 124 and 126 and loses its first game.
    Bracket results = startingField();
    results.put(Position{16}, "Team 2");
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.possible, 168 - (1 + 2 + 4 + 8 + 12 + 16));
    EXPECT_EQ(scored.badPicks, 6);
    for (const int position : {16, 24, 28, 30, 124, 126})
        EXPECT_EQ(scored.verdicts[Position{position}], Verdict::Bad) << position;
    EXPECT_EQ(scored.verdicts[Position{17}], Verdict::Possible);
}

TEST(Score, CountsEachEliminatedTeamsPicksOnce)
{
    // Positions 16 and 24 are both decided against Team 1; 17 against Team 3, which was picked for nothing else.
    Bracket results = startingField();
    results.put(Position{16}, "Team 2");
    results.put(Position{17}, "Team 4");
    results.put(Position{24}, "Team 2");
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.badPicks, 6 + 1);
    EXPECT_EQ(scored.possible, 168 - (1 + 2 + 4 + 8 + 12 + 16) - 1);
}

TEST(Score, LeavesAPickOpenThatNeitherEntrantCanReach)
{
    // Both first-round picks failed, but the next pick is a team that was never picked to get there.
    Bracket picks = everyUpperTeamWins();
    picks.put(Position{24}, "Team 2");
    Bracket results = startingField();
    results.put(Position{16}, "Team 2"); // picked: Team 1
    results.put(Position{17}, "Team 4"); // picked: Team 3
    const Score scored = scoreOf(picks, results);
    EXPECT_EQ(scored.verdicts[Position{24}], Verdict::Open);
    EXPECT_EQ(scored.badPicks, 2 + 4) << "positions 16 and 17, and Team 1 in 28, 30, 124 and 126";
    EXPECT_EQ(scored.possible, 168 - (1 + 1) - 2 - (4 + 8 + 12 + 16));
}

TEST(Score, KeepsTheChampionOpenThoughItsPointsArePossible)
{
    const Bracket results = without(everyUpperTeamWins(), 126, 126);
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.points, 152);
    EXPECT_EQ(scored.possible, 16);
    EXPECT_EQ(scored.verdicts[kChampion], Verdict::Open);
    EXPECT_EQ(scored.verdicts[kSemifinalB], Verdict::Good);
}

TEST(Score, FollowsALongChainOfGoodAndPossiblePicks)
{
    // Region 1 is played through; the champion comes from there.
    const Bracket results = without(everyUpperTeamWins(), 31, 126);
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.points, 8 * 1 + 4 * 2 + 2 * 4 + 8);
    EXPECT_EQ(scored.possible, 168 - 32);
    EXPECT_EQ(scored.goodPicks, 15);
    EXPECT_EQ(scored.verdicts[kSemifinalA], Verdict::Possible);
}

TEST(Score, ComparesNamesExactly)
{
    Bracket results = everyUpperTeamWins();
    results.put(Position{16}, "TEAM 1");
    results.put(Position{17}, "Team 3 ");
    const Score scored = scoreOf(everyUpperTeamWins(), results);
    EXPECT_EQ(scored.verdicts[Position{16}], Verdict::Bad);
    EXPECT_EQ(scored.verdicts[Position{17}], Verdict::Bad);
    EXPECT_EQ(scored.points, 166);
}

TEST(Score, NeverMatchesUnknownTeams)
{
    Bracket picks = everyUpperTeamWins();
    picks.put(Position{16}, "Nobody");
    picks.put(Position{24}, "Nobody");
    Bracket results = startingField();
    results.put(Position{16}, "Team 1");
    EXPECT_EQ(scoreOf(picks, results).badPicks, 2);
}

TEST(Score, NeverMatchesTwoUnknownTeamsOfOneNameEither)
{
    Bracket picks = everyUpperTeamWins();
    picks.put(kChampion, "Nobody"); // open: not known to have lost
    EXPECT_EQ(scoreOf(picks, startingField()).verdicts[kChampion], Verdict::Open);
    picks.put(Position{16}, "Nobody");
    Bracket results = startingField();
    results.put(Position{16}, "Team 2");
    EXPECT_EQ(scoreOf(picks, results).verdicts[kChampion], Verdict::Bad) << "it lost its game";
}

TEST(ScoreEntry, TakesTheOtherFinalistAsRunnerUp)
{
    Bracket picks = everyUpperTeamWins(); // finalists Team 1 and Team 33, champion Team 1
    EXPECT_EQ(playerScoreOf(entryOf(picks)).winningPick, "Team 1");
    EXPECT_EQ(playerScoreOf(entryOf(picks)).runnerUpPick, "Team 33");
    picks.put(kChampion, "Team 33"); // the second finalist
    EXPECT_EQ(playerScoreOf(entryOf(picks)).winningPick, "Team 33");
    EXPECT_EQ(playerScoreOf(entryOf(picks)).runnerUpPick, "Team 1");
}

TEST(ScoreEntry, HasNoNamesWhereNobodyIsPicked)
{
    const PlayerScore scored = playerScoreOf(entryOf(startingField()));
    EXPECT_EQ(scored.winningPick, "");
    EXPECT_EQ(scored.runnerUpPick, "");
}

TEST(ScoreEntry, JoinsInitialsAndName)
{
    const PlayerScore scored = playerScoreOf({everyUpperTeamWins(), "JS", "Smith", "", "Smith_JS.THC"});
    EXPECT_EQ(scored.playerName, "JS, Smith");
    EXPECT_EQ(scored.fileName, "Smith_JS.THC");
}

TEST(ScoreEntry, AddsEarnedAndPossiblePointsToTheMaximum)
{
    const Result<PlayerScore> scored =
        scoreEntry(entryOf(everyUpperTeamWins()), without(everyUpperTeamWins(), 31, 126), kUsual);
    ASSERT_TRUE(scored);
    EXPECT_EQ(scored->points, 32);
    EXPECT_EQ(scored->maxPoints, 168);
    EXPECT_EQ(scored->goodPicks, 15);
    EXPECT_EQ(scored->badPicks, 0);
    EXPECT_EQ(scored->verdicts[Position{30}], Verdict::Good);
    EXPECT_EQ(scored->verdicts[kSemifinalA], Verdict::Possible);
}

TEST(ScoreEntry, ReadsTheTieBreakerByItsLeadingNumber)
{
    Entry entry = entryOf(everyUpperTeamWins());
    EXPECT_EQ(playerScoreOf(entry).finalPoints, 0) << "empty";
    entry.finalPoints = "145";
    EXPECT_EQ(playerScoreOf(entry).finalPoints, 145);
    entry.finalPoints = " 12abc";
    EXPECT_EQ(playerScoreOf(entry).finalPoints, 12);
    entry.finalPoints = "abc";
    EXPECT_EQ(playerScoreOf(entry).finalPoints, 0);
    entry.finalPoints = "32767";
    EXPECT_EQ(playerScoreOf(entry).finalPoints, 32767);
}

TEST(ScoreEntry, FailsOnATieBreakerBeyondSixteenBitsAndNamesTheFile)
{
    Entry entry = entryOf(everyUpperTeamWins());
    entry.finalPoints = "32768";
    const Result<PlayerScore> scored = scoreEntry(entry, startingField(), kUsual);
    ASSERT_FALSE(scored);
    EXPECT_THAT(scored.failure().message, HasSubstr("predicted total points of Smith_JS.THC"));
}

TEST(ScoreEntry, FailsOnPointsBeyondSixteenBitsAndNamesTheFile)
{
    const Payoffs huge{600, 600, 600, 600, 600, 600}; // 63 games make 37,800
    const Entry entry = entryOf(everyUpperTeamWins());
    const Result<PlayerScore> earned = scoreEntry(entry, everyUpperTeamWins(), huge);
    ASSERT_FALSE(earned);
    EXPECT_EQ(earned.failure().message, "The points of Smith_JS.THC are too large to be counted.");
    EXPECT_FALSE(scoreEntry(entry, startingField(), huge)) << "possible";
    EXPECT_TRUE(scoreEntry(entry, everyLowerTeamWins(), huge)) << "neither";
}

TEST(ScoreEntry, GoesUpToTheLastNumberOfSixteenBits)
{
    // All of the championship: 32,767 for it and 152 for the other games.
    const Entry entry = entryOf(everyUpperTeamWins());
    const Payoffs largest{0, 0, 0, 0, 0, 32767};
    EXPECT_EQ(scoreEntry(entry, everyUpperTeamWins(), largest)->points, 32767);
    const Payoffs smallest{0, 0, 0, 0, 0, -32768};
    EXPECT_EQ(scoreEntry(entry, everyUpperTeamWins(), smallest)->points, -32768);
    EXPECT_FALSE(scoreEntry(entry, everyUpperTeamWins(), {0, 0, 0, 0, 1, 32767})) << "two more";
    EXPECT_FALSE(scoreEntry(entry, everyUpperTeamWins(), {0, 0, 0, 0, -1, -32768})) << "two less";
}

TEST(ScoreEntries, GivesOneScoreForEachInTheirOrder)
{
    const std::vector<Entry> entries{{everyUpperTeamWins(), "AB", "Adams", "150", "Adams_AB.THC"},
                                     {everyLowerTeamWins(), "C", "Baker", "99", "Baker_C.THC"}};
    const auto scores = scoreEntries(entries, without(everyUpperTeamWins(), 124, 126), kUsual);
    ASSERT_TRUE(scores);
    ASSERT_EQ(scores->size(), 2u);
    const PlayerScore& adams = scores->front();
    EXPECT_EQ(adams.fileName, "Adams_AB.THC");
    EXPECT_EQ(adams.playerName, "AB, Adams");
    EXPECT_EQ(adams.points, 128);
    EXPECT_EQ(adams.maxPoints, 168);
    EXPECT_EQ(adams.goodPicks, 60);
    EXPECT_EQ(adams.finalPoints, 150);
    const PlayerScore& baker = scores->back();
    EXPECT_EQ(baker.points, 0);
    EXPECT_EQ(baker.maxPoints, 0);
    EXPECT_EQ(baker.badPicks, 63);
    EXPECT_EQ(baker.winningPick, "Team 64");
}

TEST(ScoreEntries, FailsForANumberThatDoesNotFit)
{
    std::vector<Entry> entries(3, entryOf(everyUpperTeamWins()));
    entries[2].fileName = "Clark_D.THC";
    entries[2].finalPoints = "32768";
    const auto scores = scoreEntries(entries, startingField(), kUsual);
    ASSERT_FALSE(scores);
    EXPECT_THAT(scores.failure().message, HasSubstr("Clark_D.THC"));
}

TEST(ScoreEntries, StopsAfterTheStepThatSaysSo)
{
    const std::vector<Entry> entries(4, entryOf(everyUpperTeamWins()));
    int steps = 0;
    const auto scores = scoreEntries(entries, startingField(), kUsual, [&steps] { return ++steps < 2; });
    ASSERT_TRUE(scores);
    EXPECT_EQ(scores->size(), 2u);
    EXPECT_EQ(steps, 2);
}

TEST(ScoreEntries, OfNobodyIsEmpty)
{
    const auto scores = scoreEntries({}, startingField(), kUsual);
    ASSERT_TRUE(scores);
    EXPECT_TRUE(scores->empty());
}

} // namespace
} // namespace tallyhoop
