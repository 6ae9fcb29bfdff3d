// screens/setup/setup_screen.h - the setup screen: the starting field, the pool's options and the list of team names.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "pool/field_check.h"
#include "screens/screens.h"
#include "screens/setup/setup_history.h"
#include "screens/setup/team_name_editor.h"
#include "screens/setup/team_picker.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <array>
#include <optional>
#include <string>

namespace tallyhoop {

/// Where the organiser defines the field and finalizes it. Team names are picked from the maintained list, by typing
/// ahead or with the arrow keys, unless selecting is overridden.
class SetupScreen : public ui::Screen
{
public:
    /// @param field the open field; read again when the screen is loaded, and not changed by what is entered here
    SetupScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, Field& field);

    // In reading order; the tab order differs from it because Tab goes through all team boxes first.
    ui::Label lblDemoMode{this, "lblDemoMode", "Demonstration Mode"};
    ui::Label lblPoolTitle{this, "lblPoolTitle", "Pool Title:"};
    ui::ControlArray<ui::TextBox, kRegions + 1> TxtInfo{this, "TxtInfo"}; ///< 0 the pool's title, 1..4 the regions'
    ui::ControlArray<ui::Label, kTeams> lblSeed{this, "lblSeed"};
    ui::ControlArray<ui::TextBox, kTeams> txtRegion{this, "txtRegion"}; ///< by TeamRow
    ui::ListBox lstTeamNames{this, "lstTeamNames"};
    ui::Label lblChangeNames{this, "lblChangeNames", "Select Buttons to Change Names in the above List"};
    ui::Command cmdAddName{this, "cmdAddName", "&Add", [this] { m_editor.add(); }};
    ui::Command cmdChangeName{this, "cmdChangeName", "&Change", [this] { m_editor.change(); }};
    ui::Command cmdDeleteName{this, "cmdDeleteName", "&Delete", [this] { m_editor.remove(); }};
    ui::Command cmdOverride{this, "cmdOverride", "Override &Selecting Team Names",
                            [this] { m_picker.toggleOverride(); }};
    ui::Command cmdClear{this, "cmdClear", "Clear All Team Names", [this] { m_picker.clearBoxes(); }};
    ui::Label lblComment1{this, "lblComment1", "Comment 1:"};
    ui::TextBox txtComment1{this, "txtComment1"};
    ui::Label lblComment2{this, "lblComment2", "Comment 2:"};
    ui::TextBox txtComment2{this, "txtComment2"};
    ui::Label lblPayoff{this, "lblPayoff", "Payoff Per Round:"};
    ui::Label lblPayoffRounds{this, "lblPayoffRounds", "  1       2      3      4     5      6"};
    ui::ControlArray<ui::TextBox, kRounds> txtInfo6{this, "txtInfo6"}; ///< payoffs of rounds 1..6
    ui::Command cmdFinalize{this, "cmdFinalize", "Finalize Tournament", [this] { finalize(); }};

    // Alt+D is the Delete button, so the demo menu answers to another letter than on the board.
    ui::MenuEntry mnuFile{this, "mnuFile", "&File"};
    ui::MenuEntry mnuSaveStartingField{this, "mnuSaveStartingField", "&Save", [this] { saveStartingField(); },
                                       "Ctrl+S"};
    ui::MenuEntry mnuEnd{this, "mnuEnd", "E&xit", [this] { leave(); }};
    ui::MenuEntry mnuEdit{this, "mnuEdit", "&Edit"};
    ui::MenuEntry mnuUndo{this, "mnuUndo", "&Undo", [this] { goBack(m_history.undo()); }, "Ctrl+Z"};
    ui::MenuEntry mnuRedo{this, "mnuRedo", "&Redo", [this] { goBack(m_history.redo()); }, "Ctrl+Shift+Z"};
    ui::MenuEntry mnuOptions{this, "mnuOptions", "&Options"};
    ui::MenuEntry mnuSeating{this, "mnuSeating", "&Seeding Entry", [this] { m_screens.load(ScreenKind::Seeds); }};
    ui::MenuEntry mnuDemo{this, "mnuDemo", "DE&MO Mode"};
    ui::MenuEntry mnuDemoSet{this, "mnuDemoSet", "DEMO-&Start", [this] { startDemoMode(); }};
    ui::MenuEntry mnuDemoReset{this, "mnuDemoReset", "DEMO-&Reset", [this] { resetDemoMode(); }};
    ui::MenuEntry mnuHelp{this, "mnuHelp", "&Help"};
    ui::MenuEntry mnuHelpDisplay{this, "mnuHelpDisplay", "&Help Display", [this] { showHelpText(); }, "F1"};
    ui::MenuEntry mnuHelpAbout{this, "mnuHelpAbout", "&About Tallyhoop",
                               [this] { m_platform.dialogs.about(m_folder.folder()); }};

    /// The seeds of the field on screen, for the seeds screen to change.
    SeedTexts& seeds() { return m_seeds; }

    /// The teams on screen in the rows of the first region.
    std::array<std::string, kRowsPerRegion> teamsOfFirstRegion() const;

    std::string helpTopic() const override;
    void load() override;
    void showState() override;
    void unloading() override;
    void closeRequested() override { leave(); }
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;
    void lostFocus(ui::Control& control) override;
    bool pasted(ui::TextBox& box, const std::string& text) override;

private:
    void readPool();
    void putOnScreen(const Field& field);
    Field textsOnScreen() const;
    Field fieldOnScreen() const;
    void goBack(const std::optional<Field>& texts);

    void showSeeds();
    void showExplanations();
    void showStatus();

    void finalize();
    void saveStartingField();
    bool trySaving();
    void refuse(const FieldFault& fault);
    bool doubtsAreConfirmed();
    bool finalizingIsConfirmed();

    bool isComment(const ui::Control& control) const;
    bool refusesComment(const ui::TextBox& comment, const std::string& pasted);
    bool sayCommentIsFull(const ui::Control& control, const ui::KeyPress& press);

    void leave();
    void startDemoMode();
    void resetDemoMode();
    void reload(const std::string& news);
    void showHelpText();

    const DataFolder& m_folder;
    ui::Platform m_platform;
    Screens& m_screens;
    Field& m_field;

    KnownFiles m_known; ///< the field as it was read
    Field m_saved;      ///< what the screen held when it was loaded or saved last
    SeedTexts m_seeds;  ///< of the field on screen
    SetupHistory m_history;
    int m_newsBefore = 0;        ///< the number of what had been said when the state was shown last
    bool m_fieldIsWhole = true;  ///< the field on the disk holds no more than was read of it
    bool m_isDemo = false;       ///< the folder holds the sample pool
    bool m_isFinalizing = false; ///< Finalize Tournament is pressed: the next save makes the field final
    TeamNameEditor m_editor{m_folder, m_platform, lstTeamNames};
    TeamPicker m_picker{txtRegion, lstTeamNames, m_editor.names()};
};

} // namespace tallyhoop
