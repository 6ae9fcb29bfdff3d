// screens/board/pool_copy.cpp - which files make a pool.
#include "screens/board/pool_copy.h"

#include "files/file_names.h"
#include "files/pool_backup.h"

#include <vector>

namespace tallyhoop {

namespace {

/// @returns a failure when a selection could be missing
Result<std::vector<std::filesystem::path>> filesOfPool(const DataFolder& folder)
{
    const Read<std::vector<FolderFile>> selections = folder.list(file_name::kSelectionExtension);
    if (selections.trouble)
        return Failure{shown(folder.folder()) + "\r\n" + selections.trouble->message};
    std::vector<std::filesystem::path> files;
    for (const char* name : {file_name::kSetup, file_name::kResults, file_name::kPlayerNames, file_name::kPrizes,
                             file_name::kTeamNames, file_name::kSettings})
        if (folder.exists(name))
            files.push_back(folder.pathTo(name));
    for (const FolderFile& file : selections.value)
        files.push_back(file.path);
    return files;
}

std::string sayFailed(ui::Dialogs& dialogs, const Failure& failure)
{
    dialogs.show({"", "The pool could not be copied.\r\n \r\n" + failure.message, ui::Buttons::Ok, ui::Icon::Critical});
    return "The pool was not copied.";
}

} // namespace

std::string backUpPool(const DataFolder& folder, const ui::Platform& platform)
{
    const Result<std::vector<std::filesystem::path>> files = filesOfPool(folder);
    if (!files)
        return sayFailed(platform.dialogs, files.failure());
    const Result<std::filesystem::path> backup = backUpFiles(folder, *files, platform.clock.now());
    if (!backup)
        return sayFailed(platform.dialogs, backup.failure());
    return "Copied " + std::to_string(files->size()) + (files->size() == 1 ? " file" : " files") + " into the folder " +
           shown(backup->filename()) + ".";
}

} // namespace tallyhoop
