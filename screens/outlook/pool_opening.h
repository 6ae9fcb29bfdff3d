// screens/outlook/pool_opening.h - reads the pool for the outlook, and says what is not in it.
#pragma once

#include "files/data_folder.h"
#include "pool/entry.h"
#include "screens/board_printouts.h"
#include "ui/platform.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// A pool as it is in its files.
struct OpenedPool {
    Pool pool;                      ///< without the players of whom nothing could be read
    std::size_t missing = 0;        ///< how many those are
    std::size_t inPart = 0;         ///< how many of the others' selections could not be read whole
    bool isCancelled = false;       ///< by the person: not everybody is there
    bool unsavedResults = false;    ///< the board holds results that are not saved; these here are the saved ones
    bool isFieldDamaged = false;    ///< the setup file was not read whole, if at all
    bool areResultsDamaged = false; ///< the same of the results file
    bool isListDamaged = false;     ///< the folder was not listed whole: who is missing is not known
};

/// Reads the pool under a progress window that can be cancelled. Shows no message.
OpenedPool openPool(const DataFolder& folder, const ui::Platform& platform, const BoardPrintouts& board);

/// Shows all files that could not be read, with their reasons, in one message; so many that it has a page for each
/// dozen are turned over with a button. Nothing is shown when all was read.
void showUnread(ui::Dialogs& dialogs, const OpenedPool& opened);

/// @returns what of the pool was not read, such as "2 players are missing: their selections cannot be read": lines of
/// up
///          to 75 characters, without full stops; none when all was read
std::vector<std::string> unreadInWords(const OpenedPool& opened);

} // namespace tallyhoop
