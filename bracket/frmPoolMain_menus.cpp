#include "bracket/frmPoolMain.h"

#include "model/demo_mode.h"
#include "model/help_display.h"
#include "model/help_topics.h"
#include "model/setup_file.h"

namespace tallyhoop {

void frmPoolMain::arrangeMenus()
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

void frmPoolMain::leaveScoreDisplay() { m_screens.unload(ScreenKind::ScoreDisplay); }

void frmPoolMain::openPlayerNames()
{
    leaveScoreDisplay();
    m_screens.load(ScreenKind::PlayerNames);
}

void frmPoolMain::openSetup()
{
    leaveScoreDisplay();
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Setup);
}

void frmPoolMain::openReports()
{
    leaveScoreDisplay();
    mnuReports.enabled = false;
    m_screens.load(ScreenKind::Reports);
}

void frmPoolMain::demoSet()
{
    const std::optional<Opening> opening = enterDemo(m_folder, m_platform);
    if (!opening)
        return;
    leaveScoreDisplay();
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, *opening);
}

void frmPoolMain::demoReset()
{
    leaveScoreDisplay();
    if (!leaveDemo(m_folder, m_platform, m_state.notice))
        return;
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, Opening::DemoLeft);
}

void frmPoolMain::displayHelp() { showHelp(m_folder, m_platform, helpTopic()); }

std::string frmPoolMain::helpTopic() const
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
