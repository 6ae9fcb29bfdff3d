// pool/bracket.h - 127 places with a team or nobody on each: a player's picks, or the results.
#pragma once

#include "pool/position.h"
#include "pool/team_names.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Cheap to copy and to compare: a byte for each place, and a table of names shared with the brackets it was made like.
/// A name may be any text, and may be on any place: a bracket from a damaged file is a bracket.
class Bracket
{
public:
    /// A bracket without teams.
    Bracket();

    /// @returns the team at a position, empty for nobody. The text lives until this bracket is changed or gone.
    const std::string& at(Position position) const { return m_names->nameOf(m_numbers[position]); }
    bool isEmpty(Position position) const { return m_numbers[position] == kNoTeam; }

    /// @param team empty = nobody
    void put(Position position, std::string_view team);
    void clear(Position position) { m_numbers[position] = kNoTeam; }
    void copy(Position from, Position to) { m_numbers[to] = m_numbers[from]; }

    /// The same places by number, as scoring walks them. Two brackets with the same table have comparable numbers.
    const ByPosition<TeamNumber>& numbers() const { return m_numbers; }
    const TeamNames& names() const { return *m_names; }

    /// Equal when the same names are on the same places, whatever their numbers.
    friend bool operator==(const Bracket& left, const Bracket& right);

    /// Makes a bracket of 127 names, in the order of the positions; an empty one is nobody.
    /// @param like a bracket in which most of the names are expected, most of them on the same places: its table is
    ///             shared when it has all the names
    static Bracket of(const ByPosition<std::string_view>& teams, const Bracket& like = {});

    /// Makes a bracket of 127 numbers of the table of another, whose table is shared.
    static Bracket of(const ByPosition<TeamNumber>& numbers, const Bracket& like);

private:
    std::shared_ptr<const TeamNames> m_names;
    ByPosition<TeamNumber> m_numbers;
};

/// @returns a bracket's places in the numbers of another table; a name that the table lacks gets a number above
///          TeamNames::kMost, the same one wherever it is
ByPosition<TeamNumber> numbersIn(const TeamNames& names, const Bracket& bracket);

} // namespace tallyhoop
