// screens/scores/score_selection.cpp - the shell around scoring: capture, read, score, restore.
#include "screens/scores/score_selection.h"

#include "files/selection_file.h"

namespace tallyhoop {

namespace {

/// The board's picks against the results of a file.
Result<ScoreLine> scoreBoard(const std::string& fileName, const SelectionLines& results, const Payoffs& payoffs,
                             modTallyhoop& state)
{
    const Result<ScoreLine> scored = Scoring{results, payoffs}.line(fileName, state.selectionLines, state.verdict);
    if (!scored)
        return scored;
    // The player's name is always taken from the file that was read, here the results.
    ScoreLine line = *scored;
    line.PlayerName = results[selection_line::kInitials] + ", " + results[selection_line::kName];
    return line;
}

} // namespace

Result<ScoreLine> scoreFile(const FolderFile& file, const Scoring& scoring, ui::Dialogs& dialogs,
                            ScoredVerdict& verdict)
{
    SelectionLines picks;
    ReadSelections(file.path, dialogs, picks);
    return scoring.line(file.name, picks, verdict);
}

Result<ScoreLine> ScoreSelection(ScoreCaller caller, const FolderFile& file, ui::Dialogs& dialogs, BracketBoard& board,
                                 modTallyhoop& state)
{
    board.captureBoard();
    const Result<Payoffs> payoffs = board.payoffs();
    if (!payoffs)
        return payoffs.failure();
    SelectionLines fromFile;
    ReadSelections(file.path, dialogs, fromFile);
    return caller == ScoreCaller::Bracket
               ? scoreBoard(file.name, fromFile, *payoffs, state)
               : Scoring{state.selectionLines, *payoffs}.line(file.name, fromFile, state.verdict);
}

} // namespace tallyhoop
