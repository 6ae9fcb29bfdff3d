// screens/board/board_screen_files.cpp - New, Open, Save, the game results, scoring and printing.
// Texts are kept letter for letter, odd spellings included.
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "pool/entry_check.h"
#include "pool/results.h"
#include "screens/board/board_drawing.h"
#include "screens/board/board_screen.h"
#include "screens/board/selection_saving.h"
#include "screens/printing_trouble.h"
#include "screens/saving.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kNotFinalizedText =
    "The SETUP OPTION must be completed and FINALIZED before a Pool Selection can be saved!";
constexpr const char* kInitialsBlank = "Player Initails field is BLANK, this MUST be corrected!";
constexpr const char* kNameBlank = "Player Name field is BLANK, this MUST be corrected!";
constexpr const char* kPointsInvalid =
    "Final Game - you must enter a valid prediction (between 50 & 250) for the total score of this game";
constexpr const char* kNoResultsText = "The file TALLYHOOP.THS is not present in the application directory!";

void showRefusal(ui::Dialogs& dialogs, const char* caption, const char* text)
{
    dialogs.show({caption, text, ui::Buttons::Ok, ui::Icon::Exclamation});
}

} // namespace

bool BoardScreen::resultsExist() const { return m_folder.exists(file_name::kResults); }

void BoardScreen::newSelection()
{
    leaveScoreList();
    const BoardSnapshot before = snapshot();
    BoardHistory history = m_history;
    loadBoard();
    // The load forgets the past; a person who chose New by mistake wants it back.
    m_history = std::move(history);
    m_history.remember(before);
    ++m_sheet;
}

void BoardScreen::openSelection()
{
    const auto file = m_platform.dialogs.openFile(selectionChoice(m_folder, "Open Selection", {}));
    if (!file)
        return;
    leaveScoreList();
    showSelection(*file);
}

void BoardScreen::showSelection(const std::filesystem::path& file)
{
    m_shared.savedPlayer.reset();
    showEntry(readEntry(file));
    m_openedFile = file;
    beginUnmarked();
    say("Opened " + shown(file.filename()) + ".");
}

/// Reads a selection or the results to be shown: from now on nobody else's change of the file is overwritten unasked.
Entry BoardScreen::readEntry(const std::filesystem::path& file)
{
    m_known.note(file);
    Read<Entry> read = readSelectionFile(file, startingBracket(m_shared.field));
    if (read.trouble)
        showReadingTrouble(m_platform.dialogs, file);
    return std::move(read.value);
}

void BoardScreen::saveSelection()
{
    if (!mayBeSaved())
        return;
    if (m_resultsMode) {
        saveResults();
        return;
    }
    const bool isNew = m_openedFile.empty();
    const std::optional<SaveTarget> target = askWhereToSave(m_platform.dialogs, m_folder, typed(), m_openedFile);
    if (target && writeSelection(target->file, target->kind) && isNew)
        m_screens.load(ScreenKind::Players);
}

bool BoardScreen::mayBeSaved()
{
    if (!m_shared.field.isFinalized()) {
        showRefusal(m_platform.dialogs, "INVALID REQUEST TO SAVE FILE", kNotFinalizedText);
        return false;
    }
    const auto fault = entryFault(typed(), m_resultsMode ? EntryKind::Results : EntryKind::Player);
    if (fault == EntryFault::Initials)
        refuse(txtPlayerInitials, kInitialsBlank);
    else if (fault == EntryFault::Name)
        refuse(txtPlayerName, kNameBlank);
    else if (fault == EntryFault::FinalPoints)
        refuse(txtFinalPoints, kPointsInvalid);
    return !fault;
}

void BoardScreen::refuse(ui::TextBox& box, const char* text)
{
    if (!box.locked)
        focused = &box;
    showRefusal(m_platform.dialogs, "Required fields are BLANK or invalid", text);
}

void BoardScreen::saveResults()
{
    if (!writeEntry(m_folder.pathTo(file_name::kResults)))
        return;
    m_history.boardWasSaved(m_sheet, m_openedFile);
    say("The results are saved.");
}

bool BoardScreen::writeSelection(const std::filesystem::path& file, SaveKind kind)
{
    if (!writeEntry(file))
        return false;
    m_openedFile = file;
    m_history.boardWasSaved(m_sheet, m_openedFile);
    m_shared.savedPlayer = SavedPlayer{txtPlayerName.text + "," + txtPlayerInitials.text, file, kind};
    const bool scored = isSameFile(file, m_folder.folder() / file.filename());
    say("Saved " + shown(file.filename()) +
        (scored ? "." : ". Only files in the program's folder are scored; this one is elsewhere."));
    return true;
}

bool BoardScreen::writeEntry(const std::filesystem::path& file)
{
    Entry entry = typed();
    entry.initials = upperCase(entry.initials);
    if (!saveFile(m_platform.dialogs, m_known, file, selectionFile(entry), shown(file),
                  " Check your selection and retry."))
        return false;
    unsaved = false;
    return true;
}

void BoardScreen::enterGameResults()
{
    leaveScoreList();
    m_shared.savedPlayer.reset();
    const std::filesystem::path file = m_folder.pathTo(file_name::kResults);
    if (resultsExist()) {
        showEntry(completedResults(readEntry(file), m_shared.field));
    } else {
        m_known.note(file);
        loadBoard();
        showEntry(newResults(m_shared.field));
    }
    beginUnmarked();
    m_resultsMode = true;
}

void BoardScreen::scoreSelections()
{
    m_drag.reset(); // neither the marks nor the list of scores let it end
    if (m_resultsMode) {
        m_screens.load(ScreenKind::Scores);
        return;
    }
    m_resultsThere = resultsExist();
    if (m_resultsThere)
        markPicks();
    else
        showRefusal(m_platform.dialogs, "INVALID REQUEST TO LOAD FILE", kNoResultsText);
}

void BoardScreen::markPicks()
{
    const Result<Payoffs>& payoffs = m_shared.field.payoffs.points();
    if (!payoffs) {
        showTrouble(m_platform.dialogs, payoffs.failure());
        return;
    }
    const std::filesystem::path file = m_folder.pathTo(file_name::kResults);
    const Read<Entry> results = readSelectionFile(file, m_bracket);
    if (results.trouble)
        showReadingTrouble(m_platform.dialogs, file);
    Entry entry = typed();
    entry.fileName = file_name::kResults;
    const Result<PlayerScore> score = scoreEntry(entry, results.value.picks, *payoffs);
    if (!score) {
        showTrouble(m_platform.dialogs, score.failure());
        return;
    }
    m_verdicts = score->verdicts;
    m_score = ShownScore{score->points, score->maxPoints};
    say("Green = right, red X wrong; picks that are still open stay blue.");
}

void BoardScreen::unmarkPicks()
{
    m_verdicts.reset();
    say({});
}

void BoardScreen::showScored(const std::filesystem::path& file)
{
    showSelection(file);
    scoreSelections();
}

ui::Drawing BoardScreen::drawing() const { return drawBoard(picture(), typed(), m_score); }

ui::DrawingPrintout BoardScreen::printout() const
{
    const std::string printed = documentName();
    return {printed.empty() ? m_shared.field.title : printed, drawing(), ui::Orientation::Landscape};
}

void BoardScreen::printForm()
{
    if (m_platform.printer.choosePrinter() && !m_platform.printer.print(printout()))
        showPrintingTrouble(m_platform.dialogs);
}

void BoardScreen::previewForm() { m_platform.printer.preview(printout()); }

} // namespace tallyhoop
