#include "bracket/frmPoolMain.h"

#include "model/demo_mode.h"
#include "model/help_display.h"

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
    if (!enterDemo(m_folder, m_platform))
        return;
    leaveScoreDisplay();
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, Opening::DemoEntered);
}

void frmPoolMain::demoReset()
{
    leaveScoreDisplay();
    if (!leaveDemo(m_folder, m_platform))
        return;
    m_screens.unload(ScreenKind::Board);
    m_screens.load(ScreenKind::Board, Opening::DemoLeft);
}

void frmPoolMain::displayHelp() { showHelp(m_folder, m_platform, helpTopic); }

} // namespace tallyhoop
