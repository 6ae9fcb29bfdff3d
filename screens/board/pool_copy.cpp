// screens/board/pool_copy.cpp - which files make a pool.
#include "screens/board/pool_copy.h"

#include "files/file_names.h"
#include "files/pool_backup.h"

#include <vector>

namespace tallyhoop {

namespace {

std::vector<std::filesystem::path> filesOfPool(const DataFolder& folder)
{
    std::vector<std::filesystem::path> files;
    for (const char* name :
         {file_name::kSetup, file_name::kResults, file_name::kPlayerNames, file_name::kTeamNames, file_name::kSettings})
        if (folder.exists(name))
            files.push_back(folder.pathTo(name));
    for (const FolderFile& file : folder.files(file_name::kSelectionExtension))
        files.push_back(file.path);
    return files;
}

} // namespace

std::string backUpPool(const DataFolder& folder, const ui::Platform& platform)
{
    const std::vector<std::filesystem::path> files = filesOfPool(folder);
    const Result<std::filesystem::path> backup = backUpFiles(folder, files, platform.clock.now());
    if (backup)
        return "Copied " + std::to_string(files.size()) + (files.size() == 1 ? " file" : " files") +
               " into the folder " + shown(backup->filename()) + ".";
    platform.dialogs.show(
        {"", "The pool could not be copied.\r\n \r\n" + backup.failure().message, ui::Buttons::Ok, ui::Icon::Critical});
    return "The pool was not copied.";
}

} // namespace tallyhoop
