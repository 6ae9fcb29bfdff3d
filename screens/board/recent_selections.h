// screens/board/recent_selections.h - the selections used last, and the neighbours of the open one in the folder.
#pragma once

#include "files/data_folder.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

class RecentSelections
{
public:
    /// Begins with the selections of the folder that were saved last.
    void begin(const DataFolder& folder);

    /// A selection was opened or saved.
    void note(const std::filesystem::path& file);

    /// A selection could not be read.
    void forget(const std::filesystem::path& file);

    /// @returns their names as text, that used last first; at most kRecentSelections
    std::vector<std::string> names() const;

    /// @returns the file at a place of names(); nothing when there is none
    std::optional<std::filesystem::path> at(std::size_t index) const;

private:
    std::vector<std::filesystem::path> m_files;
};

/// @param selections those of the folder, in order
/// @param opened     empty, or none of them: the first selection is after it, and the last one before it
/// @param step       1 = after the opened file, -1 = before it
/// @returns the selection, nothing at the end of the list
std::optional<std::filesystem::path> neighbouringSelection(std::span<const FolderFile> selections,
                                                           const std::filesystem::path& opened, int step);

} // namespace tallyhoop
