// screens/board/board_history.cpp - two stacks of boards, and what a save means for those kept in them.
#include "screens/board/board_history.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kMostSteps = 200; ///< far more than a bracket has games, and a few megabytes at the most

std::optional<BoardSnapshot> step(std::vector<BoardSnapshot>& from, std::vector<BoardSnapshot>& to,
                                  BoardSnapshot current)
{
    if (from.empty())
        return std::nullopt;
    to.push_back(std::move(current));
    BoardSnapshot next = std::move(from.back());
    from.pop_back();
    return next;
}

} // namespace

void BoardHistory::remember(BoardSnapshot before)
{
    m_future.clear();
    if (m_past.size() == kMostSteps)
        m_past.erase(m_past.begin());
    m_past.push_back(std::move(before));
}

std::optional<BoardSnapshot> BoardHistory::undo(BoardSnapshot current)
{
    return step(m_past, m_future, std::move(current));
}

std::optional<BoardSnapshot> BoardHistory::redo(BoardSnapshot current)
{
    return step(m_future, m_past, std::move(current));
}

void BoardHistory::boardWasSaved(int sheet, const std::filesystem::path& file)
{
    for (auto* const boards : {&m_past, &m_future}) {
        for (BoardSnapshot& board : *boards) {
            if (board.sheet != sheet)
                continue;
            board.unsaved = true;
            board.openedFile = file;
        }
    }
}

void BoardHistory::clear()
{
    m_past.clear();
    m_future.clear();
}

} // namespace tallyhoop
