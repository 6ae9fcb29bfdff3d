// scoring/score_selection.cpp - the shell around scoring: capture, read, score, restore.
#include "scoring/score_selection.h"

#include "model/selection_file.h"

namespace tallyhoop {

namespace {

/// @returns the file's lines; trouble is told to the person and what was read stands
SelectionLines linesOfFile(const std::string& fileName, const DataFolder& folder, ui::Dialogs& dialogs)
{
    SelectionLines lines;
    if (const auto path = folder.pathOf(fileName))
        ReadSelections(*path, dialogs, lines);
    else
        showReadingTrouble(fileName, dialogs);
    return lines;
}

std::string playerName(const SelectionLines& lines)
{
    return lines[selection_line::kInitials] + ", " + lines[selection_line::kName];
}

} // namespace

Result<ScoreLine> ScoreSelection(ScoreCaller caller, const std::string& fileName, const DataFolder& folder,
                                 ui::Dialogs& dialogs, BracketBoard& board, modTallyhoop& state)
{
    board.captureBoard();
    const Result<Payoffs> payoffs = board.payoffs();
    if (!payoffs)
        return payoffs.failure();

    const SelectionLines fromFile = linesOfFile(fileName, folder, dialogs);
    if (caller == ScoreCaller::ScoreDisplay)
        return scoreLine(fileName, fromFile, state.selectionLines, *payoffs, state.verdict);

    Result<ScoreLine> scored = scoreLine(fileName, state.selectionLines, fromFile, *payoffs, state.verdict);
    if (!scored)
        return scored;
    // The player's name is always taken from the file that was read, here the results.
    ScoreLine line = *scored;
    line.PlayerName = playerName(fromFile);
    return line;
}

} // namespace tallyhoop
