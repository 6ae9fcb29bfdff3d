// screens/scores/score_selection.h - ScoreSelection: reads a file, scores, and leaves the shared lines as they were.
#pragma once

#include "files/data_folder.h"
#include "pool/scoring.h"
#include "screens/mod_tallyhoop.h"
#include "screens/screens.h"
#include "ui/dialogs.h"

namespace tallyhoop {

/// Who asks for a score: it decides which of the file and the shared lines are the picks and which the results.
enum class ScoreCaller {
    Bracket,      ///< the board holds the picks, the file the results
    ScoreDisplay, ///< the board holds the results, the file the picks
};

/// Scores one player's file. One that cannot be read is reported by its reader and scored as far as it was read. The
/// verdict is rewritten.
/// @returns a failure when a number does not fit 16 bits
Result<ScoreLine> scoreFile(const FolderFile& file, const Scoring& scoring, ui::Dialogs& dialogs,
                            ScoredVerdict& verdict);

/// Captures the board into the shared lines, reads a file, scores one against the other, and puts the shared lines
/// back. The shared verdict is rewritten.
/// @param file one that cannot be read is reported by its reader and scored as far as it was read
/// @returns a failure when a number does not fit 16 bits
Result<ScoreLine> ScoreSelection(ScoreCaller caller, const FolderFile& file, ui::Dialogs& dialogs, BracketBoard& board,
                                 modTallyhoop& state);

} // namespace tallyhoop
