// screens/board/board_screen.h - the bracket board: a player's prediction or the real results, and the program's menus.
//
// BoardScreen.cpp          what the board shows, its load
// BoardScreen_board.cpp    presses, drops, marks, keys
// BoardScreen_edit.cpp     undo, redo, high seeds
// BoardScreen_files.cpp    New, Open, Save
// BoardScreen_menus.cpp    the menus, and the commands that lead elsewhere
// BoardScreen_scores.cpp   game results, scoring, printing
// BoardScreen_words.cpp    what is spoken and explained
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "pool/moves.h"
#include "screens/board/board_history.h"
#include "screens/mod_tallyhoop.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <string>
#include <vector>

namespace tallyhoop {

enum class MouseButton { Left, Right };

class BoardScreen : public ui::Screen, public BracketBoard
{
public:
    BoardScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                Opening opening = Opening::Plain);

    // The bracket.
    ui::Label lblTitle{this, "lblTitle"};
    ui::ControlArray<ui::Label, kRegions> lblRegionTitle{this, "lblRegionTitle"};
    ui::ControlArray<ui::Label, 10> lblRoundName{this, "lblRoundName"}; ///< "1st round:" ... left, right, last two
    ui::ControlArray<ui::Label, 6> lblInfo{this, "lblInfo"};            ///< points of rounds 1..6
    ui::ControlArray<ui::Label, 4> lblInfoRight{this, "lblInfoRight"};  ///< points of rounds 1..4 once more
    ui::Label lblChampion{this, "lblChampion", "CHAMPION"};
    ui::ControlArray<ui::TextBox, kTeams> txtSeed{this, "txtSeed"};
    ui::ControlArray<ui::Label, kPositions> lblRegion{this, "lblRegion"};
    ui::ControlArray<ui::Label, kGames> lblResult{this, "lblResult"};
    ui::Label lblDemoMode{this, "lblDemoMode", "Demonstration Mode"};

    // The strip below it.
    ui::TextBox txtComment1{this, "txtComment1"};
    ui::TextBox txtComment2{this, "txtComment2"};
    ui::Label lblPlayerInitials{this, "lblPlayerInitials", "Initials"};
    ui::Label lblPlayerName{this, "lblPlayerName", "Name"};
    ui::Label lblFinalPoints{this, "lblFinalPoints", "Predict total points in Championship game"};
    ui::TextBox txtPlayerInitials{this, "txtPlayerInitials", [this] { fieldEdited(); }};
    ui::TextBox txtPlayerName{this, "txtPlayerName", [this] { fieldEdited(); }};
    ui::TextBox txtFinalPoints{this, "txtFinalPoints", [this] { fieldEdited(); }};
    ui::TextBox txtPointScore{this, "txtPointScore"};
    ui::Command cmdDefaultColors{this, "cmdDefaultColors", "Default &Colors", [this] { DefaultColors(); }};

    // The menus.
    ui::MenuEntry mnuFile{this, "mnuFile", "&File"};
    ui::MenuEntry mnuNewSelection{this, "mnuNewSelection", "&New Selection", [this] { NewSelection(); }, "Ctrl+N"};
    ui::MenuEntry mnuOpenSelection{this, "mnuOpenSelection", "&Open Selection", [this] { OpenSelection(); }, "Ctrl+O"};
    ui::MenuEntry mnuSaveSelection{this, "mnuSaveSelection", "&Save Selection", [this] { SaveSelection(); }, "Ctrl+S"};
    ui::MenuEntry mnuPrintPreview{this, "mnuPrintPreview", "Print Pre&view", [this] { previewForm(); }};
    ui::MenuEntry mnuPrintForm{this, "mnuPrintForm", "&Print Form", [this] { PrintForm(); }, "Ctrl+P"};
    ui::MenuEntry mnuExit{this, "mnuExit", "E&xit", [this] { m_screens.endProgram(); }, "Ctrl+Q"};
    ui::MenuEntry mnuEdit{this, "mnuEdit", "&Edit"};
    ui::MenuEntry mnuUndo{this, "mnuUndo", "&Undo", [this] { undo(); }, "Ctrl+Z"};
    ui::MenuEntry mnuRedo{this, "mnuRedo", "&Redo", [this] { redo(); }, "Ctrl+Shift+Z"};
    ui::MenuEntry mnuOptions{this, "mnuOptions", "&Options"};
    ui::MenuEntry mnuScoreSelections{this, "mnuScoreSelections", "&Score Selections", [this] { ScoreSelections(); }};
    ui::MenuEntry mnuGameResults{this, "mnuGameResults", "Enter &Game Results", [this] { EnterGameResults(); }};
    ui::MenuEntry mnuEntryAssist{this, "mnuEntryAssist", "Entry &Assist"};
    ui::MenuEntry mnuHighSeed{this, "mnuHighSeed", "Select &High Seeds", [this] { SelectHighSeeds(); }};
    ui::MenuEntry mnuEditNames{this, "mnuEditNames", "Edit &Names File", [this] { openPlayerNames(); }};
    ui::MenuEntry mnuSetup{this, "mnuSetup", "&Setup"};
    ui::MenuEntry mnuSetupOptions{this, "mnuSetupOptions", "Setup &Pool Options", [this] { openSetup(); }};
    ui::MenuEntry mnuReports{this, "mnuReports", "&Reports", [this] { openReports(); }};
    ui::MenuEntry mnuDemo{this, "mnuDemo", "&DEMO Mode"};
    ui::MenuEntry mnuDemoSet{this, "mnuDemoSet", "DEMO-&Start", [this] { demoSet(); }};
    ui::MenuEntry mnuDemoReset{this, "mnuDemoReset", "DEMO-&Reset", [this] { demoReset(); }};
    ui::MenuEntry mnuHelp{this, "mnuHelp", "&Help"};
    ui::MenuEntry mnuHelpDisplay{this, "mnuHelpDisplay", "&Help Display", [this] { displayHelp(); }, "F1"};
    ui::MenuEntry mnuHelpAbout{this, "mnuHelpAbout", "&About Tallyhoop", [this] { m_platform.dialogs.about(); }};

    // What happens on the bracket.
    void PressPosition(int position, MouseButton button);
    void DropOnPosition(int position);
    void PressBackground();

    /// Whether the drag that is under way may end here; false when none is.
    bool mayDropOn(int position) const;
    bool isDragging() const { return m_dragging; }

    /// The name that is being dragged.
    const std::string& draggedTeam() const { return m_draggedTeam; }

    /// The drag ended beside the labels.
    void cancelDrag() { m_dragging = false; }

    /// @returns the places that the team at a position stands on, along its way from the first round; empty for no team
    std::vector<int> pathOf(int position) const;

    bool marksShown() const { return m_marksShown; }
    bool resultsMode() const { return m_resultsMode; }

    // The commands.
    void NewSelection();
    void OpenSelection();
    void SaveSelection();
    void SelectHighSeeds();
    void DefaultColors();
    void undo();
    void redo();

    // BracketBoard
    void captureBoard() override;
    Result<Payoffs> payoffs() const override;
    void MarkScores() override;
    void ClearMarks() override;
    void setScoreDisplayOpen(bool open) override;
    void setReportsEnabled(bool enabled) override { mnuReports.enabled = enabled; }
    void EnterGameResults() override;
    void ScoreSelections() override;
    void PrintForm() override;
    void showSelection(const std::filesystem::path& file) override;
    ui::Drawing drawing() const override;

    // Screen
    std::string helpTopic() const override;
    void load() override;
    void unloading() override;
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;

private:
    // Loading and showing.
    void describeControls();
    void putControlsIntoWords();
    void explainMenus();
    void arrangeMenus();
    void loadBoard();
    void fillFromSetup();
    void applyFinalized();
    void applyDemoMode();
    void applyOpening();
    void readPlayerNames();
    void showBoard(const SelectionLines& lines);
    void clearBoard();
    TeamNamesOnBoard teams() const;
    void setTeams(const TeamNamesOnBoard& names);
    void describePositions();
    void explainPositions();
    std::string explanationOf(int position) const;
    std::string explanationOfMark(int position) const;
    void describeDocument();
    void sayWhatToDo();
    bool resultsExist() const;

    // Modes.
    void lockFields(bool locked);
    void hideDefaultColors();
    void leaveScoreDisplay();
    void dropHandOver() { m_state.handOver.reset(); }
    void fieldEdited();
    void changed();
    void changeTeams(const TeamNamesOnBoard& after);
    void lockResultsFields();
    bool enterKey(const ui::Control& control);
    bool keyOnPosition(int position, const ui::KeyPress& press);

    // Saving.
    bool mayBeSaved();
    void refuse(ui::TextBox& box, const std::string& text);
    bool finalPointsPass() const;
    void saveResults();
    void saveUnder(const std::filesystem::path& chosen);
    void saveOpenedAs(const std::filesystem::path& chosen);
    void saveNew(const std::filesystem::path& chosen);
    bool writeSelection(const std::filesystem::path& file, SaveKind kind);

    // History.
    BoardSnapshot snapshot() const;
    void restore(const BoardSnapshot& board);
    void remember();
    void offerHistory();

    void enterResultsMode();
    void completeResults();
    void showVerdict(const std::string& score);
    void previewForm();
    std::string printoutTitle() const;
    void openPlayerNames();
    void openSetup();
    void openReports();
    void demoSet();
    void demoReset();
    void displayHelp();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    modTallyhoop& m_state;
    Screens& m_screens;
    Opening m_opening;
    BoardHistory m_history;
    KnownFiles m_known; ///< the selections and the results that were shown or saved
    int m_sheet = 0;    ///< counts the boards that New began

    int m_dragSource = 0;
    std::string m_draggedTeam;
    bool m_dragging = false;
    bool m_marksShown = false;
    bool m_scoreDisplayOpen = false;
    bool m_resultsMode = false;
    bool m_playersFaulty = false;   ///< PLAYERNAMES.CSV has to be repaired
    bool m_toldAboutFolder = false; ///< a folder that cannot be written is mentioned once
};

} // namespace tallyhoop
