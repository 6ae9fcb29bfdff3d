// screens/board/board_files.h - the pool's files as the board uses them: selections, the results, the list of players.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "pool/entry.h"
#include "pool/field.h"
#include "ui/platform.h"

#include <filesystem>

namespace tallyhoop {

/// Failures are shown here, in the words of the board. A file that was read or saved here is not overwritten unasked
/// when somebody else has changed it since.
class BoardFiles
{
public:
    /// Both outlive it.
    BoardFiles(const DataFolder& folder, const ui::Platform& platform) : m_folder{folder}, m_platform{platform} {}

    /// @returns what the file holds; where it cannot be read, what a fresh board on this field holds. The trouble is
    ///          shown already
    Read<Entry> read(const std::filesystem::path& file, const Field& field);

    /// @returns the results, completed from the field; new ones when there is no file yet
    Entry readResults(const Field& field);

    /// Saves a selection or the results, the initials in capitals.
    /// @param field names the places of the bracket when the changes of somebody else are shown
    /// @returns false when it failed or the person did not want to replace the file
    bool write(const std::filesystem::path& file, Entry entry, const Field& field);

    std::filesystem::path results() const;
    bool resultsExist() const;

    /// Whether there is a selection in the folder.
    bool selectionsExist() const;

    /// @returns whether a selection in this file is in the folder that is scored
    bool isScored(const std::filesystem::path& file) const;

    /// Looks whether the list of players can be used, and writes an empty one when there is none.
    /// @param folderTroubleSaid whether it was said that the folder cannot be written: then it is not said again
    void checkPlayers(bool& folderTroubleSaid);

    /// @returns whether the list had to be repaired when it was last looked at
    bool playersAreFaulty() const { return m_playersFaulty; }

private:
    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    KnownFiles m_known;
    bool m_playersFaulty = false;
};

} // namespace tallyhoop
