// screens/players/players_screen.h - the screen that maintains the pool's list of players.
//
// players_screen.cpp       opening, adding, changing, deleting, leaving
// players_screen_rows.cpp  records between the boxes and the rows of the list
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "files/player_names_file.h"
#include "pool/field.h"
#include "screens/hand_overs.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// Shows the players of PLAYERNAMES.CSV in alphabetical order; adds, changes and deletes records, and with a record the
/// player's selection file. Nothing reaches the disk before Done (or Add Record): until then Cancel drops everything.
///
/// When a save on the board left a player to enter, the screen opens in one of three modes: a new player to add, the
/// player's own record taken out of the list into the boxes, or, after a save under the same name, the record selected
/// and everything but Complete Changes and Cancel disabled.
class PlayersScreen : public ui::Screen
{
public:
    /// @param saved the player to enter, if any; nothing once the screen is unloaded
    /// @param field the open one: there is an entry form for a finalized field only
    PlayersScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                  std::optional<SavedPlayer>& saved, const Field& field);

    ui::Label lblName{this, "lblName", "Name (Last, IN):"};
    ui::TextBox txtName{this, "txtName"};
    ui::Label lblFileName{this, "lblFileName", "FileName:"};
    ui::TextBox txtFileName{this, "txtFileName"};
    ui::Label lblFileNameNote{this, "lblFileNameNote", "The File Name cannot be changed"};
    ui::Label lblEmail{this, "lblEmail", "EMail Address:"};
    ui::TextBox txtEmail{this, "txtEmail"};
    ui::Label lblPhone{this, "lblPhone", "Phone No:"};
    ui::TextBox txtPhone{this, "txtPhone"};
    ui::ListBox lstNames{this, "lstNames"}; ///< rows as playerRow() makes them
    ui::Command cmdAdd{this, "cmdAdd", "&Add Record", [this] { addRecord(); }};
    ui::Command cmdChange{this, "cmdChange", "Complete C&hanges", [this] { completeChanges(); }};
    ui::Command cmdDelete{this, "cmdDelete", "De&lete Selection", [this] { deleteSelection(); }};
    ui::Command cmdEntryForm{this, "cmdEntryForm", "Entry &Form...", [this] { openEntryForm(); }};
    ui::Command cmdCancel{this, "cmdCancel", "&Cancel", [this] { close(); }};
    ui::Command cmdExit{this, "cmdExit", "&Done", [this] { done(); }};

    std::string helpTopic() const override;
    void load() override;
    void showState() override;
    void closeRequested() override { close(); }
    void unloading() override { m_saved.reset(); }
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    bool pasted(ui::TextBox& box, const std::string& text) override;

private:
    void explainControls();
    void fillList();
    void enterSaved(const SavedPlayer& saved);
    std::optional<int> rowOfFile(const std::vector<std::string>& rows, std::string_view fileName,
                                 std::string_view player) const;
    void takeRowOut(int row, const std::string& playerName);
    void showSelectedRow();
    void addRecord();
    bool mayBeAdded();
    std::optional<PlayerRecord> recordOfFileInBoxes() const;
    void completeChanges();
    void deleteSelection();
    bool anotherPlayerHasName(std::string_view recorded) const;
    void openEntryForm();
    void done();
    void finish(std::vector<std::string> rows, const std::string& news);
    bool hasSaved(const std::vector<std::string>& rows) const;
    void close(const std::string& news = {});

    std::string rowFromBoxes();
    std::size_t insertBoxes(std::vector<std::string>& rows);
    void fillBoxes(const PlayerRecord& record);
    void emptyBoxes() { fillBoxes({}); }
    void putBoxesBack();
    void removeSelectedRow();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    ui::Dialogs& m_dialogs;
    Screens& m_screens;
    std::optional<SavedPlayer>& m_saved;
    const Field& m_field;
    KnownFiles m_known; ///< the player list as it was read

    std::optional<SaveKind> m_mode;                        ///< nothing = opened without a player to enter
    bool m_listFaulty = false;                             ///< PLAYERNAMES.CSV has to be repaired
    bool m_boxesHoldSaved = false;                         ///< the boxes show the saved player, to be added
    std::optional<std::string> m_savedRow;                 ///< what has become of that in the list
    bool m_isAdded = false;                                ///< the list on disk has the saved player's record
    bool m_changed = false;                                ///< set by every add, change and delete
    bool m_boxesHoldRecord = false;                        ///< the boxes hold a record that no row holds
    std::vector<std::filesystem::path> m_pendingDeletions; ///< selection files to delete once the list is written
};

} // namespace tallyhoop
