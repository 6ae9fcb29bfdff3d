#include "screens/board/board_screen.h"

#include "files/setup_file.h"
#include "screens/demo_mode.h"
#include "screens/help_display.h"
#include "screens/help_topics.h"

namespace tallyhoop {

void BoardScreen::arrangeMenus()
{
    mnuFile.children = {&mnuNewSelection, &mnuOpenSelection, &mnuSaveSelection, nullptr,
                        &mnuPrintPreview, &mnuPrintForm,     nullptr,           &mnuExit};
    mnuEdit.children = {&mnuUndo, &mnuRedo};
    mnuEntryAssist.children = {&mnuHighSeed};
    mnuOptions.children = {&mnuScoreSelections, &mnuGameResults, nullptr, &mnuEntryAssist, nullptr, &mnuEditNames};
    mnuSetup.children = {&mnuSetupOptions};
    mnuDemo.children = {&mnuDemoSet, &mnuDemoReset};
    mnuHelp.children = {&mnuHelpDisplay, &mnuHelpAbout};
    menuBar = {&mnuFile, &mnuEdit, &mnuOptions, &mnuSetup, &mnuReports, &mnuDemo, &mnuHelp};

    mnuNewSelection.icon = "new";
    mnuOpenSelection.icon = "open";
    mnuSaveSelection.icon = "save";
    mnuPrintPreview.icon = "preview";
    mnuPrintForm.icon = "print";
    mnuExit.icon = "exit";
    mnuUndo.icon = "undo";
    mnuRedo.icon = "redo";
    mnuScoreSelections.icon = "score";
    mnuGameResults.icon = "results";
    mnuHighSeed.icon = "assist";
    mnuEditNames.icon = "people";
    mnuSetupOptions.icon = "setup";
    mnuDemoSet.icon = "demo";
    mnuDemoReset.icon = "reset";
    mnuHelpDisplay.icon = "help";
    mnuHelpAbout.icon = "about";
}

void BoardScreen::leaveScoreDisplay() { m_screens.unload(ScreenKind::ScoreDisplay); }

void BoardScreen::openPlayerNames()
{
    leaveScoreDisplay();
    m_screens.load(ScreenKind::PlayerNames);
}

void BoardScreen::openSetup()
{
    leaveScoreDisplay();
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Setup);
}

void BoardScreen::openReports()
{
    leaveScoreDisplay();
    mnuReports.enabled = false;
    m_screens.load(ScreenKind::Reports);
}

void BoardScreen::demoSet()
{
    const std::optional<Opening> opening = enterDemo(m_folder, m_platform);
    if (!opening)
        return;
    leaveScoreDisplay();
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, *opening);
}

void BoardScreen::demoReset()
{
    leaveScoreDisplay();
    if (!leaveDemo(m_folder, m_platform, m_state.notice))
        return;
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, Opening::DemoLeft);
}

void BoardScreen::displayHelp() { showHelp(m_folder, m_platform, helpTopic()); }

std::string BoardScreen::helpTopic() const
{
    if (m_scoreDisplayOpen)
        return help_topic::kScoreList;
    if (m_marksShown)
        return help_topic::kScores;
    if (m_resultsMode)
        return help_topic::kResults;
    if (m_playersFaulty)
        return help_topic::kRepair;
    const bool untouched = m_state.selectionFile.OpenedFile.empty() && !unsaved;
    if (lblDemoMode.visible && untouched)
        return help_topic::kDemo;
    return isFinalized(m_state.setupLines) ? help_topic::kSelections : help_topic::kStart;
}

} // namespace tallyhoop
