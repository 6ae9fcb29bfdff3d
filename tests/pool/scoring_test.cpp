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
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Payoffs kUsual{1, 2, 4, 8, 12, 16};

ScoreLine lineOf(const SelectionLines& picks, const SelectionLines& results)
{
    ScoredVerdict verdict;
    const Result<ScoreLine> line = Scoring{results, kUsual}.line("Smith_JS.THC", picks, verdict);
    EXPECT_TRUE(line) << (line ? "" : line.failure().message);
    return line ? *line : ScoreLine{};
}

TEST(ScorePicks, GiveEverythingPossibleBeforeTheFirstGame)
{
    const ScoreLine line = lineOf(everyUpperTeamWins(), startingField());
    EXPECT_EQ(line.Points, 0);
    EXPECT_EQ(line.MaxPoints, 168);
    EXPECT_EQ(line.GoodPicks, 0);
    EXPECT_EQ(line.BadPicks, 0);
}

TEST(ScorePicks, GiveEverythingPossibleAgainstAnEmptyResultsFile)
{
    const ScoreLine line = lineOf(everyUpperTeamWins(), SelectionLines{});
    EXPECT_EQ(line.Points, 0);
    EXPECT_EQ(line.MaxPoints, 168);
    EXPECT_EQ(line.BadPicks, 0);
}

TEST(ScorePicks, GiveAllPointsForARightBracket)
{
    const ScoreLine line = lineOf(everyUpperTeamWins(), everyUpperTeamWins());
    EXPECT_EQ(line.Points, 168);
    EXPECT_EQ(line.MaxPoints, 168);
    EXPECT_EQ(line.GoodPicks, 63);
    EXPECT_EQ(line.BadPicks, 0);
}

TEST(ScorePicks, GiveNothingForABracketThatIsWrongEverywhere)
{
    const ScoreLine line = lineOf(everyUpperTeamWins(), everyLowerTeamWins());
    EXPECT_EQ(line.Points, 0);
    EXPECT_EQ(line.MaxPoints, 0);
    EXPECT_EQ(line.GoodPicks, 0);
    EXPECT_EQ(line.BadPicks, 63);
}

TEST(ScorePicks, CountTheGamesOfTheLastRegionAndOfTheFinals)
{
    // Only the first game of region 4 (slot 110) and everything behind slot 124 is decided.
    SelectionLines results = without(everyUpperTeamWins(), 1, 109);
    results = without(results, 111, 123);
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_EQ(scored.goodPicks, 5) << "slots 110, 124, 125, 126, 127";
    EXPECT_EQ(scored.points, 1 + 8 + 12 + 12 + 16);
}

TEST(ScorePicks, NeverCountTheStartingFieldThoughItsRowsAreGood)
{
    const ScoredPicks scored = Scoring{startingField(), kUsual}.score(startingField());
    EXPECT_EQ(scored.goodPicks, 0);
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.verdict.SlotStatus[1], Verdict::Good);
    EXPECT_EQ(scored.verdict.SlotStatus[109], Verdict::Good);
    EXPECT_EQ(scored.badPicks, 63) << "every game is open and without a pick";
}

TEST(ScorePicks, CountAnEmptyPickInAnOpenGameBadOnceAndNothingPossible)
{
    SelectionLines picks = everyUpperTeamWins();
    picks[127].clear();
    ScoreLine line = lineOf(picks, startingField());
    EXPECT_EQ(line.BadPicks, 1);
    EXPECT_EQ(line.MaxPoints, 168 - 16);

    picks[17].clear(); // its winner in the next round still has the other feeder
    line = lineOf(picks, startingField());
    EXPECT_EQ(line.BadPicks, 2);
    EXPECT_EQ(line.MaxPoints, 168 - 16 - 1);
}

TEST(ScorePicks, CountAnEmptyPickInADecidedGameBadOnceAndEliminateNobody)
{
    SelectionLines picks = everyUpperTeamWins();
    picks[17].clear();
    SelectionLines results = startingField();
    results[17] = "Team 1";
    const ScoredPicks scored = Scoring{results, kUsual}.score(picks);
    EXPECT_EQ(scored.badPicks, 1);
    EXPECT_THAT(scored.verdict.EliminatedTeams, IsEmpty());
    EXPECT_EQ(scored.possible, 168 - 1);
}

TEST(ScorePicks, TurnTheLaterPicksOfATeamThatLostBad)
{
    // Team 1 was picked for slots 17, 25, 29, 31, 125 and 127 and loses its first game.
    SelectionLines results = startingField();
    results[17] = "Team 2";
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_EQ(scored.points, 0);
    EXPECT_EQ(scored.possible, 168 - (1 + 2 + 4 + 8 + 12 + 16));
    EXPECT_EQ(scored.badPicks, 6);
    EXPECT_THAT(scored.verdict.EliminatedTeams, ElementsAre("Team 1"));
    for (const std::size_t slot : {17u, 25u, 29u, 31u, 125u, 127u})
        EXPECT_EQ(scored.verdict.SlotStatus[slot], Verdict::Bad) << slot;
    EXPECT_EQ(scored.verdict.SlotStatus[18], Verdict::Possible);
}

TEST(ScorePicks, NameEachEliminatedTeamOnceInOrderOfItsLoss)
{
    // Slots 17 and 25 are both decided against Team 1; slot 18 against Team 3 lies between them.
    SelectionLines results = startingField();
    results[17] = "Team 2";
    results[18] = "Team 4";
    results[25] = "Team 2";
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_THAT(scored.verdict.EliminatedTeams, ElementsAre("Team 1", "Team 3"));
}

TEST(ScorePicks, LeaveAPickOpenThatBothEntrantsCannotReach)
{
    // Both first-round picks failed, but the next pick is a team that was never picked to get there.
    SelectionLines picks = everyUpperTeamWins();
    picks[25] = "Team 2";
    SelectionLines results = startingField();
    results[17] = "Team 2"; // picked: Team 1
    results[18] = "Team 4"; // picked: Team 3
    const ScoredPicks scored = Scoring{results, kUsual}.score(picks);
    EXPECT_EQ(scored.verdict.SlotStatus[25], Verdict::Open);
    EXPECT_EQ(scored.badPicks, 2 + 4) << "slots 17 and 18, and Team 1 in 29, 31, 125 and 127";
    EXPECT_EQ(scored.possible, 168 - (1 + 1) - 2 - (4 + 8 + 12 + 16));
}

TEST(ScorePicks, KeepTheChampionOpenThoughItsPointsArePossible)
{
    const SelectionLines results = without(everyUpperTeamWins(), 127, 127);
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_EQ(scored.points, 152);
    EXPECT_EQ(scored.possible, 16);
    EXPECT_EQ(scored.verdict.SlotStatus[127], Verdict::Open);
    EXPECT_EQ(scored.verdict.SlotStatus[126], Verdict::Good);
}

TEST(ScorePicks, FollowALongChainOfGoodAndPossiblePicks)
{
    // Region 1 is played through; the champion comes from there.
    const SelectionLines results = without(everyUpperTeamWins(), 32, 127);
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_EQ(scored.points, 8 * 1 + 4 * 2 + 2 * 4 + 8);
    EXPECT_EQ(scored.possible, 168 - 32);
    EXPECT_EQ(scored.goodPicks, 15);
}

TEST(ScorePicks, CompareNamesExactly)
{
    SelectionLines results = everyUpperTeamWins();
    results[17] = "TEAM 1";
    results[18] = "Team 3 ";
    const ScoredPicks scored = Scoring{results, kUsual}.score(everyUpperTeamWins());
    EXPECT_EQ(scored.verdict.SlotStatus[17], Verdict::Bad);
    EXPECT_EQ(scored.verdict.SlotStatus[18], Verdict::Bad);
    EXPECT_EQ(scored.points, 166);
}

TEST(ScorePicks, OfUnknownTeamsNeverMatch)
{
    SelectionLines picks = everyUpperTeamWins();
    picks[17] = "Nobody";
    picks[25] = "Nobody";
    SelectionLines results = startingField();
    results[17] = "Team 1";
    const ScoredPicks scored = Scoring{results, kUsual}.score(picks);
    EXPECT_EQ(scored.badPicks, 2);
    EXPECT_THAT(scored.verdict.EliminatedTeams, ElementsAre("Nobody"));
}

TEST(ScoreLine, TakesTheOtherFinalistAsRunnerUp)
{
    SelectionLines picks = everyUpperTeamWins(); // finalists Team 1 and Team 33, champion Team 1
    EXPECT_EQ(lineOf(picks, startingField()).WinningPick, "Team 1");
    EXPECT_EQ(lineOf(picks, startingField()).RunnerUpPick, "Team 33");
    picks[127] = "Team 33"; // the champion stands on line 126
    EXPECT_EQ(lineOf(picks, startingField()).WinningPick, "Team 33");
    EXPECT_EQ(lineOf(picks, startingField()).RunnerUpPick, "Team 1");
}

TEST(ScoreLine, JoinsInitialsAndName)
{
    SelectionLines picks = everyUpperTeamWins();
    picks[selection_line::kInitials] = "JS";
    picks[selection_line::kName] = "Smith";
    const ScoreLine line = lineOf(picks, startingField());
    EXPECT_EQ(line.PlayerName, "JS, Smith");
    EXPECT_EQ(line.FileName, "Smith_JS.THC");
}

TEST(ScoreLine, ReadsTheTieBreakerByItsLeadingNumber)
{
    SelectionLines picks = everyUpperTeamWins();
    EXPECT_EQ(lineOf(picks, startingField()).FinalPoints, 0) << "empty";
    picks[selection_line::kFinalPoints] = "145";
    EXPECT_EQ(lineOf(picks, startingField()).FinalPoints, 145);
    picks[selection_line::kFinalPoints] = " 12abc";
    EXPECT_EQ(lineOf(picks, startingField()).FinalPoints, 12);
    picks[selection_line::kFinalPoints] = "abc";
    EXPECT_EQ(lineOf(picks, startingField()).FinalPoints, 0);
}

TEST(ScoreLine, FailsOnATieBreakerBeyondSixteenBitsAndNamesTheFile)
{
    SelectionLines picks = everyUpperTeamWins();
    picks[selection_line::kFinalPoints] = "32768";
    ScoredVerdict verdict;
    const Result<ScoreLine> line = Scoring{startingField(), kUsual}.line("Smith_JS.THC", picks, verdict);
    ASSERT_FALSE(line);
    EXPECT_THAT(line.failure().message, HasSubstr("Smith_JS.THC"));
}

TEST(ScoreLine, FailsOnPointsBeyondSixteenBits)
{
    ScoredVerdict verdict;
    const Payoffs huge{600, 600, 600, 600, 600, 600}; // 63 games make 37,800
    const SelectionLines picks = everyUpperTeamWins();
    EXPECT_FALSE(Scoring(everyUpperTeamWins(), huge).line("Smith_JS.THC", picks, verdict)) << "earned";
    EXPECT_FALSE(Scoring(startingField(), huge).line("Smith_JS.THC", picks, verdict)) << "possible";
    EXPECT_TRUE(Scoring(everyLowerTeamWins(), huge).line("Smith_JS.THC", picks, verdict)) << "neither";
}

TEST(PayoffsOf, ReadsLeadingNumbers)
{
    const Result<Payoffs> payoffs = payoffsOf({"1", " 2", "4 points", "abc", "12", ""});
    ASSERT_TRUE(payoffs);
    EXPECT_EQ(*payoffs, (Payoffs{1, 2, 4, 0, 12, 0}));
    EXPECT_FALSE(payoffsOf({"1", "2", "4", "8", "12", "40000"}));
}

} // namespace
} // namespace tallyhoop
