// screens/board/selection_saving.h - the questions before a player's selection is saved.
#pragma once

#include "files/data_folder.h"
#include "pool/entry.h"
#include "screens/hand_overs.h"
#include "ui/dialogs.h"

#include <filesystem>
#include <optional>

namespace tallyhoop {

/// Where a selection is to be saved.
struct SaveTarget {
    std::filesystem::path file;
    SaveKind kind = SaveKind::NewFile;
};

/// The caption of the file dialogs of selections, and what they offer.
ui::FileChoice selectionChoice(const DataFolder& folder, const char* caption, std::string proposedName);

/// Asks for a file, and whether it is meant when that is not plain. In demo mode only the opened file may be saved.
/// @param opened the file the entry was opened from or saved in last; empty = none
/// @returns nothing when the person does not want it after all, or was refused
std::optional<SaveTarget> askWhereToSave(ui::Dialogs& dialogs, const DataFolder& folder, const Entry& entry,
                                         const std::filesystem::path& opened);

} // namespace tallyhoop
