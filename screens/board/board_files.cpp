// screens/board/board_files.cpp - reads, completes and saves; shows what went wrong.
#include "screens/board/board_files.h"

#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "pool/results.h"
#include "screens/board/selection_changes.h"
#include "screens/saving.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyhoop {

Read<Entry> BoardFiles::read(const std::filesystem::path& file, const Field& field)
{
    m_known.note(file);
    Read<Entry> read = readSelectionFile(file, startingBracket(field));
    if (read.trouble) {
        m_known.noteDamage(file);
        showReadingTrouble(m_platform.dialogs, file);
    }
    return read;
}

Entry BoardFiles::readResults(const Field& field)
{
    if (resultsExist())
        return completedResults(read(results(), field).value, field);
    m_known.note(results());
    return newResults(field);
}

bool BoardFiles::write(const std::filesystem::path& file, Entry entry, const Field& field)
{
    entry.initials = upperCase(entry.initials);
    const auto changesIn = [&](std::string_view bytes) {
        const Read<Entry> theirs = readSelection(bytes, entry.picks);
        std::vector<std::string> lines = selectionChanges(field, entry, theirs.value);
        if (theirs.trouble)
            lines.insert(lines.begin(), "The file is damaged, and could not be read whole.");
        return lines;
    };
    return saveFile(m_platform, m_known, file, selectionFile(entry), shown(file), " Check your selection and retry.",
                    changesIn);
}

std::filesystem::path BoardFiles::results() const { return m_folder.pathTo(file_name::kResults); }

bool BoardFiles::resultsExist() const { return m_folder.exists(file_name::kResults); }

bool BoardFiles::selectionsExist() const { return !m_folder.files(file_name::kSelectionExtension).empty(); }

bool BoardFiles::isScored(const std::filesystem::path& file) const
{
    return isSameFile(file, m_folder.folder() / file.filename());
}

void BoardFiles::checkPlayers(bool& folderTroubleSaid)
{
    const bool isThere = m_folder.exists(file_name::kPlayerNames);
    m_playersFaulty = isThere && !playerListIsSound(m_platform.dialogs, m_folder);
    if (!isThere)
        createDataFile(m_platform.dialogs, m_folder, file_name::kPlayerNames, playerNamesFile({}), folderTroubleSaid);
}

} // namespace tallyhoop
