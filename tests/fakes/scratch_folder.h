// tests/fakes/scratch_folder.h - a folder of a test's own, gone when the test ends.
#pragma once

#include "files/data_folder.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tallyhoop::test {

class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    DataFolder folder() const { return DataFolder{m_path}; }

    /// @returns what messages have before the name of a file that is there
    std::string shownPrefix() const { return folder().shownPathOf(""); }

    /// Puts a file there, bytes as given.
    std::filesystem::path put(std::string_view name, std::string_view bytes) const;

    /// @returns a file's bytes; a missing file fails the test
    std::string get(std::string_view name) const;

    /// @returns whether a file or folder is there, in just this spelling
    bool has(std::string_view name) const;

private:
    std::filesystem::path m_path;
};

/// @returns lines joined as our files have them, each ended by CR LF
std::string crlf(std::initializer_list<std::string_view> lines);

} // namespace tallyhoop::test
