// tests/pool/moves_walk_test.cpp - 100,000 random presses, clicks and drags, each checked against what it may
// change.
//
// The paths are worked out here by arithmetic, not taken from the program's table.
#include "pool/moves.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace tallyhoop {
namespace {

std::size_t at(int position) { return static_cast<std::size_t>(position); }

bool isRowOfTheField(int position) { return position < 124 && position % 31 < 16; }

/// @returns the positions that a team standing here plays for, nearest first
std::vector<int> pathBehind(int position)
{
    std::vector<int> path;
    while (position != 126) {
        if (position >= 124)
            position = 126;
        else if (position % 31 == 30)
            position = position < 62 ? 124 : 125;
        else
            position = position / 31 * 31 + 16 + position % 31 / 2;
        path.push_back(position);
    }
    return path;
}

bool contains(const std::vector<int>& positions, int position)
{
    return std::ranges::find(positions, position) != positions.end();
}

/// A board on which random things happen, and what each may have changed.
class Walk
{
public:
    Walk()
    {
        for (int position = 0; position < 127; ++position)
            if (isRowOfTheField(position))
                m_teams[at(position)] = "T" + std::to_string(position);
    }

    void step()
    {
        m_before = m_teams;
        switch (m_random() % 5) {
        case 0:
            pressRight(anyPosition());
            break;
        case 1:
            click(anyPosition());
            break;
        case 2:
            drag(anyPosition(), anyPosition());
            break;
        case 3:
            dragAhead();
            break;
        default:
            clearForward(anyPosition(), anyPosition());
            break;
        }
        for (int position = 0; position < 127; ++position)
            if (isRowOfTheField(position)) {
                ASSERT_EQ(m_teams[at(position)], m_before[at(position)]) << "row " << position;
            }
    }

private:
    int anyPosition() { return static_cast<int>(m_random() % 127); }

    void pressRight(int position)
    {
        clearPosition(m_teams, position);
        const std::string& team = m_before[at(position)];
        if (isRowOfTheField(position) || team.empty()) {
            ASSERT_EQ(m_teams, m_before);
            return;
        }
        ASSERT_EQ(m_teams[at(position)], "");
        expectOnlyRemoved(team, pathBehind(position), {position});
    }

    void clearForward(int teamAt, int from)
    {
        const std::string team = m_before[at(teamAt)];
        const int start =
            isRowOfTheField(from) ? pathBehind(from).front() : from; // as every press starts behind the rows
        ClearTeamForward(m_teams, team, start);
        std::vector<int> path = pathBehind(start);
        path.push_back(start);
        expectOnlyRemoved(team, path, {});
    }

    void click(int position)
    {
        const std::string team = m_before[at(position)];
        dropOnPosition(m_teams, position, position, team);
        if (position == 126) {
            ASSERT_EQ(m_teams, m_before);
            return;
        }
        const int winner = pathBehind(position).front();
        ASSERT_EQ(m_teams[at(winner)], team);
        expectDisplaced(m_before[at(winner)], team, winner, {winner});
    }

    void dragAhead()
    {
        const int source = anyPosition();
        const std::vector<int> path = pathBehind(source);
        if (!path.empty())
            drag(source, path[m_random() % path.size()]);
    }

    void drag(int source, int target)
    {
        if (source == target)
            return;
        const std::string team = m_before[at(source)];
        dropOnPosition(m_teams, source, target, team);
        const std::vector<int> path = pathBehind(source);
        ASSERT_EQ(isOnPath(source, target), contains(path, target));
        if (!contains(path, target)) {
            ASSERT_EQ(m_teams, m_before) << source << " to " << target;
            return;
        }
        const std::vector<int> carried{path.begin(), std::ranges::find(path, target) + 1};
        for (const int position : carried)
            ASSERT_EQ(m_teams[at(position)], team);
        expectDisplaced(m_before[at(target)], team, target, carried);
    }

    void expectDisplaced(const std::string& displaced, const std::string& newTeam, int target,
                         const std::vector<int>& written)
    {
        const bool isDisplaced = !displaced.empty() && displaced != newTeam;
        expectOnlyRemoved(displaced, isDisplaced ? pathBehind(target) : std::vector<int>{}, written);
    }

    /// Outside the positions written, nothing changed except that the team is gone from this path.
    void expectOnlyRemoved(const std::string& team, const std::vector<int>& path, const std::vector<int>& written)
    {
        for (int position = 0; position < 127; ++position) {
            if (contains(written, position))
                continue;
            const std::string& was = m_before[at(position)];
            const bool removed = contains(path, position) && was == team;
            ASSERT_EQ(m_teams[at(position)], removed ? "" : was) << "position " << position;
        }
    }

    std::mt19937 m_random{20000316};
    TeamNamesOnBoard m_teams;
    TeamNamesOnBoard m_before;
};

TEST(RandomWalk, OfAHundredThousandStepsChangesOnlyWhatEachStepMay)
{
    Walk walk;
    for (int step = 0; step < 100'000; ++step) {
        ASSERT_NO_FATAL_FAILURE(walk.step()) << "at step " << step;
    }
}

} // namespace
} // namespace tallyhoop
