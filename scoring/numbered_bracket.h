// scoring/numbered_bracket.h - brackets with small numbers for names, so that scoring compares bytes instead of texts.
#pragma once

#include "model/lines.h"

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

/// Numbers the names of lines 1..127. Names are compared exactly.
NumberedPair numbered(const SelectionLines& picks, const SelectionLines& results);

/// One line of a bracket, and which two lines meet for it.
struct BracketSlot {
    std::uint8_t round = 0;                ///< 1..6; 0 for the rows of the starting field
    std::array<std::uint8_t, 2> feeders{}; ///< slots; both 0 for the rows of the starting field
};

/// By slot, 1..127.
const std::array<BracketSlot, 128>& bracketSlots();

} // namespace tallyhoop
