// screens/reports/reports_screen_printouts.cpp - printouts of the board, and the ways out of the screen.
#include "files/file_names.h"
#include "screens/printouts.h"
#include "screens/reports/reports_screen.h"
#include "screens/saving.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kTitle = "Tallyhoop - frmPoolReports, cmdSelectedPrintouts";
constexpr const char* kNoOption = "You need to make a selection from one of the two options\r\n"
                                  "for selected printouts.  Please try again.";
constexpr const char* kNoResults = "Game Results have not been entered, this option\r\n"
                                   "is NOT valid until this activity has been completed";
constexpr const char* kNoFile = "You must select one of the entries from the list \r\n"
                                "of File Names for display.\r\n"
                                "\r\n"
                                "Make a selection and then retry.";

ui::Message refusal(const char* text) { return {kTitle, text, ui::Buttons::Ok, ui::Icon::Exclamation}; }

} // namespace

void ReportsScreen::createSelectedPrintout()
{
    say({});
    if (!optSelected[0].selected && !optSelected[1].selected)
        m_platform.dialogs.show(refusal(kNoOption));
    else if (!sheetIsPossible())
        return;
    else if (optSelected[1].selected)
        printResultsSheet();
    else if (chkAllPlayers.ticked)
        printAllPlayers();
    else
        printScoredSelection();
}

bool ReportsScreen::sheetIsPossible()
{
    const bool wantsResults = optSelected[1].selected;
    if (!m_folder.exists(file_name::kResults))
        m_platform.dialogs.show(refusal(kNoResults));
    else if (!wantsResults && (chkAllPlayers.ticked ? filList.rows.empty() : !filList.selected))
        m_platform.dialogs.show(refusal(kNoFile));
    else
        return true;
    return false;
}

void ReportsScreen::printResultsSheet()
{
    if (!m_board.mayShowGameResults())
        return;
    m_screens.unload(ScreenKind::Reports);
    m_board.showGameResults();
    m_board.printForm();
}

void ReportsScreen::printScoredSelection()
{
    if (!m_board.mayBeLeft())
        return;
    const std::filesystem::path file = m_files.at(static_cast<std::size_t>(*filList.selected)).path;
    m_screens.bringToFront(ScreenKind::Board);
    m_screens.unload(ScreenKind::Reports);
    m_board.showScored(file);
    m_board.printForm();
}

void ReportsScreen::printAllPlayers()
{
    const auto sheets = scoredSheets();
    if (sheets && m_platform.printer.choosePrinter())
        say(printOut(m_platform, *sheets).sentence);
}

void ReportsScreen::previewBoard()
{
    say({});
    if (auto sheet = chosenSheet())
        say(showPreview(m_platform, m_folder.folder(), {std::move(*sheet)}));
}

void ReportsScreen::saveBoardAsPdf()
{
    say({});
    if (auto sheet = chosenSheet())
        say(saveAsPdf(m_platform, m_folder.folder(), {std::move(*sheet)}));
}

std::optional<ui::Printout> ReportsScreen::chosenSheet()
{
    if (!optSelected[0].selected && !optSelected[1].selected)
        return m_board.printout();
    if (!sheetIsPossible())
        return std::nullopt;
    if (optSelected[1].selected)
        return m_sheets.results();
    return scoredSheets();
}

std::optional<ui::DrawingPrintout> ReportsScreen::scoredSheets()
{
    if (chkAllPlayers.ticked)
        return m_sheets.scored(m_files);
    return m_sheets.scored(std::span{&m_files.at(static_cast<std::size_t>(*filList.selected)), 1});
}

void ReportsScreen::gotoCustomReporting()
{
    if (!m_board.mayShowGameResults())
        return;
    m_screens.unload(ScreenKind::Reports);
    m_board.showGameResults();
    m_screens.load(ScreenKind::Scores);
}

void ReportsScreen::openFolder() { say(showFolder(m_platform, m_folder)); }

void ReportsScreen::exitReports()
{
    if (m_platform.mail.isOpen())
        m_platform.mail.signOff();
    m_screens.unload(ScreenKind::Reports);
}

} // namespace tallyhoop
