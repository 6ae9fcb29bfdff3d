// screens/board/board_menus.h - the menus of the board, and when each entry can be chosen.
#pragma once

#include "screens/board/board_exits.h"
#include "ui/screen.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// What the menus can ask of the board.
class BoardCommands
{
public:
    virtual ~BoardCommands() = default;

    virtual void newSelection() = 0;
    virtual void openSelection() = 0;
    virtual void saveSelection() = 0;
    virtual void previewForm() = 0;
    virtual void printForm() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void scoreSelections() = 0;
    virtual void enterGameResults() = 0;
    virtual void selectHighSeeds() = 0;
    virtual void openRecent(std::size_t index) = 0; ///< 0 = used last
    virtual void openNeighbour(int step) = 0;       ///< -1 = the selection before the open one in the folder, 1 = after
    virtual void openFolder() = 0;
    virtual void backUpPool() = 0;
    virtual void exportSelections() = 0;
};

inline constexpr std::size_t kRecentSelections = 5;

/// What decides which entries can be chosen.
struct BoardState {
    bool finalized = false;       ///< the field is
    bool demo = false;            ///< demo mode is on
    bool mayStartDemo = false;    ///< nobody has said that the field is final
    bool resultsMode = false;     ///< the board holds the results
    bool selectionsThere = false; ///< there is a selection in the folder
    bool resultsThere = false;    ///< there is a results file to score against
    bool scored = false;          ///< the board's own picks are marked
    bool marked = false;          ///< they are, or those of a player chosen in the list of scores
    bool scoreListOpen = false;
    bool reportsOpen = false;
    std::vector<std::string> recent = {}; ///< names of the selections used last, at most kRecentSelections
    bool canUndo = false;
    bool canRedo = false;
};

class BoardMenus
{
    ui::Screen* m_owner; // first: the entries list themselves with it
    BoardCommands& m_do;
    BoardExits m_go;

public:
    BoardMenus(ui::Screen* owner, BoardCommands& commands, const BoardExits& exits);

    ui::MenuEntry mnuFile{m_owner, "mnuFile", "&File"};
    ui::MenuEntry mnuNewSelection{m_owner, "mnuNewSelection", "&New Selection", [this] { m_do.newSelection(); },
                                  "Ctrl+N"};
    ui::MenuEntry mnuOpenSelection{m_owner, "mnuOpenSelection", "&Open Selection", [this] { m_do.openSelection(); },
                                   "Ctrl+O"};
    ui::MenuEntry mnuSaveSelection{m_owner, "mnuSaveSelection", "&Save Selection", [this] { m_do.saveSelection(); },
                                   "Ctrl+S"};
    ui::MenuEntry mnuRecent{m_owner, "mnuRecent", "Open R&ecent"};
    ui::ControlArray<ui::MenuEntry, kRecentSelections> mnuRecentFile{m_owner, "mnuRecentFile"};
    ui::MenuEntry mnuPrevious{m_owner, "mnuPrevious", "P&revious Selection", [this] { m_do.openNeighbour(-1); },
                              "Ctrl+PgUp"};
    ui::MenuEntry mnuNext{m_owner, "mnuNext", "Nex&t Selection", [this] { m_do.openNeighbour(1); }, "Ctrl+PgDown"};
    ui::MenuEntry mnuEntryForm{m_owner, "mnuEntryForm", "Entry &Form...", [this] { m_go.toEntryForm(); }};
    ui::MenuEntry mnuImport{m_owner, "mnuImport", "&Import Selections...", [this] { m_go.toImport(); }, "Ctrl+I"};
    ui::MenuEntry mnuExportSelections{m_owner, "mnuExportSelections", "Export Selections as &CSV...",
                                      [this] { m_do.exportSelections(); }};
    ui::MenuEntry mnuOpenFolder{m_owner, "mnuOpenFolder", "Open Fol&der", [this] { m_do.openFolder(); }};
    ui::MenuEntry mnuBackUp{m_owner, "mnuBackUp", "&Back Up Pool", [this] { m_do.backUpPool(); }};
    ui::MenuEntry mnuPrintPreview{m_owner, "mnuPrintPreview", "Print Pre&view", [this] { m_do.previewForm(); }};
    ui::MenuEntry mnuPrintForm{m_owner, "mnuPrintForm", "&Print Form", [this] { m_do.printForm(); }, "Ctrl+P"};
    ui::MenuEntry mnuExit{m_owner, "mnuExit", "E&xit", [this] { m_go.endProgram(); }, "Ctrl+Q"};
    ui::MenuEntry mnuEdit{m_owner, "mnuEdit", "&Edit"};
    ui::MenuEntry mnuUndo{m_owner, "mnuUndo", "&Undo", [this] { m_do.undo(); }, "Ctrl+Z"};
    ui::MenuEntry mnuRedo{m_owner, "mnuRedo", "&Redo", [this] { m_do.redo(); }, "Ctrl+Shift+Z"};
    ui::MenuEntry mnuOptions{m_owner, "mnuOptions", "&Options"};
    ui::MenuEntry mnuScoreSelections{m_owner, "mnuScoreSelections", "&Score Selections",
                                     [this] { m_do.scoreSelections(); }, "F6"};
    ui::MenuEntry mnuGameResults{m_owner, "mnuGameResults", "Enter &Game Results", [this] { m_do.enterGameResults(); },
                                 "F5"};
    ui::MenuEntry mnuOutlook{m_owner, "mnuOutlook", "Pool &Outlook", [this] { m_go.toOutlook(); }, "F9"};
    ui::MenuEntry mnuEntryAssist{m_owner, "mnuEntryAssist", "Entry &Assist"};
    ui::MenuEntry mnuHighSeed{m_owner, "mnuHighSeed", "Select &High Seeds", [this] { m_do.selectHighSeeds(); }};
    ui::MenuEntry mnuEditNames{m_owner, "mnuEditNames", "Edit &Names File", [this] { m_go.toPlayers(); }, "F8"};
    ui::MenuEntry mnuMoney{m_owner, "mnuMoney", "&Money...", [this] { m_go.toMoney(); }};
    ui::MenuEntry mnuSetup{m_owner, "mnuSetup", "&Setup"};
    ui::MenuEntry mnuSetupOptions{m_owner, "mnuSetupOptions", "Setup &Pool Options", [this] { m_go.toSetup(); }};
    ui::MenuEntry mnuReports{m_owner, "mnuReports", "&Reports", [this] { m_go.toReports(); }, "F7"};
    ui::MenuEntry mnuDemo{m_owner, "mnuDemo", "&DEMO Mode"};
    ui::MenuEntry mnuDemoSet{m_owner, "mnuDemoSet", "DEMO-&Start", [this] { m_go.toDemo(); }};
    ui::MenuEntry mnuDemoReset{m_owner, "mnuDemoReset", "DEMO-&Reset", [this] { m_go.fromDemo(); }};
    ui::MenuEntry mnuHelp{m_owner, "mnuHelp", "&Help"};
    ui::MenuEntry mnuHelpDisplay{m_owner, "mnuHelpDisplay", "&Help Display",
                                 [this] { m_go.toHelp(m_owner->helpTopic()); }, "F1"};
    ui::MenuEntry mnuHelpAbout{m_owner, "mnuHelpAbout", "&About Tallyhoop", [this] { m_go.toAbout(); }};

    void enableMenus(const BoardState& state);

private:
    void arrange();
    void showRecent(const BoardState& state);
    void chooseIcons();
    void explain();
};

} // namespace tallyhoop
