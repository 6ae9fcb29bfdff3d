// screens/players/players_screen.cpp - the player list from the screen to the disk.
#include "screens/players/players_screen.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_of_player.h"
#include "screens/help_topics.h"
#include "screens/players/field_text.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <system_error>

namespace tallyhoop {

namespace {

constexpr const char* kTitle = "Pool Names Maintenance";

const ui::Message kSelectBeforeChange{kTitle, "** You need to select one record prior to CHANGE **", ui::Buttons::Ok,
                                      ui::Icon::Exclamation};
const ui::Message kSelectBeforeDelete{kTitle, "** You need to select one record prior to DELETE **", ui::Buttons::Ok,
                                      ui::Icon::Exclamation};
const ui::Message kNoSelections{kTitle,
                                "** You selected a change record where no Pool \r\n"
                                "Selections have been made **\r\n"
                                "\r\n"
                                "If you continue this Player Name record will\r\n"
                                "be deleted",
                                ui::Buttons::OkCancel, ui::Icon::Question};
const ui::Message kBothDeleted{kTitle,
                               "The player record and the Pool Selections\r\n"
                               "will both be deleted if you continue, Ok??", // sic
                               ui::Buttons::OkCancel, ui::Icon::Question};

} // namespace

PlayersScreen::PlayersScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state,
                             Screens& screens)
    : ui::Screen{"frmPoolNames", "PlayerName Edit"},
      m_folder{folder},
      m_dialogs{platform.dialogs},
      m_state{state},
      m_screens{screens}
{
    txtFileName.locked = true;
    txtFileName.tabStop = false;
    cmdChange.toolTip = "Store the CHANGEs made";
    cmdDelete.toolTip = "Select to DELETE selected record";
    txtName.spokenName = "Name: last, initials";
    txtFileName.spokenName = "File name";
    txtEmail.spokenName = "EMail address";
    txtPhone.spokenName = "Phone number";
    explainControls();
    lstNames.fixedPitch = true;
    lstNames.spokenName = "Players";
    lstNames.chosen = [this] {
        putBoxesBack();
        showSelectedRow();
    };

    int tab = 0;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&txtName, &txtFileName, &txtEmail, &txtPhone, &cmdAdd, &cmdChange,
                                             &cmdDelete, &lstNames, &cmdCancel, &cmdExit})
        control->tabIndex = tab++;
    focused = &txtName;
}

void PlayersScreen::explainControls()
{
    txtName.explanation = "Last name, a comma, initials: the list is in the order of the names.";
    txtFileName.explanation = "The player's selection file.";
    txtEmail.explanation = "Where reports are sent.";
    txtPhone.explanation = "Stands in the list and in the Player Listing.";
    lstNames.explanation = "Select a player to see the record in the boxes above.";
    cmdAdd.explanation = "Adds what stands in the boxes as a new player, saves the list and closes it.";
    cmdChange.explanation = "Puts what stands in the boxes into the selected row.";
    cmdDelete.explanation = "Deletes the selected player and, when you leave with Done, the selection file.";
    cmdCancel.explanation = "Leaves and forgets what was added, changed and deleted.";
    cmdExit.explanation = "Saves the list and leaves.";
}

std::string PlayersScreen::helpTopic() const { return m_listFaulty ? help_topic::kRepair : help_topic::kPlayers; }

void PlayersScreen::load()
{
    m_known.note(m_folder.pathTo(file_name::kPlayerNames));
    const bool sound = validatePlayerNames(m_folder, m_dialogs);
    if (m_state.handOver) {
        txtFileName.text = recordedFileName(m_folder, m_state.handOver->file);
        txtName.text = m_state.handOver->LastPlayer;
    }
    m_listFaulty = !sound;
    if (m_listFaulty) {
        // The faulty file must not be replaced by what little could be read of it.
        for (ui::Command* command : {&cmdAdd, &cmdChange, &cmdDelete})
            command->enabled = false;
        status = "The player list cannot be used until PLAYERNAMES.CSV is corrected";
        return;
    }
    fillList();
    if (m_state.handOver)
        takeHandOver(*m_state.handOver);
    countPlayers();
}

void PlayersScreen::fillList()
{
    std::vector<std::string> rows;
    for (const PlayerRecord& record : readPlayerNames(m_folder))
        rows.push_back(playerRow(record));
    std::ranges::stable_sort(rows, FoldedLess{});
    lstNames.rows = std::move(rows);
}

void PlayersScreen::takeHandOver(const PlayerHandOver& handOver)
{
    const auto row = std::ranges::find_if(lstNames.rows, [&](const std::string& text) {
        return recordStandsFor(m_folder, parsePlayerRow(text).fileName, txtFileName.text);
    });
    if (row == lstNames.rows.end()) {
        m_mode = SaveKind::NewFile;
        cmdAdd.isDefault = true;
        focused = &txtEmail;
        return;
    }
    lstNames.selected = static_cast<int>(row - lstNames.rows.begin());
    m_mode = handOver.LastSaveKind == SaveKind::SameName ? SaveKind::SameName : SaveKind::Replaced;
    if (m_mode == SaveKind::SameName)
        enterListMode();
    else
        takeRowOut(*lstNames.selected, handOver.LastPlayer);
    focused = &txtEmail;
}

void PlayersScreen::takeRowOut(int row, const std::string& playerName)
{
    const auto at = lstNames.rows.begin() + row;
    fillBoxes(parsePlayerRow(*at));
    txtName.text = playerName;
    lstNames.rows.erase(at);
    lstNames.selected.reset();
    m_boxesHoldRecord = true;
    cmdExit.isDefault = true;
    changed();
}

void PlayersScreen::enterListMode()
{
    showSelectedRow();
    cmdChange.enabled = true;
    cmdChange.isDefault = true;
    for (ui::Command* command : {&cmdAdd, &cmdDelete, &cmdExit})
        command->enabled = false;
    lstNames.enabled = false;
}

void PlayersScreen::showSelectedRow()
{
    if (lstNames.selected)
        fillBoxes(parsePlayerRow(lstNames.selectedText()));
}

void PlayersScreen::addRecord()
{
    std::vector<std::string> rows = lstNames.rows;
    insertSorted(rows, rowFromBoxes());
    changed();
    // Should the list not be written now, Done (or another row selected) still finds the record in the boxes.
    m_boxesHoldRecord = true;
    finish(std::move(rows));
}

void PlayersScreen::completeChanges()
{
    if (!lstNames.selected) {
        m_dialogs.show(kSelectBeforeChange);
        return;
    }
    std::vector<std::string> rows = lstNames.rows;
    const auto row = rows.begin() + *lstNames.selected;
    const bool keep = selectionFileOf(m_folder, txtFileName.text).has_value();
    if (!keep && m_dialogs.show(kNoSelections) == ui::Answer::Cancel)
        return;
    if (keep)
        *row = rowFromBoxes();
    else
        rows.erase(row);
    changed();
    if (m_mode == SaveKind::SameName) {
        finish(std::move(rows)); // The boxes stay filled until the list is written: another try needs them.
        return;
    }
    lstNames.rows = std::move(rows);
    lstNames.selected.reset(); // The boxes are empty now: a second press must not take them for this row's.
    emptyBoxes();
    countPlayers();
}

void PlayersScreen::deleteSelection()
{
    if (!lstNames.selected) {
        m_dialogs.show(kSelectBeforeDelete);
        return;
    }
    const std::optional<std::filesystem::path> file = selectionFileOf(m_folder, upperCase(txtFileName.text));
    if (file && m_dialogs.show(kBothDeleted) == ui::Answer::Cancel)
        return;
    if (file)
        m_pendingDeletions.push_back(*file);
    removeSelectedRow();
}

void PlayersScreen::done()
{
    if (!m_changed) {
        close();
        return;
    }
    std::vector<std::string> rows = lstNames.rows;
    if (m_boxesHoldRecord)
        insertSorted(rows, rowFromBoxes());
    finish(std::move(rows));
}

/// Writes the list, deletes what was deleted from it, and closes. When the list cannot be written, nothing is deleted
/// and the screen stays as it is.
void PlayersScreen::finish(std::vector<std::string> rows)
{
    std::vector<PlayerRecord> records;
    records.reserve(rows.size());
    for (const std::string& row : rows)
        records.push_back(parsePlayerRow(row));
    if (!savePlayerNames(m_folder, m_dialogs, m_known, records))
        return;
    lstNames.rows = std::move(rows);
    lstNames.selected.reset();
    m_boxesHoldRecord = false;
    for (const std::filesystem::path& file : m_pendingDeletions) {
        std::error_code ignored; // One that has vanished meanwhile is no trouble.
        std::filesystem::remove(file, ignored);
    }
    m_pendingDeletions.clear();
    close();
}

void PlayersScreen::close() { m_screens.unload(ScreenKind::PlayerNames); }

void PlayersScreen::closeRequested() { cmdCancel.click(); }

void PlayersScreen::unloading() { m_state.handOver.reset(); }

bool PlayersScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    return dynamic_cast<ui::TextBox*>(&control) != nullptr && press.key == ui::Key::Character && press.character == '"';
}

bool PlayersScreen::pasted(ui::TextBox& box, const std::string& text)
{
    if (box.locked || fitsIntoField(text))
        return false;
    insertAtCaret(box, madeFit(text));
    return true;
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

void PlayersScreen::fillBoxes(const PlayerRecord& record)
{
    txtName.text = trimTrailingBlanks(record.name);
    txtFileName.text = trimTrailingBlanks(record.fileName);
    txtEmail.text = trimTrailingBlanks(record.email);
    txtPhone.text = trimTrailingBlanks(record.phone);
}

void PlayersScreen::emptyBoxes() { fillBoxes({}); }

/// The record in the boxes goes back into the list before they show another, so that no player vanishes.
void PlayersScreen::putBoxesBack()
{
    if (!m_boxesHoldRecord)
        return;
    m_boxesHoldRecord = false;
    const auto at = static_cast<int>(insertSorted(lstNames.rows, rowFromBoxes()));
    if (lstNames.selected && at <= *lstNames.selected)
        ++*lstNames.selected;
    countPlayers();
}

void PlayersScreen::removeSelectedRow()
{
    lstNames.rows.erase(lstNames.rows.begin() + *lstNames.selected);
    lstNames.selected.reset();
    emptyBoxes();
    changed();
    countPlayers();
}

void PlayersScreen::changed()
{
    m_changed = true;
    unsaved = true;
}

void PlayersScreen::countPlayers()
{
    const std::size_t players = lstNames.rows.size();
    status = std::to_string(players) + (players == 1 ? " player" : " players");
}

} // namespace tallyhoop
