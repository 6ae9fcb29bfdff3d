// screens/players/players_screen_rows.cpp - records between the boxes and the rows of the list.
#include "screens/players/players_screen.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_of_player.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop {

void PlayersScreen::fillList()
{
    std::vector<std::string> rows;
    for (const PlayerRecord& record : readPlayerNames(m_folder))
        rows.push_back(playerRow(record));
    std::ranges::stable_sort(rows, FoldedLess{});
    lstNames.rows = std::move(rows);
}

/// @param fileName as recordedFileName() gives it, or as a record has it
/// @param player   the name in the player's record
/// @returns the row that means the file. One whose name was cut may mean another player's file, also one that is gone:
///          it has to have the player's name.
std::optional<int> PlayersScreen::rowOfFile(const std::vector<std::string>& rows, std::string_view fileName,
                                            std::string_view player) const
{
    const bool isCut = fileName.size() > kFileNameWidth;
    const auto found = std::ranges::find_if(rows, [&](const std::string& row) {
        const PlayerRecord record = parsePlayerRow(row);
        return recordMeans(m_folder, record.fileName, fileName) &&
               (!isCut || equalFolded(record.name, fitted(player, kNameWidth)));
    });
    return found == rows.end() ? std::nullopt : std::optional{static_cast<int>(found - rows.begin())};
}

void PlayersScreen::takeRowOut(int row, const std::string& playerName)
{
    const auto at = lstNames.rows.begin() + row;
    fillBoxes(parsePlayerRow(*at));
    txtName.text = playerName;
    lstNames.rows.erase(at);
    m_boxesHoldRecord = true;
    m_changed = true;
}

void PlayersScreen::showSelectedRow()
{
    if (lstNames.selected)
        fillBoxes(parsePlayerRow(lstNames.selectedText()));
}

/// @returns the record that means the file in the boxes: the player's if there is one, else another's. Its player may
///          have been renamed; only the person knows.
std::optional<PlayerRecord> PlayersScreen::recordOfFileInBoxes() const
{
    // The box may show the saved file's name cut by then, after a first try that failed.
    const std::string fileName = m_boxesHoldSaved ? recordedFileName(m_folder, m_saved->file) : txtFileName.text;
    if (const std::optional<int> players = rowOfFile(lstNames.rows, fileName, txtName.text))
        return parsePlayerRow(lstNames.rows[static_cast<std::size_t>(*players)]);
    for (const std::string& row : lstNames.rows)
        if (PlayerRecord record = parsePlayerRow(row); recordMeans(m_folder, record.fileName, fileName))
            return record;
    return std::nullopt;
}

/// @returns whether a row other than the selected one has this file name, or the player to be added will have it
bool PlayersScreen::anotherPlayerHasName(std::string_view recorded) const
{
    if (m_mode == SaveKind::NewFile &&
        isSameRecordedName(fitted(recordedFileName(m_folder, m_saved->file), kFileNameWidth), recorded))
        return true;
    for (std::size_t row = 0; row < lstNames.rows.size(); ++row)
        if (static_cast<int>(row) != lstNames.selected &&
            isSameRecordedName(parsePlayerRow(lstNames.rows[row]).fileName, recorded))
            return true;
    return false;
}

/// @returns whether a row is the saved player's: the one that was added here, or another that was given the name
bool PlayersScreen::hasSaved(const std::vector<std::string>& rows) const
{
    return (m_savedRow && std::ranges::find(rows, *m_savedRow) != rows.end()) ||
           (m_saved && rowOfFile(rows, recordedFileName(m_folder, m_saved->file), m_saved->name));
}

/// @returns the boxes as a row of the list; a box whose text is too long shows the cut text from now on
std::string PlayersScreen::rowFromBoxes()
{
    const auto cut = [](ui::TextBox& box, std::size_t width) -> const std::string& {
        if (box.text.size() > width)
            box.text.resize(width);
        return box.text;
    };
    return playerRow({cut(txtName, kNameWidth), cut(txtFileName, kFileNameWidth), cut(txtEmail, kEmailWidth),
                      cut(txtPhone, kPhoneWidth)});
}

/// @returns where the record in the boxes is in the rows now
std::size_t PlayersScreen::insertBoxes(std::vector<std::string>& rows)
{
    const std::string row = rowFromBoxes();
    if (m_boxesHoldSaved)
        m_savedRow = row;
    return insertSorted(rows, row);
}

void PlayersScreen::fillBoxes(const PlayerRecord& record)
{
    txtName.text = trimTrailingBlanks(record.name);
    txtFileName.text = trimTrailingBlanks(record.fileName);
    txtEmail.text = trimTrailingBlanks(record.email);
    txtPhone.text = trimTrailingBlanks(record.phone);
    m_boxesHoldSaved = false;
}

/// The record in the boxes goes back into the list before they show another, so that no player vanishes.
void PlayersScreen::putBoxesBack()
{
    if (!m_boxesHoldRecord)
        return;
    m_boxesHoldRecord = false;
    const auto at = static_cast<int>(insertBoxes(lstNames.rows));
    if (lstNames.selected && at <= *lstNames.selected)
        ++*lstNames.selected;
}

void PlayersScreen::removeSelectedRow()
{
    lstNames.rows.erase(lstNames.rows.begin() + *lstNames.selected);
    lstNames.selected.reset();
    emptyBoxes();
    m_changed = true;
}

} // namespace tallyhoop
