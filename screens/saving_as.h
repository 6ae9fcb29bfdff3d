// screens/saving_as.h - files that the person names: where they go, and whether one that is there may be replaced.
#pragma once

#include "files/data_folder.h"
#include "ui/platform.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Asks where something is to be saved. Nothing is asked yet about a file that is there.
/// @param extension such as ".PDF"; a name that does not end in it, in any case, gets it
/// @returns nothing when cancelled
std::optional<std::filesystem::path> chooseFileToSave(ui::Dialogs& dialogs, const ui::FileChoice& choice,
                                                      std::string_view extension);

/// Asks once before files that are there are replaced. @returns whether these files may be written
bool mayReplace(ui::Dialogs& dialogs, std::span<const std::filesystem::path> files);

/// What is saved under a name that the person chooses.
struct FileToSave {
    std::string caption;    ///< of the file dialog
    std::string filterName; ///< such as "Web pages (*.HTML)"
    std::string extension;  ///< such as ".HTML"
    std::string proposedName;
    std::string bytes;
};

/// Asks for the name, beginning in the program's folder, and about a file that is there, and writes the file as a whole
/// or not at all. The player list and the prizes are not replaced by it. What goes wrong is shown.
/// @returns the file; nothing when it was not written
std::optional<std::filesystem::path> saveAs(const ui::Platform& platform, const DataFolder& folder,
                                            const FileToSave& what);

} // namespace tallyhoop
