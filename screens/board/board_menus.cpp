// screens/board/board_menus.cpp - order, icons and explanations of the entries, and when each is enabled.
#include "screens/board/board_menus.h"

namespace tallyhoop {

namespace {

/// A name as part of a caption, in which an `&` would mark a mnemonic.
std::string plain(std::string_view name)
{
    std::string caption;
    for (const char character : name)
        caption.append(character == '&' ? 2 : 1, character);
    return caption;
}

} // namespace

BoardMenus::BoardMenus(ui::Screen* owner, BoardCommands& commands, const BoardExits& exits)
    : m_owner{owner}, m_do{commands}, m_go{exits}
{
    arrange();
    chooseIcons();
    explain();
}

void BoardMenus::arrange()
{
    for (std::size_t i = 0; i < mnuRecentFile.size(); ++i) {
        mnuRecentFile[i].action = [this, i] { m_do.openRecent(i); };
        mnuRecent.children.push_back(&mnuRecentFile[i]);
    }
    mnuFile.children = {&mnuNewSelection,  &mnuOpenSelection, &mnuRecent,    &mnuPrevious, &mnuNext,
                        &mnuSaveSelection, nullptr,           &mnuEntryForm, &mnuImport,   &mnuExportSelections,
                        nullptr,           &mnuPrintPreview,  &mnuPrintForm, nullptr,      &mnuOpenFolder,
                        &mnuBackUp,        nullptr,           &mnuExit};
    mnuEdit.children = {&mnuUndo, &mnuRedo};
    mnuEntryAssist.children = {&mnuHighSeed};
    mnuOptions.children = {&mnuScoreSelections, &mnuGameResults, &mnuOutlook,   nullptr,
                           &mnuEntryAssist,     nullptr,         &mnuEditNames, &mnuMoney};
    mnuSetup.children = {&mnuSetupOptions};
    mnuDemo.children = {&mnuDemoSet, &mnuDemoReset};
    mnuHelp.children = {&mnuHelpDisplay, &mnuHelpAbout};
    m_owner->menuBar = {&mnuFile, &mnuEdit, &mnuOptions, &mnuSetup, &mnuReports, &mnuDemo, &mnuHelp};
}

void BoardMenus::chooseIcons()
{
    mnuNewSelection.icon = ui::MenuIcon::New;
    mnuOpenSelection.icon = ui::MenuIcon::Open;
    mnuSaveSelection.icon = ui::MenuIcon::Save;
    mnuPrintPreview.icon = ui::MenuIcon::Preview;
    mnuPrintForm.icon = ui::MenuIcon::Print;
    mnuExit.icon = ui::MenuIcon::Exit;
    mnuPrevious.icon = mnuNext.icon = ui::MenuIcon::Open;
    mnuEntryForm.icon = ui::MenuIcon::New;
    mnuExportSelections.icon = ui::MenuIcon::Save;
    mnuImport.icon = ui::MenuIcon::People;
    mnuOpenFolder.icon = ui::MenuIcon::Open;
    mnuBackUp.icon = ui::MenuIcon::Save;
    mnuUndo.icon = ui::MenuIcon::Undo;
    mnuRedo.icon = ui::MenuIcon::Redo;
    mnuScoreSelections.icon = ui::MenuIcon::Score;
    mnuGameResults.icon = ui::MenuIcon::Results;
    mnuOutlook.icon = ui::MenuIcon::Score;
    mnuHighSeed.icon = ui::MenuIcon::Assist;
    mnuEditNames.icon = ui::MenuIcon::People;
    mnuSetupOptions.icon = mnuMoney.icon = ui::MenuIcon::Setup;
    mnuDemoSet.icon = ui::MenuIcon::Demo;
    mnuDemoReset.icon = ui::MenuIcon::Reset;
    mnuHelpDisplay.icon = ui::MenuIcon::Help;
    mnuHelpAbout.icon = ui::MenuIcon::About;
}

void BoardMenus::explain()
{
    mnuNewSelection.explanation = "Empties the board for another player's selection.";
    mnuOpenSelection.explanation = "Shows a selection that was saved before.";
    mnuRecent.explanation = "The selections that were opened or saved last.";
    for (std::size_t i = 0; i < mnuRecentFile.size(); ++i) {
        mnuRecentFile[i].explanation = "Shows this selection, which was opened or saved lately.";
        mnuRecentFile[i].icon = ui::MenuIcon::Open;
    }
    mnuPrevious.explanation = "Shows the selection before this one in the program's folder.";
    mnuNext.explanation = "Shows the selection after this one in the program's folder.";
    mnuEntryForm.explanation =
        "A page on which players fill in their own brackets, on a telephone or a computer, and hand them in.";
    mnuExportSelections.explanation =
        "Writes all selections saved in the program's folder into a table for a spreadsheet.";
    mnuImport.explanation = "Takes in what players have handed in: files, mails, texts or a spreadsheet.";
    mnuOpenFolder.explanation = "Shows the folder that holds the pool.";
    mnuBackUp.explanation = "Copies the pool's files into a new folder inside this one, named after day and time.";
    mnuSaveSelection.explanation = "Saves the selection, or the results, as shown on the board.";
    mnuPrintPreview.explanation = "Shows the board as it will be printed.";
    mnuPrintForm.explanation = "Prints the board on one page.";
    mnuExit.explanation = "Ends the program.";
    mnuUndo.explanation = "Takes the last change of the bracket back.";
    mnuRedo.explanation = "Makes the change again that was taken back last.";
    mnuScoreSelections.explanation = "Marks right and wrong picks; from the results it opens the list of all scores.";
    mnuGameResults.explanation = "Shows the real results, to enter the winners as they become known.";
    mnuOutlook.explanation = "Who can still win the pool, how, and whom to root for.";
    mnuEntryAssist.explanation = "Help with filling the board in.";
    mnuHighSeed.explanation = "The better seed wins every game of the regions; picks already made there are replaced.";
    mnuEditNames.explanation = "Opens the list of players with their e-mail addresses.";
    mnuMoney.explanation = "The entry fee, the prizes, who has paid, and the final sheet.";
    mnuSetupOptions.explanation = "Opens the field, the titles, the payoffs and the comments.";
    mnuReports.explanation = "Opens the reports: to the printer, to files or by e-mail.";
    mnuDemoSet.explanation = "Shows a sample pool, to try everything out.";
    mnuDemoReset.explanation = "Takes the sample pool away again.";
    mnuHelpDisplay.explanation = "Shows the help on what is on the screen.";
    mnuHelpAbout.explanation = "About Tallyhoop: version and licence.";
}

void BoardMenus::enableMenus(const BoardState& state)
{
    mnuNewSelection.enabled = mnuOpenSelection.enabled = state.finalized;
    mnuPrevious.enabled = mnuNext.enabled = state.finalized;
    showRecent(state);
    mnuEntryForm.enabled = state.finalized;
    mnuExportSelections.enabled = state.finalized && state.selectionsThere;
    mnuImport.enabled = state.finalized;
    mnuMoney.enabled = state.finalized;
    mnuSaveSelection.enabled = state.finalized && !state.scored;
    mnuGameResults.enabled = state.finalized && !state.resultsMode;
    mnuScoreSelections.enabled = state.finalized && !state.scored && (state.resultsMode || state.resultsThere);
    mnuOutlook.enabled = state.finalized && state.selectionsThere;
    mnuReports.enabled = state.finalized && !state.reportsOpen;
    const bool editable = !state.marked && !state.scoreListOpen;
    mnuHighSeed.enabled = editable;
    mnuUndo.enabled = editable && state.canUndo;
    mnuRedo.enabled = editable && state.canRedo;
    // A field that is final is not to be changed any more, but for that of the sample pool.
    mnuSetup.enabled = mnuDemo.enabled = state.demo || !state.finalized;
    mnuDemoSet.enabled = !state.demo && state.mayStartDemo;
    mnuDemoReset.enabled = state.demo;
}

void BoardMenus::showRecent(const BoardState& state)
{
    mnuRecent.enabled = state.finalized && !state.recent.empty();
    for (std::size_t i = 0; i < mnuRecentFile.size(); ++i) {
        const bool isThere = i < state.recent.size();
        mnuRecentFile[i].visible = mnuRecentFile[i].enabled = isThere;
        mnuRecentFile[i].caption =
            "&" + std::to_string(i + 1) + " " + (isThere ? plain(state.recent[i]) : std::string{});
    }
}

} // namespace tallyhoop
