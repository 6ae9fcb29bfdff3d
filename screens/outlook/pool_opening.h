// screens/outlook/pool_opening.h - reads the pool for the outlook, and says what is not in it.
#pragma once

#include "files/data_folder.h"
#include "output/opened_pool.h"
#include "screens/board_printouts.h"
#include "ui/platform.h"

namespace tallyhoop {

/// Reads the pool under a progress window that can be cancelled. Shows no message.
OpenedPool openPool(const DataFolder& folder, const ui::Platform& platform, const BoardPrintouts& board);

/// Shows all files that could not be read, with their reasons, in one message; so many that it has a page for each
/// dozen are turned over with a button. Nothing is shown when all was read.
void showUnread(ui::Dialogs& dialogs, const OpenedPool& opened);

} // namespace tallyhoop
