// screens/board/board_screen_files.cpp - New, Open, Save, the game results, scoring and printing.
// Texts are kept letter for letter, odd spellings included.
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "pool/entry_check.h"
#include "screens/board/board_drawing.h"
#include "screens/board/board_screen.h"
#include "screens/board/board_words.h"
#include "screens/board/pool_copy.h"
#include "screens/board/selection_saving.h"
#include "screens/entries/selection_export.h"
#include "screens/printouts.h"
#include "screens/saving.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kNoResultsText = "The file TALLYHOOP.THS is not present in the application directory!";

const ui::Message kUnsaved{"UNSAVED CHANGES",
                           "The board holds changes that are not saved.\r\n"
                           "If you continue, they are lost.",
                           ui::Buttons::OkCancel,
                           ui::Icon::Question,
                           {},
                           true};
const ui::Message kResultsUnsaved{"UNSAVED RESULTS",
                                  "The board holds results that are not saved.\r\n"
                                  "If you continue, they are saved first.",
                                  ui::Buttons::OkCancel, ui::Icon::Question};
const ui::Message kNoLongerFinal{"NO FINAL FIELD IN THE FOLDER",
                                 "The field's file, POOLSTART.THS, has been changed or removed, or cannot\r\n"
                                 "be read: the folder holds no field that is finalized.\r\n"
                                 "If you continue, nothing can be saved until a field is finalized again\r\n"
                                 "in the setup, and what is on the board is lost then.",
                                 ui::Buttons::OkCancel,
                                 ui::Icon::Question,
                                 {},
                                 true};

} // namespace

void BoardScreen::newSelection()
{
    if (!fieldIsStillFinal())
        return;
    leaveScoreList();
    showInstead([this] { loadBoard(); });
}

/// What is shown now begins without a past; a person who chose it by mistake wants the board as it was.
void BoardScreen::showInstead(const std::function<void()>& show)
{
    const BoardSnapshot before = snapshot();
    BoardHistory history = m_history;
    show();
    m_history = std::move(history);
    m_history.remember(before);
    ++m_sheet;
}

/// Shows something else without a question: changes that are not saved stay within the reach of Undo.
void BoardScreen::replaceBoard(const std::function<void()>& show)
{
    if (!unsaved) {
        show();
        return;
    }
    showInstead(show);
    say("What was on the board is not saved: Edit, Undo brings it back.");
}

/// On a field that is no longer final, changes can neither be saved nor be of use when they are brought back.
bool BoardScreen::fieldIsStillFinal()
{
    if (!unsaved || !m_shared.field.isFinalized())
        return true;
    const ReadField field = readField(m_folder, m_shared.field);
    return (!field.trouble && field.value.isFinalized()) || m_platform.dialogs.show(kNoLongerFinal) == ui::Answer::Ok;
}

void BoardScreen::openRecent(std::size_t index)
{
    const std::optional<std::filesystem::path> file = m_recent.at(index);
    if (!file || !mayBeReplaced())
        return;
    leaveScoreList();
    showSelection(*file);
}

void BoardScreen::openNeighbour(int step)
{
    const Read<std::vector<FolderFile>> listed = m_folder.list(file_name::kSelectionExtension);
    if (listed.trouble) {
        showListingTrouble(m_platform.dialogs, m_folder, *listed.trouble);
        say("No other selection was opened.");
        return;
    }
    const std::optional<std::filesystem::path> file = neighbouringSelection(listed.value, m_openedFile, step);
    if (!file) {
        say(listed.value.empty() ? "There are no selections in the folder yet."
            : step > 0           ? "This is the last selection of the folder."
                                 : "This is the first selection of the folder.");
        return;
    }
    if (!mayBeReplaced())
        return;
    leaveScoreList();
    showSelection(*file);
}

/// One key is pressed by mistake sooner than a file is chosen in a dialog.
bool BoardScreen::mayBeReplaced() { return !unsaved || m_platform.dialogs.show(kUnsaved) == ui::Answer::Ok; }

void BoardScreen::openFolder() { say(showFolder(m_platform, m_folder)); }

void BoardScreen::backUpPool() { say(tallyhoop::backUpPool(m_folder, m_platform)); }

void BoardScreen::exportSelections()
{
    say(tallyhoop::exportSelections(m_folder, m_platform, m_shared.field));
}

void BoardScreen::openSelection()
{
    const auto file = m_platform.dialogs.openFile(selectionChoice(m_folder, "Open Selection", {}));
    if (!file)
        return;
    leaveScoreList();
    showSelection(*file);
}

/// @returns whether it could be read, and whole
bool BoardScreen::showSelection(const std::filesystem::path& file)
{
    m_shared.savedPlayer.reset();
    Read<Entry> read = m_files.read(file, m_shared.field);
    showEntry(std::move(read.value));
    m_openedFile = file;
    beginUnmarked();
    if (read.trouble)
        m_recent.forget(file);
    else
        m_recent.note(file);
    say(read.trouble ? shown(file.filename()) + " could not be read, or not whole."
                     : "Opened " + shown(file.filename()) + ".");
    return !read.trouble;
}

void BoardScreen::selectionsWereWritten(std::span<const std::filesystem::path> files)
{
    m_selectionsThere = m_files.selectionsExist();
    const std::filesystem::path open = openFile();
    const bool isShown = !open.empty() && std::ranges::any_of(files, [&](const std::filesystem::path& file) {
        return isSameFile(file, open);
    });
    if (isShown && !unsaved)
        showSelection(open);
}

void BoardScreen::filesDropped(const std::vector<std::filesystem::path>& files)
{
    m_shared.droppedFiles = files;
    leaveScoreList();
    m_screens.load(ScreenKind::Import);
}

void BoardScreen::saveSelection()
{
    if (!trySaving())
        say("Not saved.");
}

bool BoardScreen::trySaving()
{
    if (!mayBeSaved())
        return false;
    if (m_resultsMode)
        return saveResults();
    const bool isNew = m_openedFile.empty();
    const std::optional<SaveTarget> target = askWhereToSave(m_platform.dialogs, m_folder, typed(), m_openedFile);
    if (!target || !saveSelectionIn(target->file, target->kind))
        return false;
    if (isNew)
        m_screens.load(ScreenKind::Players);
    return true;
}

bool BoardScreen::mayBeSaved()
{
    if (!m_shared.field.isFinalized()) {
        refuseUntilFinalized(m_platform.dialogs);
        return false;
    }
    const auto fault = entryFault(typed(), m_resultsMode ? EntryKind::Results : EntryKind::Player);
    if (!fault)
        return true;
    if (ui::TextBox& box = boxOf(*fault); !box.locked)
        focused = &box;
    refuseToSave(m_platform.dialogs, *fault);
    return false;
}

bool BoardScreen::saveResults()
{
    if (!save(m_files.results()))
        return false;
    m_history.boardWasSaved(m_sheet, m_openedFile);
    say("The results are saved.");
    return true;
}

bool BoardScreen::saveSelectionIn(const std::filesystem::path& file, SaveKind kind)
{
    if (!save(file))
        return false;
    m_openedFile = file;
    m_history.boardWasSaved(m_sheet, m_openedFile);
    m_selectionsThere = m_files.selectionsExist();
    m_shared.savedPlayer = SavedPlayer{txtPlayerName.text + "," + txtPlayerInitials.text, file, kind};
    m_recent.note(file);
    say("Saved " + shown(file.filename()) + "." + withoutPick(m_bracket) +
        (m_files.isScored(file) ? "" : " Only files in the program's folder are scored; this one is elsewhere."));
    return true;
}

bool BoardScreen::save(const std::filesystem::path& file)
{
    const bool isSaved = m_files.write(file, typed(), m_shared.field);
    unsaved = unsaved && !isSaved;
    return isSaved;
}

bool BoardScreen::keepResults()
{
    if (m_platform.dialogs.show(kResultsUnsaved) != ui::Answer::Ok)
        return false;
    saveSelection();
    return !unsaved;
}

bool BoardScreen::mayBeLeft() { return !holdsUnsavedResults() || keepResults(); }

/// Without a results file the field is loaded again, as it is for a new selection.
bool BoardScreen::mayShowGameResults() { return mayBeLeft() && (m_files.resultsExist() || fieldIsStillFinal()); }

void BoardScreen::enterGameResults()
{
    if (mayShowGameResults())
        showGameResults();
}

void BoardScreen::showGameResults()
{
    leaveScoreList();
    m_shared.savedPlayer.reset();
    replaceBoard([this] {
        if (!m_files.resultsExist())
            loadBoard();
        showEntry(m_files.readResults(m_shared.field));
        beginUnmarked();
        setResultsMode(true);
    });
}

void BoardScreen::scoreSelections()
{
    m_drag.reset(); // neither the marks nor the list of scores let it end
    if (m_resultsMode) {
        m_screens.load(ScreenKind::Scores);
        return;
    }
    m_resultsThere = m_files.resultsExist();
    if (m_resultsThere)
        markPicks();
    else
        m_platform.dialogs.show(
            {"INVALID REQUEST TO LOAD FILE", kNoResultsText, ui::Buttons::Ok, ui::Icon::Exclamation});
}

void BoardScreen::markPicks()
{
    const Result<Payoffs>& payoffs = m_shared.field.payoffs.points();
    if (!payoffs) {
        showTrouble(m_platform.dialogs, payoffs.failure());
        return;
    }
    const std::filesystem::path file = m_files.results();
    const Read<Entry> results = readSelectionFile(file, m_bracket);
    if (results.trouble)
        showReadingTrouble(m_platform.dialogs, file);
    Entry entry = typed();
    entry.fileName = thisSelection();
    const Result<PlayerScore> score = scoreEntry(entry, results.value.picks, *payoffs);
    if (!score) {
        showTrouble(m_platform.dialogs, score.failure());
        return;
    }
    m_verdicts = score->verdicts;
    m_results = results.value.picks;
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
    const bool wasUnsaved = unsaved;
    bool isWhole = true;
    replaceBoard([&] { isWhole = showSelection(file); });
    const std::string warning = wasUnsaved || !isWhole ? news().text : std::string{};
    scoreSelections();
    if (!warning.empty())
        say(warning); // which matters more than what the marks mean
}

ui::DrawingPrintout BoardScreen::printout() const
{
    const std::string printed = documentName();
    return {printed.empty() ? m_shared.field.title : printed,
            {drawBoard(picture(), typed(), m_score)},
            ui::Orientation::Landscape};
}

void BoardScreen::printForm()
{
    say({});
    if (m_platform.printer.choosePrinter())
        say(printOut(m_platform, printout()).sentence);
}

void BoardScreen::previewForm() { say(showPreview(m_platform, m_folder.folder(), {printout()})); }

} // namespace tallyhoop
