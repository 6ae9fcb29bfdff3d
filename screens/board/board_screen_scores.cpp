#include "screens/board/board_screen.h"

#include "base/text.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "screens/board/board_drawing.h"
#include "screens/printing_trouble.h"
#include "screens/scores/score_selection.h"

namespace tallyhoop {

namespace {

constexpr const char* kResultsInitials = "A";
constexpr const char* kResultsName = "FinalResults";
constexpr const char* kNoResultsCaption = "INVALID REQUEST TO LOAD FILE";
constexpr const char* kNoResultsText = "The file TALLYHOOP.THS is not present in the application directory!";

} // namespace

void BoardScreen::EnterGameResults()
{
    leaveScoreDisplay();
    dropHandOver();
    const std::filesystem::path file = m_folder.pathTo(file_name::kResults);
    m_known.note(file);
    if (resultsExist()) {
        ReadSelections(file, m_platform.dialogs, m_state.selectionLines);
        showBoard(m_state.selectionLines);
        completeResults();
    } else {
        loadBoard();
        clearBoard();
        txtPlayerInitials.text = kResultsInitials;
        txtPlayerName.text = kResultsName;
    }
    ClearMarks();
    txtPointScore.text.clear();
    enterResultsMode();
}

/// A damaged results file may lack what saving needs; what is missing comes from the setup and the fixed names.
void BoardScreen::completeResults()
{
    if (isBlankField(txtPlayerInitials.text))
        txtPlayerInitials.text = kResultsInitials;
    if (isBlankField(txtPlayerName.text))
        txtPlayerName.text = kResultsName;
    for (int region = 0; region < kRegions; ++region) {
        for (int row = 0; row < kRowsPerRegion; ++row) {
            std::string& team = lblRegion[static_cast<std::size_t>(index(firstRoundPosition(region, row)))].text;
            if (team.empty())
                team = m_state.setupLines[static_cast<std::size_t>(kRowsPerRegion * region + row)];
        }
    }
    describePositions();
}

void BoardScreen::enterResultsMode()
{
    m_resultsMode = true;
    lockFields(false);
    lockResultsFields();
    mnuGameResults.enabled = false;
    mnuScoreSelections.enabled = true;
    hideDefaultColors();
    mnuSaveSelection.enabled = true;
    unsaved = false;
    m_history.clear();
    offerHistory();
    describeDocument();
    sayWhatToDo();
}

void BoardScreen::lockFields(bool locked)
{
    for (ui::TextBox* box : {&txtPlayerInitials, &txtPlayerName, &txtFinalPoints}) {
        box->locked = locked;
        box->tabStop = !locked;
    }
}

void BoardScreen::lockResultsFields()
{
    for (ui::TextBox* box : {&txtPlayerInitials, &txtPlayerName}) {
        box->locked = true;
        box->tabStop = false;
    }
}

void BoardScreen::ScoreSelections()
{
    if (m_resultsMode) {
        m_screens.load(ScreenKind::ScoreDisplay);
        return;
    }
    mnuScoreSelections.enabled = false;
    if (!resultsExist()) {
        m_platform.dialogs.show({kNoResultsCaption, kNoResultsText, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const FolderFile results{file_name::kResults, *m_folder.pathOf(file_name::kResults)};
    const auto score = ScoreSelection(ScoreCaller::Bracket, results, m_platform.dialogs, *this, m_state);
    if (!score) {
        m_platform.dialogs.show({"", score.failure().message, ui::Buttons::Ok, ui::Icon::Critical});
        mnuScoreSelections.enabled = true;
        return;
    }
    showVerdict("Points: " + std::to_string(score->Points) + " / " + std::to_string(score->MaxPoints));
}

void BoardScreen::showVerdict(const std::string& score)
{
    MarkScores();
    txtPointScore.text = score;
    cmdDefaultColors.visible = true;
    cmdDefaultColors.enabled = true;
    cmdDefaultColors.isDefault = true;
    lockFields(true);
    mnuSaveSelection.enabled = false;
    hint = "Green = right, red X wrong; picks that are still open stay blue.";
}

void BoardScreen::DefaultColors()
{
    ClearMarks();
    hideDefaultColors();
    mnuScoreSelections.enabled = true;
    mnuSaveSelection.enabled = true;
    lockFields(false);
    sayWhatToDo();
}

void BoardScreen::hideDefaultColors()
{
    cmdDefaultColors.visible = false;
    cmdDefaultColors.isDefault = false;
    cmdDefaultColors.enabled = false;
}

void BoardScreen::setScoreDisplayOpen(bool open)
{
    m_scoreDisplayOpen = open;
    m_dragging = false;
    for (ui::Control* control : controls())
        if (dynamic_cast<ui::Label*>(control) != nullptr || dynamic_cast<ui::TextBox*>(control) != nullptr)
            control->enabled = !open;
    if (open)
        explainPositions();
    else
        ClearMarks(); // which describes the places anew
    offerHistory();
}

Result<Payoffs> BoardScreen::payoffs() const
{
    std::array<std::string, 6> texts;
    for (std::size_t round = 0; round < texts.size(); ++round)
        texts[round] = lblInfo[round].text;
    return payoffsOf(texts);
}

ui::Drawing BoardScreen::drawing() const { return drawBoard(*this); }

void BoardScreen::PrintForm()
{
    if (!m_platform.printer.choosePrinter())
        return;
    const ui::DrawingPrintout printout{printoutTitle(), drawing(), ui::Orientation::Landscape};
    if (!m_platform.printer.print(printout))
        showPrintingTrouble(m_platform.dialogs);
}

void BoardScreen::previewForm()
{
    m_platform.printer.preview(ui::DrawingPrintout{printoutTitle(), drawing(), ui::Orientation::Landscape});
}

std::string BoardScreen::printoutTitle() const { return document.empty() ? lblTitle.text : document; }

} // namespace tallyhoop
