// screens/setup/setup_screen.cpp - the setup screen: what it shows, its modes, and how it is left.
#include "screens/setup/setup_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "files/file_names.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"
#include "screens/demo_mode.h"
#include "screens/help_display.h"
#include "screens/help_topics.h"

#include <array>
#include <string_view>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Define Starting Field & Options";
constexpr const char* kOverrideCaption = "Override &Selecting Team Names";
constexpr const char* kSelectingCaption = "Continue &Selecting";
constexpr const char* kDesignComment = "Enter any comments or instructions";
constexpr ui::Colour kLightGreen{0x80, 0xFF, 0x80};

constexpr std::array<const char*, kRounds> kDesignPayoffs = {"1", "2", "4", "8", "12", "16"};
enum TabPosition {
    kFirstRegionTab = 64,
    kTitleTab = 68,
    kComment1Tab,
    kComment2Tab,
    kFirstPayoffTab,
    kFinalizeTab = 77,
    kListTab,
    kAddTab,
    kChangeTab,
    kDeleteTab,
    kOverrideTab,
    kClearTab,
};

} // namespace

SetupScreen::SetupScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                         Opening opening)
    : Screen{"frmPoolEntry", kCaption},
      m_folder{folder},
      m_platform{platform},
      m_state{state},
      m_screens{screens},
      m_opening{opening}
{
    lstTeamNames.background = kLightGreen;
    txtComment1.multiLine = txtComment2.multiLine = true;
    txtComment1.text = txtComment2.text = kDesignComment;
    arrangeTabs();
    arrangeMenus();
    describeBoxes();
}

void SetupScreen::arrangeTabs()
{
    for (std::size_t i = 0; i < txtRegion.size(); ++i)
        txtRegion[i].tabIndex = static_cast<int>(i);
    TxtInfo[0].tabIndex = kTitleTab;
    for (std::size_t region = 0; region < kRegions; ++region)
        TxtInfo[region + 1].tabIndex = kFirstRegionTab + static_cast<int>(region);
    txtComment1.tabIndex = kComment1Tab;
    txtComment2.tabIndex = kComment2Tab;
    for (std::size_t round = 0; round < txtInfo6.size(); ++round)
        txtInfo6[round].tabIndex = kFirstPayoffTab + static_cast<int>(round);
    cmdFinalize.tabIndex = kFinalizeTab;
    lstTeamNames.tabIndex = kListTab;
    cmdAddName.tabIndex = kAddTab;
    cmdChangeName.tabIndex = kChangeTab;
    cmdDeleteName.tabIndex = kDeleteTab;
    cmdOverride.tabIndex = kOverrideTab;
    cmdClear.tabIndex = kClearTab;
}

void SetupScreen::arrangeMenus()
{
    mnuFile.children = {&mnuSaveStartingField, nullptr, &mnuEnd};
    mnuOptions.children = {&mnuSeating};
    mnuDemo.children = {&mnuDemoSet, &mnuDemoReset};
    mnuHelp.children = {&mnuHelpDisplay, &mnuHelpAbout};
    menuBar = {&mnuFile, &mnuOptions, &mnuDemo, &mnuHelp};

    mnuSaveStartingField.icon = "save";
    mnuEnd.icon = "exit";
    mnuSeating.icon = "seeds";
    mnuDemoSet.icon = "demo";
    mnuDemoReset.icon = "reset";
    mnuHelpDisplay.icon = "help";
    mnuHelpAbout.icon = "about";
    explainMenus();
}

void SetupScreen::describeBoxes()
{
    for (std::size_t i = 0; i < txtRegion.size(); ++i) {
        txtRegion[i].text = "Team " + std::to_string(i + 1);
        txtRegion[i].edited = [this, i] { teamBoxEdited(txtRegion[i]); };
    }
    for (std::size_t round = 0; round < txtInfo6.size(); ++round) {
        txtInfo6[round].text = kDesignPayoffs[round];
        txtInfo6[round].edited = [this] { showStatus(); };
    }
    for (std::size_t i = 0; i < TxtInfo.size(); ++i) {
        TxtInfo[i].spokenName = i == 0 ? "Pool title" : "Title of region " + std::to_string(i);
        TxtInfo[i].edited = [this] { showStatus(); };
    }
    txtComment1.spokenName = "Comment 1";
    txtComment2.spokenName = "Comment 2";
    txtComment1.edited = txtComment2.edited = [this] { showStatus(); };
    explainBoxes();
    cmdClear.mnemonic = 'l';
    cmdFinalize.mnemonic = 'n';
    lstTeamNames.spokenName = "Team names";
    lstTeamNames.pressed = [this] { markLastTeamBox(true); };
}

void SetupScreen::load()
{
    m_state.teamNames = {};
    OverrideMode = false;
    showPool();
    showTeamNames(); // second: its message follows that about the field
    showStatus();
}

/// Shows the field and the demo mode that the folder holds now.
void SetupScreen::showPool()
{
    m_known.note(m_folder.pathTo(file_name::kSetup));
    ReadStartingField(m_folder, m_platform.dialogs, m_state);
    FinalizeState = "0";
    cmdFinalize.enabled = true;
    showSetup();
    showDemoMode();
    m_saved = linesOnScreen();
    m_notice = std::exchange(m_state.notice, {});
    showStatus();
    focused = &txtRegion[0];
}

void SetupScreen::showSetup()
{
    const SetupLines& lines = m_state.setupLines;
    for (std::size_t i = 0; i < txtRegion.size(); ++i)
        txtRegion[i].text = lines[setup_line::kTeam + i];
    for (std::size_t i = 0; i < TxtInfo.size(); ++i) // the region titles follow the pool's title
        TxtInfo[i].text = lines[setup_line::kTitle + i];
    for (std::size_t round = 0; round < txtInfo6.size(); ++round)
        txtInfo6[round].text = lines[setup_line::kPayoff + round];
    for (std::size_t row = 0; row < kRowsPerRegion; ++row)
        m_state.seedLabels[row] = lines[setup_line::kSeed + row];
    showSeeds();
    txtComment1.text = decodeLineBreaks(lines[setup_line::kComment1]);
    txtComment2.text = decodeLineBreaks(lines[setup_line::kComment2]);
}

void SetupScreen::showSeeds()
{
    for (std::size_t i = 0; i < lblSeed.size(); ++i) {
        const std::string& seed = m_state.seedLabels[i % kRowsPerRegion];
        lblSeed[i].text = seed;
        txtRegion[i].spokenName = "Region " + std::to_string(i / kRowsPerRegion + 1) + ", seed " + seed;
    }
    showStatus();
}

void SetupScreen::showTeamNames()
{
    m_known.note(m_folder.pathTo(file_name::kTeamNames));
    const auto names = ReadTeamNames(m_folder, m_platform.dialogs);
    m_teamListIsRead = names.has_value();
    lstTeamNames.rows.clear();
    lstTeamNames.selected.reset();
    if (!names)
        return;
    for (const std::string& team : *names) {
        if (team.empty())
            break;
        insertSorted(lstTeamNames.rows, team);
    }
}

void SetupScreen::showDemoMode()
{
    const bool demo = demoModeIsOn(m_folder);
    lblDemoMode.visible = demo;
    mnuDemoReset.enabled = demo;
    // A finalized pool of the person's own must not be overwritten by the sample.
    mnuDemoSet.enabled = !demo && leadingNumber(m_state.setupLines[setup_line::kFinalized]) == 0;

    // The installer is not waited for, so right after a demo command the command itself knows better than the files.
    if (m_opening != Opening::Plain) {
        lblDemoMode.visible = m_opening == Opening::DemoEntered;
        mnuDemoReset.enabled = m_opening == Opening::DemoEntered;
        mnuDemoSet.enabled = m_opening == Opening::DemoLeft;
    }
}

void SetupScreen::toggleOverride()
{
    OverrideMode = !OverrideMode;
    cmdOverride.caption = OverrideMode ? kSelectingCaption : kOverrideCaption;
    lstTeamNames.enabled = !OverrideMode;
    cmdAddName.enabled = !OverrideMode;
    cmdChangeName.enabled = !OverrideMode;
    cmdDeleteName.enabled = !OverrideMode;
    explainBoxes();
    focused = controlAtTab(LastTeamBox);
}

void SetupScreen::clearTeamNames()
{
    for (std::size_t i = 0; i < txtRegion.size(); ++i)
        txtRegion[i].text.clear();
    focused = &txtRegion[0];
    showStatus();
}

void SetupScreen::enterSeeds() { m_screens.load(ScreenKind::SeedPositions); }

void SetupScreen::leave()
{
    // Names that could not be written stay here, where they can be seen.
    if (!saveTeamNames())
        return;
    m_screens.load(ScreenKind::Board);
    m_screens.unload(ScreenKind::Setup);
}

void SetupScreen::closeRequested() { leave(); }

void SetupScreen::unloading()
{
    // Nothing is asked twice: after any answer there are no changes left to ask about.
    saveTeamNames();
}

void SetupScreen::startDemoMode()
{
    if (const std::optional<Opening> opening = enterDemo(m_folder, m_platform))
        reload(*opening);
}

void SetupScreen::resetDemoMode()
{
    if (leaveDemo(m_folder, m_platform, m_state.notice))
        reload(Opening::DemoLeft);
}

void SetupScreen::reload(Opening opening)
{
    if (!saveTeamNames()) {
        // Names that could not be written stay here, beside the pool that is there now.
        m_opening = opening;
        showPool();
        return;
    }
    m_screens.unload(ScreenKind::Setup);
    m_screens.load(ScreenKind::Setup, opening);
}

void SetupScreen::showHelpText() { showHelp(m_folder, m_platform, helpTopic()); }

// The sample field is there to be looked at: what can and cannot be done with it stands under demo mode.
std::string SetupScreen::helpTopic() const { return lblDemoMode.visible ? help_topic::kDemo : help_topic::kSetup; }

} // namespace tallyhoop
