// files/selection_of_player.cpp - from a record to its file, and never to another.
#include "files/selection_of_player.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"

#include <system_error>
#include <vector>

namespace tallyhoop {

namespace {

std::string_view withoutExtension(std::string_view name)
{
    const std::string_view extension = file_name::kSelectionExtension;
    return endsWithFolded(name, extension) ? name.substr(0, name.size() - extension.size()) : name;
}

bool isSelectionFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored);
}

/// @returns the only selection file whose name begins with this text
std::optional<std::filesystem::path> onlyFileBeginningWith(const DataFolder& folder, std::string_view beginning)
{
    const Read<std::vector<FolderFile>> listed = folder.list(file_name::kSelectionExtension);
    if (listed.trouble)
        return std::nullopt; // there may be another one
    std::optional<std::filesystem::path> found;
    for (const FolderFile& file : listed.value) {
        if (!startsWithFolded(file.name, beginning))
            continue;
        if (found)
            return std::nullopt; // Better none than the wrong player's file.
        found = file.path;
    }
    return found;
}

} // namespace

std::string recordedFileName(const DataFolder& folder, const std::filesystem::path& file)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(file.parent_path(), folder.folder(), ignored))
        return upperCase(shown(file.filename()));
    const std::filesystem::path relative = file.lexically_relative(folder.folder());
    const bool inside = !relative.empty() && *relative.begin() != "..";
    return upperCase(shown(inside ? relative : file));
}

std::optional<std::filesystem::path> selectionFileOf(const DataFolder& folder, std::string_view recorded)
{
    const std::string name = trimTrailingBlanks(recorded);
    if (!isBareName(name))
        return std::nullopt;
    if (endsWithFolded(name, file_name::kSelectionExtension)) {
        const std::optional<std::filesystem::path> file = folder.pathOf(name);
        if (file && isSelectionFile(*file))
            return file;
    }
    // The blank that pads a short name and the one that a long name was cut at look the same.
    return onlyFileBeginningWith(folder, fitted(name, kFileNameWidth));
}

bool isCutName(std::string_view recorded, const std::filesystem::path& file)
{
    return !equalFolded(trimTrailingBlanks(recorded), shown(file.filename()));
}

bool isSameRecordedName(std::string_view left, std::string_view right)
{
    return equalFolded(trimTrailingBlanks(left), trimTrailingBlanks(right));
}

bool recordMeans(const DataFolder& folder, std::string_view recorded, std::string_view fileName)
{
    const std::string name = trimTrailingBlanks(recorded);
    const bool cut = fileName.size() > kFileNameWidth && !endsWithFolded(name, file_name::kSelectionExtension) &&
                     startsWithFolded(fileName, fitted(name, kFileNameWidth));
    if (!cut)
        return !name.empty() && equalFolded(withoutExtension(name), withoutExtension(fileName));
    const std::optional<std::filesystem::path> file = selectionFileOf(folder, name);
    return file && equalFolded(shown(file->filename()), fileName);
}

} // namespace tallyhoop
