// files/data_folder.h - the program's folder: where every data file is, found by its bare name.
//
// Names are matched without regard to case on every platform: a folder copied from elsewhere must work as it is. Of two
// names that differ only in case the exact one wins. A name that is empty, "." or "..", or that contains a separator, a
// NUL or a drive colon is refused: nothing that comes out of a file leads outside the folder.
#pragma once

#include "base/result.h"
#include "files/replace_file.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A file of the folder: its name as text (Windows-1252) and the path that opens it.
struct FolderFile {
    std::string name;
    std::filesystem::path path;
};

/// Joins a folder and a bare name with one separator, none when the folder already ends with it.
std::string joinPath(std::string_view folder, char separator, std::string_view name);

class DataFolder
{
public:
    explicit DataFolder(std::filesystem::path folder);

    const std::filesystem::path& folder() const { return m_folder; }

    /// @returns the path of the entry of this name, or of a new file of this name; nothing for a refused name
    std::optional<std::filesystem::path> pathOf(std::string_view name) const;

    /// @param name one of the program's own, never a refused one
    /// @returns the same path
    std::filesystem::path pathTo(std::string_view name) const;

    /// @returns whether an entry of this name is there; false for a refused name
    bool exists(std::string_view name) const;

    /// @returns the names of all entries that are this name but for the case of their letters, in byte order
    std::vector<std::string> spellingsOf(std::string_view name) const;

    /// @param extension such as ".THC", matched in any case
    /// @returns the regular files with this extension in ascending case-insensitive order, equal ones in byte order;
    ///          the trouble when the folder cannot be listed, or not whole
    Read<std::vector<FolderFile>> list(std::string_view extension) const;

    /// The same for those who need no reason; empty when the folder cannot be listed.
    std::vector<FolderFile> files(std::string_view extension) const { return list(extension).value; }

    /// @returns the whole file, or a failure with the system's reason, also when it is larger than may be
    Result<std::string> read(std::string_view name, std::size_t mostBytes = kMostBytesOfList) const;

    /// Replaces the file as a whole.
    Result<Done> write(std::string_view name, std::string_view bytes) const;

    /// Deletes the file; succeeds when there is none.
    Result<Done> remove(std::string_view name) const;

    /// Whether a file can be made here: tries it with a hidden temporary file.
    Result<Done> checkWritable() const;

    /// @returns the full path of a bare name as text for people
    std::string shownPathOf(std::string_view name) const;

private:
    std::filesystem::path m_folder;
};

/// @returns a path as text for people and for fields of files; never opened
std::string shown(const std::filesystem::path& path);

/// @returns the system's own form of a name
std::filesystem::path nativeName(std::string_view name);

/// @returns true for a name that a file of the folder may have
bool isBareName(std::string_view name);

/// Finds what a person means by a path that was typed or chosen: the entry of exactly this name, or one of its folder
/// whose name differs from it only in case. A name with a letter that our code page lacks means itself only.
/// @returns nothing when there is none
std::optional<std::filesystem::path> findInAnyCase(const std::filesystem::path& path);

/// @returns true when both are the same file, or would be: same folder, same name without regard to case
bool isSameFile(const std::filesystem::path& left, const std::filesystem::path& right);

/// Replaces what cannot be part of a proposed file name by "_", and keeps away from devices: "AUX.THC" gives
/// "AUX_.THC".
std::string withoutUnsafeCharacters(std::string_view name);

} // namespace tallyhoop
