// screens/scores/scores_screen.cpp - what the score display does.
#include "screens/scores/scores_screen.h"

#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "screens/help_topics.h"
#include "screens/printer_setup.h"
#include "screens/printing_trouble.h"
#include "screens/scores/score_grid.h"
#include "screens/scores/score_printout.h"
#include "screens/scores/score_selection.h"
#include "ui/work.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

const ui::Message kCancelled{"", "The scores were not calculated.", ui::Buttons::Ok, ui::Icon::Information};

constexpr const char* kNotYet = "No scores yet: press the long button below. Each saved selection gets a row.";
constexpr const char* kNoSelections = "No selections are saved in the program's folder, so there are no scores.";
constexpr const char* kNoneReadable = "None of the saved selections could be scored.";

} // namespace

ScoresScreen::ScoresScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state,
                           Screens& screens, BracketBoard& board)
    : ui::Screen{"frmPoolMisc", "Display Scores (Total, Possible)"},
      m_folder{folder},
      m_platform{platform},
      m_state{state},
      m_screens{screens},
      m_board{board}
{
    cmdOk.isDefault = true;
    filList.visible = false;
    msgScoreDisplay.spokenName = "Scores";
    msgScoreDisplay.emptyNote = kNotYet;
    msgScoreDisplay.explanation =
        "Drag a heading to another place to sort by it; click a file name to mark those picks on the board.";
    cmdOk.explanation = "Scores every selection in the program's folder against the results on the board.";
    cmdPrint.explanation = "Prints the list in its present order.";
    cmdCopy.explanation = "Puts the list on the clipboard, ready for a spreadsheet.";
    cmdExit.explanation = "Back to the board.";
    msgScoreDisplay.cellPressed = [this](std::size_t row, std::size_t column) { cellClicked(row, column); };
    msgScoreDisplay.columnPressed = [this](std::size_t column) { msgScoreDisplay.headingPressed = column; };
    msgScoreDisplay.columnReleased = [this](std::optional<std::size_t> column) { headingDropped(column); };
}

std::string ScoresScreen::helpTopic() const { return help_topic::kScoreList; }

void ScoresScreen::load()
{
    listFiles();
    showTable({});
    m_board.setScoreDisplayOpen(true);
}

void ScoresScreen::closeRequested() { exit(); }

void ScoresScreen::unloading()
{
    // Marks would leave the board read-only without the screen that explains them.
    m_board.ClearMarks();
    m_board.setScoreDisplayOpen(false);
}

void ScoresScreen::exit() { m_screens.unload(ScreenKind::ScoreDisplay); }

void ScoresScreen::listFiles()
{
    m_files = m_folder.files(file_name::kSelectionEnding);
    filList.rows.clear();
    for (const FolderFile& file : m_files)
        filList.rows.push_back(file.name);
}

void ScoresScreen::showTable(Rows rows)
{
    msgScoreDisplay.columns = columnsOf(kScoreColumns);
    msgScoreDisplay.rows = std::move(rows);
    msgScoreDisplay.headingPressed.reset();
    ++msgScoreDisplay.revision;
}

void ScoresScreen::calculate()
{
    m_board.ClearMarks();
    listFiles();
    m_board.captureBoard(); // the results on the board count, saved or not
    const Result<Payoffs> payoffs = m_board.payoffs();
    if (!payoffs) {
        showFailure(payoffs.failure());
        return;
    }
    if (std::optional<Rows> rows = scoreEverybody(m_files, *payoffs)) {
        msgScoreDisplay.emptyNote = m_files.empty() ? kNoSelections : kNoneReadable;
        showTable(std::move(*rows));
    } else {
        m_platform.dialogs.show(kCancelled);
    }
}

std::optional<ScoresScreen::Rows> ScoresScreen::scoreEverybody(const std::vector<FolderFile>& files,
                                                               const Payoffs& payoffs)
{
    Work work{m_platform.progress, "Calculating the scores", files.size()};
    const Scoring scoring{m_state.selectionLines, payoffs};
    Rows rows;
    rows.reserve(files.size());
    for (const FolderFile& file : files) {
        const Result<ScoreLine> score = scoreFile(file, scoring, m_platform.dialogs, m_state.verdict);
        if (score)
            rows.push_back(cellsOf(*score));
        else
            showFailure(score.failure());
        if (!work.step())
            return std::nullopt;
    }
    return rows;
}

void ScoresScreen::cellClicked(std::size_t row, std::size_t column)
{
    const std::string& text = msgScoreDisplay.rows.at(row).at(column);
    if (endsWithFolded(text, file_name::kSelectionEnding)) // a file name, wherever its column stands
        markSelection(text);
}

void ScoresScreen::markSelection(const std::string& fileName)
{
    m_board.ClearMarks();
    // The path is the listed one: a name as it is shown may not lead back to its file.
    const auto file = std::ranges::find(m_files, fileName, &FolderFile::name);
    if (file == m_files.end()) // a cell that only ends like a file name
        return showReadingTrouble(fileName, m_platform.dialogs);
    const Result<ScoreLine> score =
        ScoreSelection(ScoreCaller::ScoreDisplay, *file, m_platform.dialogs, m_board, m_state);
    if (score)
        m_board.MarkScores();
    else
        showFailure(score.failure());
}

void ScoresScreen::headingDropped(std::optional<std::size_t> target)
{
    const std::optional<std::size_t> dragged = std::exchange(msgScoreDisplay.headingPressed, std::nullopt);
    if (!dragged || !target)
        return;
    moveColumn(msgScoreDisplay, *dragged, *target);
    SortGrid(msgScoreDisplay);
}

void ScoresScreen::print()
{
    const std::optional<PrinterSetup> setup = setUpPrinter(m_platform, false, "Portrait");
    if (!setup)
        return;
    ui::TextPrintout printout;
    printout.title = "Tallyhoop Point Summary";
    printout.lines = scorePrintout(msgScoreDisplay, m_platform.clock.today());
    printout.font = setup->font;
    printout.orientation = setup->orientation;
    if (!m_platform.printer.print(printout))
        showPrintingTrouble(m_platform.dialogs);
}

void ScoresScreen::copy() { m_platform.clipboard.put(tabSeparated(msgScoreDisplay)); }

void ScoresScreen::showFailure(const Failure& failure)
{
    m_platform.dialogs.show({"", failure.message, ui::Buttons::Ok, ui::Icon::Critical});
}

} // namespace tallyhoop
