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

const std::string& at(const Bracket& bracket, int position) { return bracket.at(Position{position}); }

bool isRowOfTheField(int position) { return position < 124 && position % 31 < 16; }

/// @returns the positions that a team plays for from here, nearest first
std::vector<int> pathAfter(int position)
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

/// A bracket to which random things happen, and what each may have changed.
class Walk
{
public:
    Walk()
    {
        for (int position = 0; position < 127; ++position)
            if (isRowOfTheField(position))
                m_bracket.put(Position{position}, "T" + std::to_string(position));
    }

    void step()
    {
        m_before = m_bracket;
        switch (m_random() % 5) {
        case 0:
            clear(anyPosition());
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
                ASSERT_EQ(at(m_bracket, position), at(m_before, position)) << "row " << position;
            }
    }

private:
    int anyPosition() { return static_cast<int>(m_random() % 127); }

    void clear(int position)
    {
        m_bracket = cleared(m_bracket, Position{position});
        const std::string& team = at(m_before, position);
        if (isRowOfTheField(position) || team.empty()) {
            ASSERT_EQ(m_bracket, m_before);
            return;
        }
        ASSERT_EQ(at(m_bracket, position), "");
        expectOnlyRemoved(team, pathAfter(position), {position});
    }

    void clearForward(int teamAt, int from)
    {
        const std::string team = at(m_before, teamAt);
        const int start =
            isRowOfTheField(from) ? pathAfter(from).front() : from; // as every press starts after the rows
        m_bracket = withoutTeamFrom(m_bracket, Position{start}, team);
        std::vector<int> path = pathAfter(start);
        path.push_back(start);
        expectOnlyRemoved(team, path, {});
    }

    void click(int position)
    {
        const std::string team = at(m_before, position);
        const Bracket onceMore = advanced(m_bracket, Position{position});
        m_bracket = dropped(m_bracket, Position{position}, Position{position}, team);
        ASSERT_EQ(onceMore, m_bracket);
        if (position == 126) {
            ASSERT_EQ(m_bracket, m_before);
            return;
        }
        const int winner = pathAfter(position).front();
        ASSERT_EQ(at(m_bracket, winner), team);
        expectDisplaced(at(m_before, winner), team, winner, {winner});
    }

    void dragAhead()
    {
        const int source = anyPosition();
        const std::vector<int> path = pathAfter(source);
        if (!path.empty())
            drag(source, path[m_random() % path.size()]);
    }

    void drag(int source, int target)
    {
        if (source == target)
            return;
        const std::string team = at(m_before, source);
        m_bracket = dropped(m_bracket, Position{source}, Position{target}, team);
        const std::vector<int> path = pathAfter(source);
        ASSERT_EQ(isOnPath(Position{source}, Position{target}), contains(path, target));
        if (!contains(path, target)) {
            ASSERT_EQ(m_bracket, m_before) << source << " to " << target;
            return;
        }
        const std::vector<int> carried{path.begin(), std::ranges::find(path, target) + 1};
        for (const int position : carried)
            ASSERT_EQ(at(m_bracket, position), team);
        expectDisplaced(at(m_before, target), team, target, carried);
    }

    void expectDisplaced(const std::string& displaced, const std::string& newTeam, int target,
                         const std::vector<int>& written)
    {
        const bool isDisplaced = !displaced.empty() && displaced != newTeam;
        expectOnlyRemoved(displaced, isDisplaced ? pathAfter(target) : std::vector<int>{}, written);
    }

    /// Outside the positions written, nothing changed except that the team is gone from this path.
    void expectOnlyRemoved(const std::string& team, const std::vector<int>& path, const std::vector<int>& written)
    {
        for (int position = 0; position < 127; ++position) {
            if (contains(written, position))
                continue;
            const std::string& was = at(m_before, position);
            const bool removed = contains(path, position) && was == team;
            ASSERT_EQ(at(m_bracket, position), removed ? "" : was) << "position " << position;
        }
    }

    std::mt19937 m_random{20000316};
    Bracket m_bracket;
    Bracket m_before;
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
