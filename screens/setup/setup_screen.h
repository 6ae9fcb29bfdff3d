// screens/setup/setup_screen.h - the setup screen: the starting field, the pool's options and the list of team names.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "screens/list_search.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tallyhoop {

/// Where the organiser defines the field and finalizes it. Team names are picked from the maintained list, by typing
/// ahead or with the arrow keys, unless selecting is overridden.
class SetupScreen : public ui::Screen
{
public:
    /// @param opening what a demo command of the screen loaded before has done
    SetupScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                Opening opening = Opening::Plain);

    // In reading order; the tab order stands apart from it because the key rules find team boxes by tab position.
    ui::Label lblDemoMode{this, "lblDemoMode", "Demonstration Mode"};
    ui::Label lblPoolTitle{this, "lblPoolTitle", "Pool Title:"};
    ui::ControlArray<ui::TextBox, 5> TxtInfo{this, "TxtInfo"}; ///< 0 the pool's title, 1..4 the region titles
    ui::ControlArray<ui::Label, kTeams> lblSeed{this, "lblSeed"};
    ui::ControlArray<ui::TextBox, kTeams> txtRegion{this,
                                                    "txtRegion"}; ///< box i: region i / 16, first-round row i % 16
    ui::ListBox lstTeamNames{this, "lstTeamNames"};               ///< sorted, but a changed name keeps its row
    ui::Label lblChangeNames{this, "lblChangeNames", "Select Buttons to Change Names in the above List"};
    ui::Command cmdAddName{this, "cmdAddName", "&Add", [this] { addName(); }};
    ui::Command cmdChangeName{this, "cmdChangeName", "&Change", [this] { changeName(); }};
    ui::Command cmdDeleteName{this, "cmdDeleteName", "&Delete", [this] { deleteName(); }};
    ui::Command cmdOverride{this, "cmdOverride", "Override &Selecting Team Names", [this] { toggleOverride(); }};
    ui::Command cmdClear{this, "cmdClear", "Clear All Team Names", [this] { clearTeamNames(); }};
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
    ui::MenuEntry mnuOptions{this, "mnuOptions", "&Options"};
    ui::MenuEntry mnuSeating{this, "mnuSeating", "&Seeding Entry", [this] { enterSeeds(); }};
    ui::MenuEntry mnuDemo{this, "mnuDemo", "DE&MO Mode"};
    ui::MenuEntry mnuDemoSet{this, "mnuDemoSet", "DEMO-&Start", [this] { startDemoMode(); }};
    ui::MenuEntry mnuDemoReset{this, "mnuDemoReset", "DEMO-&Reset", [this] { resetDemoMode(); }};
    ui::MenuEntry mnuHelp{this, "mnuHelp", "&Help"};
    ui::MenuEntry mnuHelpDisplay{this, "mnuHelpDisplay", "&Help Display", [this] { showHelpText(); }, "F1"};
    ui::MenuEntry mnuHelpAbout{this, "mnuHelpAbout", "&About Tallyhoop", [this] { m_platform.dialogs.about(); }};

    bool OverrideMode = false;      ///< team names are typed freely instead of picked from the list
    std::int16_t LastTeamBox = 0;   ///< tab position (= index) of the team box that had the focus last
    std::string FinalizeState{"0"}; ///< "1" once Finalize Tournament is pressed; what the next save writes

    std::string helpTopic() const override;
    void load() override;
    void unloading() override;
    void closeRequested() override;
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;
    void lostFocus(ui::Control& control) override;
    bool pasted(ui::TextBox& box, const std::string& text) override;

    /// Shows the shared seed texts beside the team boxes of all four regions.
    void showSeeds();

private:
    // SetupScreen.cpp
    void arrangeTabs();
    void arrangeMenus();
    void describeBoxes();
    void showPool();
    void showSetup();
    void showTeamNames();
    void showDemoMode();
    void toggleOverride();
    void clearTeamNames();
    void enterSeeds();
    void leave();
    void startDemoMode();
    void resetDemoMode();
    void reload(Opening opening);
    void showHelpText();

    // SetupScreen_keys.cpp
    bool teamBoxKey(std::size_t box, const ui::KeyPress& press);
    bool teamListKey(const ui::KeyPress& press);
    void forwardToList(ui::TextBox& box, ui::Key key);
    void search(ui::TextBox& box, std::int16_t keyCode);
    void acceptTeamBox(std::size_t box);
    void teamBoxEdited(ui::TextBox& box);
    void markLastTeamBox(bool marked);
    bool isListedName(const std::string& team) const;

    // SetupScreen_paste.cpp
    bool pasteTeams(std::size_t box, const std::string& text);
    std::string listedName(const std::string& typed) const;

    // SetupScreen_names.cpp
    void addName();
    void changeName();
    void deleteName();
    void addOverrideName(std::size_t box);
    bool saveTeamNames();

    // SetupScreen_save.cpp
    void finalize();
    void saveStartingField();
    bool isComplete();
    bool finalizingIsConfirmed();
    void refuse(ui::Control& box, const char* title, const char* text);
    SetupLines linesOnScreen() const;

    // SetupScreen_words.cpp
    void explainBoxes();
    void explainMenus();
    void showStatus();

    const DataFolder& m_folder;
    ui::Platform m_platform;
    modTallyhoop& m_state;
    Screens& m_screens;
    Opening m_opening;
    ListSearch m_search;
    KnownFiles m_known;            ///< the field and the list of team names as they were read
    SetupLines m_saved{};          ///< what the screen held when it was loaded or saved last
    std::string m_notice;          ///< what the screen that was here before left to be said
    bool m_teamListIsRead = false; ///< NCAALIST.THS was there and whole
};

} // namespace tallyhoop
