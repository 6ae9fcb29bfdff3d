// pool/outlook/open_games.h - what the results leave open: the games still to be played, and every way they can end.
#pragma once

#include "pool/bracket.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tallyhoop {

/// From where on the board a winner comes: the first or the second of feeders().
enum class Side : std::uint8_t { Upper, Lower };

/// One way the open games can end, 0 .. outcomes() - 1: bit i is the side that wins open game i, 0 the upper one.
using OutcomeNumber = std::uint64_t;

constexpr Side sideOf(OutcomeNumber outcome, std::size_t openGame)
{
    return (outcome >> openGame & 1U) == 0 ? Side::Upper : Side::Lower;
}

/// The games that can still end in two ways, given results that may be entered in any order and name any teams.
///
/// A winner that is entered stays, whoever it is. A game without a winner is filled in when it has none to choose:
/// - its winner won a later game that is entered, and can only have come there through this one;
/// - only one team is left for it.
/// A game for which one side has no team at all is a walkover: the other side's team moves on. Where neither side has
/// one, the winner stays nobody. All the others are open.
class OpenGames
{
public:
    /// @param results teams in the first-round rows, winners as far as they are known
    explicit OpenGames(Bracket results);

    /// The results with the games filled in that have nothing to choose.
    const Bracket& known() const { return m_known; }

    /// The open games, ascending, so that no game comes before one whose winner plays in it; 0..63 of them.
    const std::vector<Position>& games() const { return m_games; }
    std::size_t size() const { return m_games.size(); }

    std::uint64_t outcomes() const { return std::uint64_t{1} << m_games.size(); }

    /// @returns the bracket in which every open game has ended
    Bracket outcome(OutcomeNumber number) const;

    /// The same in the numbers of known().names().
    ByPosition<TeamNumber> outcomeNumbers(OutcomeNumber number) const;

    /// Fills in the winner of one game whose two sides are filled in.
    /// @param side who wins an open game; without a meaning for others
    void play(Position game, Side side, ByPosition<TeamNumber>& teams) const;

    /// @returns the teams that can still be at a position, ascending by number in known().names(), each once; empty for
    ///          nobody
    const std::vector<TeamNumber>& candidates(Position position) const { return m_candidates[position]; }

private:
    /// How the winner of a game comes about.
    enum class Course : std::uint8_t {
        Known, ///< it is known; also that there is none, and also the first-round rows
        Open,  ///< either side
        Upper, ///< a walkover of the upper side
        Lower, ///< a walkover of the lower side
    };

    void findCandidates();
    void fillInBelow();
    void findCourses();

    Bracket m_known;
    std::vector<Position> m_games;
    ByPosition<std::vector<TeamNumber>> m_candidates;
    ByPosition<Course> m_courses;
};

} // namespace tallyhoop
