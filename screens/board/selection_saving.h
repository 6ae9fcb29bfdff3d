// screens/board/selection_saving.h - the questions and refusals before a selection is saved.
#pragma once

#include "files/data_folder.h"
#include "pool/entry.h"
#include "pool/entry_check.h"
#include "screens/hand_overs.h"
#include "ui/dialogs.h"

#include <filesystem>
#include <optional>

namespace tallyhoop {

/// Says that nothing is saved before the field is finalized.
void refuseUntilFinalized(ui::Dialogs& dialogs);

/// Says what is missing or impossible in what was to be saved.
void refuseToSave(ui::Dialogs& dialogs, EntryFault fault);

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
