// tests/screens/scores/score_selection_test.cpp - which of board and file is what, and what stays as it was.
#include "screens/scores/score_selection.h"

#include "fakes/fake_dialogs.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "pool/sample_brackets.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using test::everyUpperTeamWins;
using test::startingField;
using test::without;
using testing::HasSubstr;

struct ScoreSelectionTest : testing::Test {
    test::ScratchFolder scratch;
    test::FakeDialogs dialogs;
    modTallyhoop state;
    test::FakeBoard board{state};

    Result<ScoreLine> score(ScoreCaller caller, const std::string& file)
    {
        return ScoreSelection(caller, {file, scratch.path() / file}, dialogs, board, state);
    }

    static SelectionLines named(SelectionLines lines, const std::string& initials, const std::string& name,
                                const std::string& finalPoints = {})
    {
        lines[selection_line::kInitials] = initials;
        lines[selection_line::kName] = name;
        lines[selection_line::kFinalPoints] = finalPoints;
        return lines;
    }
};

TEST_F(ScoreSelectionTest, FromTheBoardTakesThePicksFromTheBoardAndTheResultsFromTheFile)
{
    board.onBoard = named(everyUpperTeamWins(), "JS", "Smith", "145");
    scratch.put("TALLYHOOP.THS", selectionFile(named(without(everyUpperTeamWins(), 32, 127), "A", "FinalResults")));

    const Result<ScoreLine> line = score(ScoreCaller::Bracket, "TALLYHOOP.THS");

    ASSERT_TRUE(line);
    EXPECT_EQ(line->FileName, "TALLYHOOP.THS");
    EXPECT_EQ(line->Points, 32) << "region 1 is right";
    EXPECT_EQ(line->MaxPoints, 168);
    EXPECT_EQ(line->PlayerName, "A, FinalResults") << "always from the file that was read";
    EXPECT_EQ(line->WinningPick, "Team 1");
    EXPECT_EQ(line->FinalPoints, 145);
    EXPECT_EQ(state.selectionLines, board.onBoard);
}

TEST_F(ScoreSelectionTest, FromTheScoreDisplayTakesTheResultsFromTheBoardAndThePicksFromTheFile)
{
    board.onBoard = named(without(everyUpperTeamWins(), 17, 127), "A", "FinalResults");
    board.onBoard[17] = "Team 2";
    scratch.put("Smith_JS.THC", selectionFile(named(everyUpperTeamWins(), "JS", "Smith", "145")));

    const Result<ScoreLine> line = score(ScoreCaller::ScoreDisplay, "Smith_JS.THC");

    ASSERT_TRUE(line);
    EXPECT_EQ(line->FileName, "Smith_JS.THC");
    EXPECT_EQ(line->PlayerName, "JS, Smith");
    EXPECT_EQ(line->Points, 0);
    EXPECT_EQ(line->MaxPoints, 168 - 43) << "the champion lost its first game";
    EXPECT_EQ(line->FinalPoints, 145);
    EXPECT_EQ(state.verdict.SlotStatus[17], Verdict::Bad);
    EXPECT_EQ(state.verdict.EliminatedTeams, std::vector<std::string>{"Team 1"});
    EXPECT_EQ(state.selectionLines, board.onBoard);
}

TEST_F(ScoreSelectionTest, GivesTheSameLineTwiceInARow)
{
    board.onBoard = without(everyUpperTeamWins(), 60, 127);
    scratch.put("Smith_JS.THC", selectionFile(named(test::everyLowerTeamWins(), "JS", "Smith", "145")));
    const Result<ScoreLine> first = score(ScoreCaller::ScoreDisplay, "Smith_JS.THC");
    const ScoredVerdict verdict = state.verdict;
    const Result<ScoreLine> second = score(ScoreCaller::ScoreDisplay, "Smith_JS.THC");
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_EQ(*first, *second);
    EXPECT_EQ(state.verdict.EliminatedTeams, verdict.EliminatedTeams);
    EXPECT_EQ(state.verdict.SlotStatus, verdict.SlotStatus);
}

TEST_F(ScoreSelectionTest, ReportsAMissingFileAndScoresEmptyPicks)
{
    board.onBoard = startingField();
    const Result<ScoreLine> line = score(ScoreCaller::ScoreDisplay, "Nobody_XX.THC");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->Points, 0);
    EXPECT_EQ(line->BadPicks, 127) << "64 rows that do not match and 63 open games without a pick";
    EXPECT_EQ(line->PlayerName, ", ");
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(dialogs.shown[0].caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_THAT(dialogs.shown[0].text, HasSubstr("Nobody_XX.THC"));
}

TEST_F(ScoreSelectionTest, ReportsADamagedFileAndScoresWhatItHolds)
{
    board.onBoard = startingField();
    std::string bytes = selectionFile(named(everyUpperTeamWins(), "JS", "Smith"));
    bytes.resize(bytes.size() - std::string_view{"*END*\r\n"}.size());
    scratch.put("Smith_JS.THC", bytes);
    const Result<ScoreLine> line = score(ScoreCaller::ScoreDisplay, "Smith_JS.THC");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->MaxPoints, 168);
    EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(ScoreSelectionTest, FailsWhenAPayoffOfTheBoardDoesNotFit)
{
    board.shownPayoffs = Failure{"too large"};
    const Result<ScoreLine> line = score(ScoreCaller::ScoreDisplay, "Smith_JS.THC");
    ASSERT_FALSE(line);
    EXPECT_EQ(line.failure().message, "too large");
}

TEST_F(ScoreSelectionTest, FailsWhenATieBreakerDoesNotFitAndKeepsTheBoardsLines)
{
    board.onBoard = startingField();
    scratch.put("Smith_JS.THC", selectionFile(named(everyUpperTeamWins(), "JS", "Smith", "99999")));
    EXPECT_FALSE(score(ScoreCaller::ScoreDisplay, "Smith_JS.THC"));
    EXPECT_EQ(state.selectionLines, board.onBoard);
}

} // namespace
} // namespace tallyhoop
