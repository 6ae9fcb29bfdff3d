#include "screens/board/board_screen.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "pool/scoring.h"
#include "screens/demo_mode.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

constexpr ui::Colour kTeamColour{0, 0, 255};
constexpr const char* kFirstRoundTip = "Left Click or Drag to Select";
constexpr std::array<const char*, 10> kRoundNames = {
    "1st round:", "2nd round:",     "Regional semi:",  "Regional final:", "1st round:",
    "2nd round:", "Regional semi:", "Regional final:", "Semi-final:",     "Final game:"};
} // namespace

BoardScreen::BoardScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                         Opening opening)
    : Screen{"frmPoolMain", "Tallyhoop"},
      m_folder{folder},
      m_platform{platform},
      m_state{state},
      m_screens{screens},
      m_opening{opening}
{
    describeControls();
    arrangeMenus();
}

void BoardScreen::describeControls()
{
    for (std::size_t i = 0; i < kRoundNames.size(); ++i)
        lblRoundName[i].text = kRoundNames[i];
    for (std::size_t i = 0; i < kTeams; ++i) {
        txtSeed[i].locked = true;
        txtSeed[i].tabStop = false;
    }
    for (std::size_t i = 0; i < kPositions; ++i) {
        lblRegion[i].colour = kTeamColour;
        lblRegion[i].tabStop = i == 0;
    }
    for (ui::TextBox* comment : {&txtComment1, &txtComment2}) {
        comment->multiLine = true;
        comment->locked = true;
        comment->tabStop = false;
    }
    txtPlayerInitials.tabIndex = 140;
    txtPlayerName.tabIndex = 141;
    txtFinalPoints.tabIndex = 143;
    txtPointScore.locked = true;
    txtPointScore.tabStop = false;
    hideDefaultColors();
    putControlsIntoWords();
    focused = &txtPlayerInitials;
}

void BoardScreen::load()
{
    loadBoard();
    applyOpening();
}

void BoardScreen::unloading() { dropHandOver(); }

void BoardScreen::loadBoard()
{
    m_resultsMode = false;
    m_dragging = false;
    m_state.selectionFile.OpenedFile.clear();
    dropHandOver();
    ReadStartingField(m_folder, m_platform.dialogs, m_state);
    fillFromSetup();
    applyFinalized();
    applyDemoMode();
    captureBoard();
    readPlayerNames();
    describePositions();
    unsaved = false;
    status.clear();
    m_history.clear();
    offerHistory();
    describeDocument();
    sayWhatToDo();
}

void BoardScreen::fillFromSetup()
{
    const SetupLines& setup = m_state.setupLines;
    for (int region = 0; region < kRegions; ++region) {
        for (int row = 0; row < kRowsPerRegion; ++row) {
            const auto team = static_cast<std::size_t>(kRowsPerRegion * region + row);
            ui::Label& label = lblRegion[static_cast<std::size_t>(index(firstRoundPosition(region, row)))];
            label.text = setup[setup_line::kTeam + team];
            label.toolTip = kFirstRoundTip;
            txtSeed[team].text = setup[setup_line::kSeed + static_cast<std::size_t>(row)];
        }
        const auto r = static_cast<std::size_t>(region);
        lblRegionTitle[r].text = setup[setup_line::kRegion + r];
    }
    lblTitle.text = setup[setup_line::kTitle];
    for (std::size_t round = 0; round < kRounds; ++round)
        lblInfo[round].text = setup[setup_line::kPayoff + round];
    for (std::size_t round = 0; round < lblInfoRight.size(); ++round)
        lblInfoRight[round].text = lblInfo[round].text;
    txtComment1.text = decodeLineBreaks(setup[setup_line::kComment1]);
    txtComment2.text = decodeLineBreaks(setup[setup_line::kComment2]);
}

void BoardScreen::applyFinalized()
{
    if (!isFinalized(m_state.setupLines)) {
        for (ui::MenuEntry* entry : {&mnuScoreSelections, &mnuGameResults, &mnuNewSelection, &mnuOpenSelection,
                                     &mnuSaveSelection, &mnuReports})
            entry->enabled = false;
        return;
    }
    if (!demoModeIsOn(m_folder)) {
        mnuSetup.enabled = false;
        mnuDemo.enabled = false;
    }
    mnuScoreSelections.enabled = resultsExist();
    mnuReports.enabled = true;
}

void BoardScreen::applyDemoMode()
{
    const bool on = demoModeIsOn(m_folder);
    lblDemoMode.visible = on;
    mnuDemoReset.enabled = on;
    mnuDemoSet.enabled = !on && leadingNumber(m_state.setupLines[setup_line::kFinalized]) == 0;
}

/// A demo command left this board to show the new state, whatever its load could read so far.
void BoardScreen::applyOpening()
{
    if (m_opening == Opening::Plain)
        return;
    const bool entered = m_opening == Opening::DemoEntered;
    // A hasty OK finds the sample field there and the settings not yet; the way back must be open all the same.
    mnuDemo.enabled = true;
    mnuDemoReset.enabled = entered;
    mnuDemoSet.enabled = !entered;
    lblDemoMode.visible = entered;
    if (entered)
        return;
    m_state.setupLines[setup_line::kFinalized] = "0";
    mnuScoreSelections.enabled = false;
    mnuGameResults.enabled = false;
    status = std::exchange(m_state.notice, {});
}

void BoardScreen::readPlayerNames()
{
    if (m_folder.exists(file_name::kPlayerNames))
        m_playersFaulty = !validatePlayerNames(m_folder, m_platform.dialogs);
    else if (!m_toldAboutFolder)
        m_toldAboutFolder = !createPlayerNames(m_folder, m_platform.dialogs);
}

bool BoardScreen::resultsExist() const { return m_folder.exists(file_name::kResults); }

TeamNamesOnBoard BoardScreen::teams() const
{
    TeamNamesOnBoard names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = lblRegion[i].text;
    return names;
}

void BoardScreen::setTeams(const TeamNamesOnBoard& names)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        lblRegion[i].text = names[i];
    describePositions();
}

void BoardScreen::captureBoard()
{
    SelectionLines& lines = m_state.selectionLines;
    for (std::size_t i = 0; i < kPositions; ++i)
        lines[selection_line::kFirstTeam + i] = lblRegion[i].text;
    lines[selection_line::kInitials] = upperCase(txtPlayerInitials.text);
    lines[selection_line::kName] = txtPlayerName.text;
    lines[selection_line::kFinalPoints] = txtFinalPoints.text;
}

void BoardScreen::showBoard(const SelectionLines& lines)
{
    TeamNamesOnBoard names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = lines[selection_line::kFirstTeam + i];
    txtPlayerInitials.text = lines[selection_line::kInitials];
    txtPlayerName.text = lines[selection_line::kName];
    txtFinalPoints.text = lines[selection_line::kFinalPoints];
    setTeams(names);
}

void BoardScreen::clearBoard()
{
    for (const Position position : gamePositions())
        lblRegion[static_cast<std::size_t>(index(position))].text.clear();
    txtPlayerInitials.text.clear();
    txtPlayerName.text.clear();
    txtFinalPoints.text.clear();
    txtPointScore.text.clear();
    lockFields(false);
    describePositions();
}

} // namespace tallyhoop
