// screens/players/players_screen.cpp - the player list from the screen to the disk.
#include "screens/players/players_screen.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_of_player.h"
#include "screens/help_topics.h"
#include "screens/players/field_text.h"
#include "screens/players/players_words.h"
#include "screens/saving.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <system_error>

namespace tallyhoop {

namespace {

constexpr const char* kSavedNews = "The player list is saved.";
constexpr const char* kDoneSaves = "  Done saves this; Cancel forgets it.";
constexpr const char* kUnusableStatus = "The player list cannot be used until PLAYERNAMES.CSV is corrected";

} // namespace

PlayersScreen::PlayersScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                             std::optional<SavedPlayer>& saved, const Field& field)
    : ui::Screen{"frmPoolNames", "PlayerName Edit"},
      m_folder{folder},
      m_platform{platform},
      m_dialogs{platform.dialogs},
      m_screens{screens},
      m_saved{saved},
      m_field{field}
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
                                             &cmdDelete, &lstNames, &cmdEntryForm, &cmdCancel, &cmdExit})
        control->tabIndex = tab++;
    focused = &txtName;
}

void PlayersScreen::explainControls()
{
    txtName.explanation = "Last name, a comma, initials: the list is in the order of the names.";
    txtFileName.explanation = "The player's selection file.";
    txtEmail.explanation = "Where reports are sent.";
    txtPhone.explanation = "Shown in the list and in the Player Listing.";
    lstNames.emptyNote = "No players yet. The list opens by itself whenever a new selection has been saved.";
    lstNames.explanation = "Select a player to see the record in the boxes above.";
    cmdAdd.explanation = "Adds what is in the boxes as a new player, saves the list and closes it.";
    cmdChange.explanation = "Puts what is in the boxes into the selected row.";
    cmdDelete.explanation = "Deletes the selected player and, when you leave with Done, the selection file.";
    cmdEntryForm.explanation = "The page on which players fill in their brackets, to be mailed to all of them; save "
                               "changes of the list first.";
    cmdCancel.explanation = "Leaves and forgets what was added, changed and deleted.";
    cmdExit.explanation = "Saves the list and leaves.";
}

std::string PlayersScreen::helpTopic() const { return m_listFaulty ? help_topic::kRepair : help_topic::kPlayers; }

void PlayersScreen::load()
{
    m_known.note(m_folder.pathTo(file_name::kPlayerNames));
    m_listFaulty = !playerListIsSound(m_dialogs, m_folder);
    if (m_saved) {
        txtFileName.text = recordedFileName(m_folder, m_saved->file);
        txtName.text = m_saved->name;
    }
    if (m_listFaulty)
        return;
    fillList();
    if (m_saved)
        enterSaved(*m_saved);
}

void PlayersScreen::showState()
{
    const bool onlyChange = m_mode == SaveKind::SameName;
    // A faulty file must not be replaced by what little could be read of it.
    cmdChange.enabled = !m_listFaulty;
    cmdAdd.enabled = cmdDelete.enabled = !m_listFaulty && !onlyChange;
    cmdExit.enabled = lstNames.enabled = !onlyChange;
    // Everybody who gets the form is read from the file.
    cmdEntryForm.enabled = m_field.isFinalized() && !m_listFaulty && !m_mode && !m_changed;
    cmdAdd.isDefault = m_mode == SaveKind::NewFile;
    cmdChange.isDefault = m_mode == SaveKind::SameName;
    cmdExit.isDefault = m_mode == SaveKind::Replaced;

    unsaved = m_changed;
    const std::size_t players = lstNames.rows.size();
    status = m_listFaulty ? kUnusableStatus : std::to_string(players) + (players == 1 ? " player" : " players");
}

void PlayersScreen::enterSaved(const SavedPlayer& saved)
{
    focused = &txtEmail;
    const std::optional<int> row = rowOfFile(lstNames.rows, txtFileName.text, saved.name);
    if (!row) {
        m_mode = SaveKind::NewFile;
        m_boxesHoldSaved = true;
        say("Add Record puts " + txtName.text + " into the list.");
        return;
    }
    if (saved.kind == SaveKind::SameName) {
        m_mode = SaveKind::SameName;
        lstNames.selected = *row;
        showSelectedRow();
        return;
    }
    m_mode = SaveKind::Replaced;
    takeRowOut(*row, saved.name);
}

void PlayersScreen::addRecord()
{
    if (!mayBeAdded()) {
        say("Not added.");
        return;
    }
    const std::string added = shownName(txtName.text);
    std::vector<std::string> rows = lstNames.rows;
    insertBoxes(rows);
    m_changed = true;
    // Should the list not be written now, Done (or another row selected) still finds the record in the boxes.
    m_boxesHoldRecord = true;
    finish(std::move(rows), added + " is in the list now.");
}

/// @returns false for an empty record, and for a file that has one already unless the person wants another
bool PlayersScreen::mayBeAdded()
{
    const auto isBlank = [](const ui::TextBox* box) { return withoutOuterBlanks(box->text).empty(); };
    if (std::ranges::all_of(std::initializer_list<const ui::TextBox*>{&txtName, &txtFileName, &txtEmail, &txtPhone},
                            isBlank)) {
        m_dialogs.show(kNothingToAdd);
        focused = &txtName;
        return false;
    }
    if (isBlank(&txtFileName))
        return true;
    const std::optional<PlayerRecord> listed = recordOfFileInBoxes();
    if (!listed)
        return true;
    return m_dialogs.show(listedAlready(*listed)) != ui::Answer::Cancel;
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
    if (keep) {
        const bool isSaved = m_savedRow == *row;
        *row = rowFromBoxes();
        if (isSaved)
            m_savedRow = *row;
    } else {
        rows.erase(row);
    }
    m_changed = true;
    if (m_mode == SaveKind::SameName) {
        finish(std::move(rows), kSavedNews); // The boxes stay filled until the list is written: another try needs them.
        return;
    }
    say(shownName(txtName.text) + (keep ? " is changed." : " is deleted.") + kDoneSaves);
    lstNames.rows = std::move(rows);
    lstNames.selected.reset(); // The boxes are empty now: a second press must not take them for this row's.
    emptyBoxes();
}

void PlayersScreen::deleteSelection()
{
    if (!lstNames.selected) {
        m_dialogs.show(kSelectBeforeDelete);
        return;
    }
    const std::optional<std::filesystem::path> file = selectionFileOf(m_folder, upperCase(txtFileName.text));
    const bool isSure = !file || !isCutName(txtFileName.text, *file) || !anotherPlayerHasName(txtFileName.text);
    if (file && m_dialogs.show(isSure ? kBothDeleted : selectionsOfEither(*file)) == ui::Answer::Cancel)
        return;
    if (file && isSure)
        m_pendingDeletions.push_back(*file);
    say(shownName(txtName.text) + " is deleted." + kDoneSaves);
    removeSelectedRow();
}

void PlayersScreen::openEntryForm()
{
    say({});
    m_screens.load(ScreenKind::EntryForm);
}

void PlayersScreen::done()
{
    if (!m_changed) {
        close();
        return;
    }
    std::vector<std::string> rows = lstNames.rows;
    if (m_boxesHoldRecord)
        insertBoxes(rows);
    finish(std::move(rows), kSavedNews);
}

/// Writes the list, deletes what was deleted from it, and closes. When the list cannot be written, nothing is deleted
/// and the screen stays as it is.
/// @param news what the board says then
void PlayersScreen::finish(std::vector<std::string> rows, const std::string& news)
{
    std::vector<PlayerRecord> records;
    records.reserve(rows.size());
    for (const std::string& row : rows)
        records.push_back(parsePlayerRow(row));
    if (!saveDataFile(m_platform, m_known, m_folder, file_name::kPlayerNames, playerNamesFile(records))) {
        say("Not saved.");
        return;
    }
    m_isAdded = hasSaved(rows);
    lstNames.rows = std::move(rows);
    lstNames.selected.reset();
    m_boxesHoldRecord = false;
    for (const std::filesystem::path& file : m_pendingDeletions) {
        std::error_code ignored; // One that has vanished meanwhile is no trouble.
        std::filesystem::remove(file, ignored);
    }
    m_pendingDeletions.clear();
    close(news);
}

/// Leaves; the board says so when the selection that was saved has no record.
/// @param news what it says otherwise; empty = nothing
void PlayersScreen::close(const std::string& news)
{
    const std::string file = m_saved ? shown(m_saved->file.filename()) : std::string{};
    const bool isMissing = m_mode == SaveKind::NewFile && !m_isAdded;
    m_screens.unload(ScreenKind::Players);
    if (isMissing)
        m_screens.load(ScreenKind::Board, file + " is saved, and has no record in the player list.");
    else if (!news.empty())
        m_screens.load(ScreenKind::Board, news);
}

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

} // namespace tallyhoop
