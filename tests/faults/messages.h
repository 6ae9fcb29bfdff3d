// tests/faults/messages.h - the messages about a file that could not be written, word for word.
#pragma once

#include "faults/faults.h"
#include "reports/report_table.h"
#include "ui/dialogs.h"

#include <filesystem>
#include <vector>

namespace tallyhoop::test {

/// For the files that the program itself names.
ui::Message checkSpace(const std::filesystem::path& file);

/// For selections and results.
ui::Message checkSelection(const std::filesystem::path& file);

/// For files that the person names.
ui::Message checkItsFolder(const std::filesystem::path& file);

/// The question before somebody else's changes are replaced.
ui::Message changedMeanwhile(const std::filesystem::path& file);

/// The offer to save the changed names, and that it failed.
std::vector<ui::Message> teamListTrouble(const std::filesystem::path& folder);

ui::Message damagedPlayerList(const std::filesystem::path& folder);

/// A report whose folder has vanished finds no selections, or no player list, before it comes to writing.
std::vector<ui::Message> reportTrouble(ReportId id, const std::filesystem::path& folder, const Fault& fault);

/// The selections are read before a name is asked for.
std::vector<ui::Message> tableTrouble(const std::filesystem::path& folder, const Fault& fault);

/// The page cannot be saved under a name that the person has chosen.
std::vector<ui::Message> savedPageTrouble(const std::filesystem::path& file, const Fault& fault);

/// The page that is to be mailed cannot be written.
std::vector<ui::Message> mailedPageTrouble(const std::filesystem::path& folder, const Fault& fault);

/// The outlook is read before anything happens to the folder.
ui::Message outlookTrouble(const Fault& fault);

/// So is the pool for the final sheet.
ui::Message finalSheetTrouble(const Fault& fault);

} // namespace tallyhoop::test
