#include "screens/board/board_screen.h"

#include "base/numbers.h"

#include <utility>

namespace tallyhoop {

BoardSnapshot BoardScreen::snapshot() const
{
    return {teams(),
            txtPlayerInitials.text,
            txtPlayerName.text,
            txtFinalPoints.text,
            txtPointScore.text,
            m_state.selectionFile.OpenedFile,
            m_resultsMode,
            unsaved,
            m_sheet};
}

void BoardScreen::remember()
{
    m_history.remember(snapshot());
    offerHistory();
}

void BoardScreen::offerHistory()
{
    const bool editable = !m_marksShown && !m_scoreDisplayOpen;
    mnuUndo.enabled = editable && m_history.canUndo();
    mnuRedo.enabled = editable && m_history.canRedo();
}

void BoardScreen::undo()
{
    if (const auto board = m_history.undo(snapshot()))
        restore(*board);
}

void BoardScreen::redo()
{
    if (const auto board = m_history.redo(snapshot()))
        restore(*board);
}

void BoardScreen::restore(const BoardSnapshot& board)
{
    const bool otherSheet = board.sheet != m_sheet;
    const bool typedSince =
        !otherSheet && (txtPlayerInitials.text != board.initials || txtPlayerName.text != board.name ||
                        txtFinalPoints.text != board.finalPoints);
    if (otherSheet) {
        m_sheet = board.sheet;
        txtPlayerInitials.text = board.initials;
        txtPlayerName.text = board.name;
        txtFinalPoints.text = board.finalPoints;
        txtPointScore.text = board.pointScore;
    }
    m_state.selectionFile.OpenedFile = board.openedFile;
    if (board.resultsMode != m_resultsMode) {
        m_resultsMode = board.resultsMode;
        lockFields(false);
        mnuGameResults.enabled = !m_resultsMode;
        mnuScoreSelections.enabled = m_resultsMode || resultsExist();
        if (m_resultsMode)
            lockResultsFields();
        sayWhatToDo();
    }
    setTeams(board.teams);
    unsaved = board.unsaved || typedSince;
    offerHistory();
    describeDocument();
}

void BoardScreen::SelectHighSeeds()
{
    std::array<std::int16_t, kTeams> seeds{};
    for (std::size_t i = 0; i < seeds.size(); ++i) {
        const auto seed = wholeNumber(txtSeed[i].text);
        seeds[i] = seed ? *seed : std::int16_t{0};
    }
    TeamNamesOnBoard after = teams();
    selectHighSeeds(after, seeds);
    changeTeams(after);
}

void BoardScreen::fieldEdited() { changed(); }

void BoardScreen::changed() { unsaved = true; }

} // namespace tallyhoop
