// screens/saving_as.cpp - the file dialog, the question, the tables of the pool that are kept, and the save.
#include "screens/saving_as.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/known_files.h"
#include "screens/saving.h"

#include <array>
#include <system_error>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

constexpr const char* kCheckSpace = " Check for adequate space in its folder";

/// A table of the pool's own, which another one must not replace.
struct OwnTable {
    const char* file;
    const char* sentence;
};

constexpr std::array kOwnTables{
    OwnTable{file_name::kPlayerNames, "This is the list of players, which the pool needs:"},
    OwnTable{file_name::kPrizes, "These are the fees and the prizes, which the pool needs:"}};

ui::Message isNeeded(const OwnTable& table, const fs::path& file)
{
    return {"", joinLines({table.sentence, shown(file), " ", "Choose another name."}), ui::Buttons::Ok,
            ui::Icon::Exclamation};
}

} // namespace

std::optional<fs::path> chooseFileToSave(ui::Dialogs& dialogs, const ui::FileChoice& choice, std::string_view extension)
{
    std::optional<fs::path> file = dialogs.saveFile(choice);
    if (file && !endsWithFolded(file->filename().string(), extension))
        *file += extension;
    return file;
}

bool mayReplace(ui::Dialogs& dialogs, std::span<const fs::path> files)
{
    std::string existing;
    for (const fs::path& file : files) {
        std::error_code unknown;
        if (fs::exists(file, unknown))
            existing += "\r\n" + shown(file);
    }
    if (existing.empty())
        return true;
    const char* const question = files.size() == 1 ? "Do you want to replace the existing file ?"
                                                   : "Do you want to replace the existing files ?";
    return dialogs.show({"", question + existing, ui::Buttons::YesNo, ui::Icon::Question}) == ui::Answer::Yes;
}

std::optional<fs::path> saveAs(const ui::Platform& platform, const DataFolder& folder, const FileToSave& what)
{
    const std::optional<fs::path> file = chooseFileToSave(
        platform.dialogs, {what.caption, what.filterName, "*" + what.extension, folder.folder(), what.proposedName},
        what.extension);
    if (!file)
        return std::nullopt;
    for (const OwnTable& table : kOwnTables)
        if (isSameFile(*file, folder.pathTo(table.file))) {
            platform.dialogs.show(isNeeded(table, *file));
            return std::nullopt;
        }
    KnownFiles unknown; // the question below is enough: nobody has been shown what is in the file
    if (!mayReplace(platform.dialogs, std::span{&*file, 1}) ||
        !saveFile(platform, unknown, *file, what.bytes, shown(*file), kCheckSpace))
        return std::nullopt;
    return file;
}

} // namespace tallyhoop
