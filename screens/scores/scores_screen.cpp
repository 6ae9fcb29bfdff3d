// screens/scores/scores_screen.cpp - reads and scores all selections, and marks the picks of the one that is pressed.
#include "screens/scores/scores_screen.h"

#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/pool_files.h"
#include "screens/hand_overs.h"
#include "screens/help_topics.h"
#include "screens/printer_setup.h"
#include "screens/printouts.h"
#include "screens/saving.h"
#include "screens/scores/score_printout.h"
#include "ui/work.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tallyhoop {

namespace {

const ui::Message kCancelled{"", "The scores were not calculated.", ui::Buttons::Ok, ui::Icon::Information};

constexpr const char* kNotYet = "No scores yet: press the long button below. Each saved selection gets a row.";
constexpr const char* kNoSelections = "No selections are saved in the program's folder, so there are no scores.";
constexpr const char* kNoneReadable = "None of the saved selections could be scored.";

std::string scoredSentence(std::size_t selections)
{
    return std::to_string(selections) + (selections == 1 ? " selection is scored." : " selections are scored.");
}

} // namespace

ScoresScreen::ScoresScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Field& field,
                           const Bracket& results, std::optional<PlayerScore>& marked)
    : ui::Screen{"frmPoolMisc", "Display Scores (Total, Possible)"},
      m_folder{folder},
      m_platform{platform},
      m_screens{screens},
      m_field{field},
      m_results{results},
      m_marked{marked}
{
    cmdOk.isDefault = true;
    filList.visible = false;
    msgScoreDisplay.spokenName = "Scores";
    msgScoreDisplay.emptyNote = kNotYet;
    msgScoreDisplay.explanation = "Drag a heading to sort by it; click a file name to mark those picks on the board.";
    cmdOk.explanation = "Scores every selection in the program's folder against the results on the board.";
    cmdBestFirst.explanation = "Moves Score to the front and sorts by it, the highest first.";
    cmdPrint.explanation = "Prints the list in its present order.";
    cmdPreview.explanation = "Shows the list as it will be printed.";
    cmdSavePdf.explanation = "Saves the list as a PDF file.";
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
}

void ScoresScreen::showState()
{
    m_table.show(msgScoreDisplay);
    cmdBestFirst.enabled = cmdPreview.enabled = cmdSavePdf.enabled = cmdCopy.enabled = !msgScoreDisplay.rows.empty();
    status = m_marked ? markedPlayer(*m_marked) : std::string{};
}

void ScoresScreen::closeRequested() { exit(); }

/// Marks would leave the board read-only without the screen that explains them.
void ScoresScreen::unloading() { m_marked.reset(); }

void ScoresScreen::exit() { m_screens.unload(ScreenKind::Scores); }

void ScoresScreen::listFiles()
{
    m_files = listSelections(m_platform.dialogs, m_folder);
    filList.rows.clear();
    for (const FolderFile& file : m_files)
        filList.rows.push_back(file.name);
}

void ScoresScreen::showTable(std::vector<ListedScore> rows)
{
    m_table.begin(std::move(rows));
    msgScoreDisplay.headingPressed.reset();
}

void ScoresScreen::calculate()
{
    say({}); // what was copied or printed was another table
    m_marked.reset();
    listFiles();
    const Result<Payoffs>& payoffs = m_field.payoffs.points();
    if (!payoffs) {
        showTrouble(m_platform.dialogs, payoffs.failure());
        return;
    }
    if (std::optional<std::vector<ListedScore>> rows = scoreEverybody(*payoffs)) {
        msgScoreDisplay.emptyNote = m_files.empty() ? kNoSelections : kNoneReadable;
        say(scoredSentence(rows->size()));
        showTable(std::move(*rows));
    } else {
        m_platform.dialogs.show(kCancelled);
    }
}

std::optional<std::vector<ListedScore>> ScoresScreen::scoreEverybody(const Payoffs& payoffs)
{
    Work work{m_platform.progress, "Calculating the scores", m_files.size()};
    std::vector<ListedScore> rows;
    rows.reserve(m_files.size());
    readSelections(m_files, m_results, [&](const FolderFile& file, const Read<Entry>& selection) {
        if (std::optional<PlayerScore> score = scoreSelection(file, selection, payoffs))
            rows.push_back({std::move(*score), file});
        return work.step();
    });
    if (work.cancelled())
        return std::nullopt;
    return rows;
}

std::optional<PlayerScore> ScoresScreen::scoreSelection(const FolderFile& file, const Read<Entry>& selection,
                                                        const Payoffs& payoffs)
{
    if (selection.trouble)
        showReadingTrouble(m_platform.dialogs, file.path);
    const Result<PlayerScore> score = scoreEntry(selection.value, m_results, payoffs);
    if (score)
        return *score;
    showTrouble(m_platform.dialogs, score.failure());
    return std::nullopt;
}

void ScoresScreen::cellClicked(std::size_t row, std::size_t column)
{
    const std::string text = msgScoreDisplay.rows.at(row).at(column);
    if (!endsWithFolded(text, file_name::kSelectionExtension))
        return;
    m_marked.reset();
    if (const FolderFile* file = fileMeantBy(row, column))
        markPicksOf(*file);
    else
        showReadingTrouble(m_platform.dialogs, text); // a cell that only ends like a file name
}

/// @returns the file whose name a cell shows, wherever its column is; nullptr when there is none
const FolderFile* ScoresScreen::fileMeantBy(std::size_t row, std::size_t column) const
{
    // By its path where there is one: two names may look alike as they are shown.
    const bool isFileName = m_table.columns().at(column) == ScoreColumn::FileName;
    const auto file = isFileName
                          ? std::ranges::find(m_files, m_table.rows().at(row).file.path, &FolderFile::path)
                          : std::ranges::find(m_files, msgScoreDisplay.rows.at(row).at(column), &FolderFile::name);
    return file == m_files.end() ? nullptr : &*file;
}

void ScoresScreen::markPicksOf(const FolderFile& file)
{
    const Result<Payoffs>& payoffs = m_field.payoffs.points();
    if (!payoffs) {
        showTrouble(m_platform.dialogs, payoffs.failure());
        return;
    }
    readSelections(std::span{&file, 1}, m_results, [&](const FolderFile&, const Read<Entry>& selection) {
        m_marked = scoreSelection(file, selection, *payoffs);
        return true;
    });
}

void ScoresScreen::headingDropped(std::optional<std::size_t> target)
{
    const std::optional<std::size_t> dragged = std::exchange(msgScoreDisplay.headingPressed, std::nullopt);
    if (!dragged || !target)
        return;
    say({});
    m_table.moveColumn(*dragged, *target);
}

void ScoresScreen::bestFirst()
{
    say({});
    msgScoreDisplay.headingPressed.reset();
    m_table.bestFirst();
}

std::optional<ui::TextPrintout> ScoresScreen::printout() const
{
    const std::optional<PrinterSetup> setup = setUpPrinter(m_platform, false, ui::Orientation::Portrait);
    if (!setup)
        return std::nullopt;
    ui::TextPrintout printout;
    printout.title = "Tallyhoop Point Summary";
    printout.lines = scorePrintout(msgScoreDisplay, m_platform.clock.today());
    printout.font = setup->font;
    printout.orientation = setup->orientation;
    return printout;
}

void ScoresScreen::print()
{
    say({});
    if (const auto pages = printout())
        say(printOut(m_platform, *pages).sentence);
}

void ScoresScreen::preview()
{
    say({});
    if (auto pages = printout())
        say(showPreview(m_platform, m_folder.folder(), {std::move(*pages)}));
}

void ScoresScreen::savePdf()
{
    say({});
    if (auto pages = printout())
        say(saveAsPdf(m_platform, m_folder.folder(), {std::move(*pages)}));
}

void ScoresScreen::copy()
{
    m_platform.clipboard.put(tabSeparated(msgScoreDisplay));
    const std::size_t rows = msgScoreDisplay.rows.size();
    say("Copied " + std::to_string(rows) + (rows == 1 ? " row" : " rows") + ", to be pasted into a spreadsheet.");
}

} // namespace tallyhoop
