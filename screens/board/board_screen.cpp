// screens/board/board_screen.cpp - loading, showing, moving teams, undo.
#include "screens/board/board_screen.h"

#include "base/windows1252.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "pool/moves.h"
#include "screens/board/board_words.h"
#include "screens/help_topics.h"
#include "screens/saving.h"

#include <utility>

namespace tallyhoop {

BoardScreen::BoardScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Shared& shared)
    : Screen{"frmPoolMain", "Tallyhoop"},
      BracketPanel{this},
      PlayerStrip{this, [this] { wasChanged(); }, [this] { unmarkPicks(); }},
      BoardMenus{this, *this, {folder, platform, screens}},
      m_folder{folder},
      m_platform{platform},
      m_screens{screens},
      m_shared{shared}
{
    focused = &txtPlayerInitials;
}

void BoardScreen::load()
{
    m_recent.begin(m_folder);
    loadBoard();
}

void BoardScreen::unloading() { m_shared.savedPlayer.reset(); }

/// Begins a selection on the field that the folder holds now.
void BoardScreen::loadBoard()
{
    m_shared.savedPlayer.reset();
    ReadField field = readField(m_folder, m_shared.field);
    if (field.trouble)
        showTrouble(m_platform.dialogs, *field.trouble);
    m_shared.field = std::move(field.value);
    m_demo = demoModeIsOn(m_folder);
    showEntry({startingBracket(m_shared.field), {}, {}, {}, {}});
    m_openedFile.clear();
    beginUnmarked();
    m_files.checkPlayers(m_shared.folderTroubleSaid);
}

void BoardScreen::showEntry(Entry entry)
{
    showPlayer(entry);
    m_bracket = std::move(entry.picks);
}

/// What is on the board now is new to it: no marks, no past.
void BoardScreen::beginUnmarked()
{
    m_drag.reset();
    m_verdicts.reset();
    m_score.reset();
    m_pickedByKey.reset();
    m_resultsMode = false;
    m_resultsThere = m_files.resultsExist();
    m_selectionsThere = m_files.selectionsExist();
    unsaved = false;
    m_history.clear();
    say({});
}

void BoardScreen::setResultsMode(bool on)
{
    m_resultsMode = on;
    if (on && (focused == &txtPlayerName || focused == &txtPlayerInitials)) // which are locked then
        focused = &lblRegion[Position{0}];
}

const Verdicts* BoardScreen::shownVerdicts() const
{
    if (m_verdicts)
        return &*m_verdicts;
    return m_shared.listedPlayer ? &m_shared.listedPlayer->verdicts : nullptr;
}

BoardPicture BoardScreen::picture() const
{
    return {m_shared.field,
            m_bracket,
            shownVerdicts(),
            m_demo,
            m_verdicts ? MarkedNames::Picks : MarkedNames::Results,
            m_verdicts ? &m_results : nullptr,
            !m_verdicts && m_shared.listedPlayer ? markedPlayer(*m_shared.listedPlayer) : std::string{}};
}

BoardState BoardScreen::state() const
{
    return {.finalized = m_shared.field.isFinalized(),
            .demo = m_demo,
            .mayStartDemo = m_shared.field.mayBeReplaced(),
            .resultsMode = m_resultsMode,
            .selectionsThere = m_selectionsThere,
            .resultsThere = m_resultsThere,
            .scored = m_verdicts.has_value(),
            .marked = shownVerdicts() != nullptr,
            .scoreListOpen = m_screens.isLoaded(ScreenKind::Scores),
            .reportsOpen = m_screens.isLoaded(ScreenKind::Reports),
            .recent = m_recent.names(),
            .canUndo = m_history.canUndo(),
            .canRedo = m_history.canRedo()};
}

FieldLock BoardScreen::fieldLock() const
{
    if (m_verdicts)
        return FieldLock::All;
    return m_resultsMode ? FieldLock::Player : FieldLock::None;
}

void BoardScreen::showState()
{
    const BoardState now = state();
    showBracket(picture(), now.scoreListOpen);
    showStrip(m_shared.field, fieldLock(), now.scored, now.scoreListOpen);
    txtPointScore.text = scoreText(m_score);
    enableMenus(now);
    document = documentName();
    explanation = whatToDo();
    status = now.finalized ? progressOf(m_bracket, m_resultsMode) : std::string{};
    if (m_shared.listedPlayer)
        status = markedPlayer(*m_shared.listedPlayer);
}

std::string BoardScreen::documentName() const
{
    return m_resultsMode ? "Game results" : shown(m_openedFile.filename());
}

std::string BoardScreen::whatToDo() const
{
    if (!m_shared.field.isFinalized())
        return "The field is not finalized yet: see Setup, Setup Pool Options.";
    if (m_demo && m_openedFile.empty() && !m_resultsMode && !unsaved)
        return "This is the sample pool: choose File, Open Selection to look at one of its players.";
    if (m_screens.isLoaded(ScreenKind::Scores))
        return "The list of scores is open; close it to change the bracket.";
    if (m_resultsMode)
        return "Game results: click the real winners forward and save.";
    return "Click the winners forward, then enter initials, name and the final's total points.";
}

std::string BoardScreen::thisSelection() const
{
    return m_openedFile.empty() ? "this selection" : shown(m_openedFile.filename());
}

/// The board as an entry, its texts as they are typed.
Entry BoardScreen::typed() const
{
    return {m_bracket, txtPlayerInitials.text, txtPlayerName.text, txtFinalPoints.text, {}};
}

void BoardScreen::pressPosition(Position position, MouseButton button)
{
    m_drag.reset();
    if (m_screens.isLoaded(ScreenKind::Scores))
        m_screens.bringToFront(ScreenKind::Scores);
    else if (shownVerdicts() != nullptr)
        return; // nothing can be changed while the picks are marked
    else if (button == MouseButton::Left)
        m_drag = Drag{position, m_bracket.at(position)};
    else
        change(cleared(m_bracket, position));
}

void BoardScreen::dropOnPosition(Position position)
{
    if (const std::optional<Drag> drag = std::exchange(m_drag, std::nullopt))
        change(dropped(m_bracket, drag->source, position, drag->team));
}

bool BoardScreen::mayDropOn(Position position) const { return m_drag && isOnPath(m_drag->source, position); }

void BoardScreen::pressBackground()
{
    if (m_screens.isLoaded(ScreenKind::Scores))
        m_screens.bringToFront(ScreenKind::Scores);
}

/// Every change of the bracket by the person comes here.
void BoardScreen::change(const Bracket& after)
{
    if (after == m_bracket)
        return;
    m_history.remember(snapshot());
    m_bracket = after;
    m_pickedByKey.reset();
    wasChanged();
}

/// What was said of the board before is no longer true of it.
void BoardScreen::wasChanged()
{
    unsaved = true;
    say({});
}

void BoardScreen::selectHighSeeds() { change(withHighSeeds(m_bracket, seedNumbers(m_shared.field))); }

BoardSnapshot BoardScreen::snapshot() const
{
    return {typed(), m_score, m_openedFile, m_resultsMode, unsaved, m_sheet, m_pickedByKey};
}

void BoardScreen::undo()
{
    const std::optional<Position> taken = m_pickedByKey;
    const auto board = m_history.undo(snapshot());
    if (!board)
        return;
    restore(*board);
    if (taken)
        moveOnTo(*taken);
}

void BoardScreen::redo()
{
    const auto board = m_history.redo(snapshot());
    if (!board)
        return;
    restore(*board);
    if (m_pickedByKey)
        moveOnTo(openGameAfter(m_bracket, *m_pickedByKey).value_or(*m_pickedByKey));
}

/// What is typed belongs to the sheet: it comes back with another sheet only, and stays on the same one.
void BoardScreen::restore(const BoardSnapshot& board)
{
    const bool typedSince = board.sheet == m_sheet && !holdsPlayer(board.entry);
    if (board.sheet != m_sheet) {
        m_sheet = board.sheet;
        showPlayer(board.entry);
        m_score = board.score;
    }
    m_bracket = board.entry.picks;
    m_pickedByKey = board.pickedByKey;
    m_openedFile = board.openedFile;
    unsaved = board.unsaved || typedSince;
    say({});
    if (board.resultsMode == m_resultsMode)
        return;
    setResultsMode(board.resultsMode);
    m_resultsThere = m_files.resultsExist();
}

std::string BoardScreen::helpTopic() const
{
    if (m_screens.isLoaded(ScreenKind::Scores))
        return help_topic::kScoreList;
    if (m_verdicts)
        return help_topic::kScores;
    if (m_resultsMode)
        return help_topic::kResults;
    if (m_files.playersAreFaulty())
        return help_topic::kRepair;
    if (m_demo && m_openedFile.empty() && !unsaved)
        return help_topic::kDemo;
    return m_shared.field.isFinalized() ? help_topic::kSelections : help_topic::kStart;
}

} // namespace tallyhoop
