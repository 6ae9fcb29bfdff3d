// screens/import/import_screen.h - takes in what players have handed in: shows it first, writes what is ticked.
//
// import_screen.cpp        showing, ticks, keys, leaving
// import_screen_files.cpp  reading, importing
#pragma once

#include "intake/entry_readers.h"
#include "screens/import/entry_board.h"
#include "screens/import/entry_pile.h"
#include "screens/open_selection.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

class ImportScreen : public ui::Screen, public EntryBoard
{
public:
    /// What it shares with the board; everything outlives it.
    struct Shared {
        const Field& field;   ///< final
        OpenSelection& board; ///< below it
        std::vector<std::filesystem::path>&
            droppedFiles; ///< onto the board: they are read when the screen is loaded, and forgotten
    };

    ImportScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Shared& shared,
                 TakeMailApart takeMailApart);

    std::string helpTopic() const override;
    void showState() override;
    void load() override;
    void unloading() override;
    void closeRequested() override;
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;
    bool pasted(ui::TextBox& box, const std::string& text) override;
    bool takesFiles() const override { return true; }
    void filesDropped(const std::vector<std::filesystem::path>& files) override { readFiles(files); }

    ui::Command cmdChooseFiles{this, "cmdChooseFiles", "Choose &Files...", [this] { chooseFiles(); }};
    ui::Command cmdChooseFolder{this, "cmdChooseFolder", "Choose F&older...", [this] { chooseFolder(); }};
    ui::Label lblPasted{this, "lblPasted", "Or paste texts or mails:"};
    ui::TextBox txtPasted{this, "txtPasted"};
    ui::Command cmdReadText{this, "cmdReadText", "&Read the Text", [this] { readText(); }};
    ui::Label lblCounts{this, "lblCounts"}; ///< how many entries of which kind, and whether they are late
    ui::Grid grdEntries{this, "grdEntries"};
    ui::Command cmdTickAll{this, "cmdTickAll", "&Tick All Complete", [this] { tickAllComplete(); }};
    ui::Command cmdUntickAll{this, "cmdUntickAll", "&Untick All", [this] { untickAll(); }};
    ui::Command cmdEmptyList{this, "cmdEmptyList", "&Empty the List", [this] { emptyList(); }};
    ui::Command cmdImport{this, "cmdImport", "&Import", [this] { import(); }};
    ui::Label lblEntry{this, "lblEntry"};
    ui::TextBox txtDetails{this, "txtDetails"};
    ui::Label lblSummary{this, "lblSummary", "What was imported"};
    ui::TextBox txtSummary{this, "txtSummary"};
    ui::Command cmdCopy{this, "cmdCopy", "&Copy Summary", [this] { copySummary(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { closeRequested(); }};

private:
    void arrangeTable();
    void explain();

    void chooseFiles();
    void chooseFolder();
    void readText();
    void readFiles(const std::vector<std::filesystem::path>& chosen);
    void take(std::vector<HandedIn> entries);

    bool pressedPlace(Position position, const ui::KeyPress& press);
    void pressCell(std::size_t row, std::size_t column);
    void toggle(std::size_t row);
    void tickAllComplete();
    void untickAll();
    void emptyList();
    void import();
    void copySummary();
    std::string aboutBoard(const std::vector<std::filesystem::path>& written) const;

    std::optional<std::size_t> currentRow() const;
    bool isOnBoard(const ReviewRow& row) const;
    void listChanged() { m_isListStale = true; }
    void showList();
    void showCurrent();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
    Shared m_shared;
    EntryReaders m_readers;
    EntryPile m_pile;
    std::filesystem::path m_lastFolder; ///< where something was chosen last
    std::string m_summary;              ///< of the last import; empty = none yet
    bool m_isListStale = true;
};

} // namespace tallyhoop
