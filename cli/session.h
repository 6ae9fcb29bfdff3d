// cli/session.h - what every verb works with: the folder, where the output goes, and the faults that are reported.
#pragma once

#include "files/data_folder.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop::cli {

/// The exit statuses of the program.
inline constexpr int kDone = 0;
inline constexpr int kFaultsFound = 1;
inline constexpr int kUsedWrongly = 2;

/// What a person calls the program with, whatever the verb.
struct CommonOptions {
    std::filesystem::path folder;             ///< of the pool
    std::optional<std::filesystem::path> out; ///< nothing = the standard output
};

class Session
{
public:
    explicit Session(CommonOptions options);

    const DataFolder& folder() const { return m_folder; }

    /// Reports a fault on the error stream, in UTF-8 on a line of its own.
    /// @param words Windows-1252; line breaks become blanks
    void fault(std::string_view words);

    /// The same for a fault in a file, which is named first.
    void faultIn(std::string_view file, std::string_view words);

    /// Writes what a verb has made: to the file as a whole or not at all, else to the standard output.
    /// @param bytes as the program writes them into a file
    void write(const std::string& bytes);

    /// The same for the text of a report: on a terminal it is shown in UTF-8.
    /// @param bytes Windows-1252, lines ended by CR LF
    void writeText(const std::string& bytes);

    /// @returns kFaultsFound when a fault was reported, else kDone
    int status() const { return m_faults == 0 ? kDone : kFaultsFound; }

private:
    CommonOptions m_options;
    DataFolder m_folder;
    std::size_t m_faults = 0;
};

} // namespace tallyhoop::cli
