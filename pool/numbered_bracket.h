// pool/numbered_bracket.h - brackets with small numbers for names, so that scoring compares bytes instead of texts.
#pragma once

#include "pool/pool_lines.h"

#include <array>
#include <cstdint>

namespace tallyhoop {

/// What stands on a slot: a number for a name, 0 for an empty text. Two brackets hold at most 254 different names.
using TeamNumber = std::uint8_t;
inline constexpr TeamNumber kNoTeam = 0;

/// By slot, 1..127; entry 0 is unused.
using NumberedBracket = std::array<TeamNumber, 128>;

/// Two brackets numbered together: equal names have equal numbers, different names different ones.
struct NumberedPair {
    NumberedBracket picks{};
    NumberedBracket results{};
};

/// Results with their names numbered, once for all the brackets that are held against them.
class NumberedResults
{
public:
    /// @param results lines 1..127 count; to be kept unchanged as long as this is used
    explicit NumberedResults(const SelectionLines& results);

    /// @param picks lines 1..127. Names are compared exactly.
    NumberedPair pairWith(const SelectionLines& picks) const;

private:
    TeamNumber numberOf(const SelectionLines& picks, std::size_t slot) const;

    const SelectionLines& m_lines;
    NumberedBracket m_numbers{};
};

/// One line of a bracket, and which two lines meet for it.
struct BracketSlot {
    std::uint8_t round = 0;                ///< 1..6; 0 for the rows of the starting field
    std::array<std::uint8_t, 2> feeders{}; ///< slots; both 0 for the rows of the starting field
};

/// By slot, 1..127.
const std::array<BracketSlot, 128>& bracketSlots();

} // namespace tallyhoop
