// pool/pool_lines.h - the records of a pool as lines of text: a field's index is its line in the file.
#pragma once

#include "pool/position.h"

#include <array>
#include <cstddef>
#include <string>

namespace tallyhoop {

inline constexpr const char* kStartMarker = "*START*";
inline constexpr const char* kEndMarker = "*END*";

/// The starting field and the pool's options, index 0..100.
using SetupLines = std::array<std::string, 101>;

namespace setup_line {
inline constexpr std::size_t kTeam = 0; ///< 0..63: team of region i / 16, row i % 16
inline constexpr std::size_t kTitle = 64;
inline constexpr std::size_t kRegion = 65;   ///< 65..68
inline constexpr std::size_t kPayoff = 69;   ///< 69..74: rounds 1..6, decimal text
inline constexpr std::size_t kSeed = 75;     ///< 75..90: first-round rows 0..15
inline constexpr std::size_t kComment1 = 91; ///< line breaks as "|"
inline constexpr std::size_t kComment2 = 92;
inline constexpr std::size_t kFinalized = 93; ///< "1" or "0"
inline constexpr std::size_t kEnd = 94;
} // namespace setup_line

/// One player's bracket, or the results, index 0..131.
using SelectionLines = std::array<std::string, 132>;

namespace selection_line {
inline constexpr std::size_t kFirstTeam = 1; ///< 1..127: the team at position index - 1, empty = none
inline constexpr std::size_t kChampion = 127;
inline constexpr std::size_t kInitials = 128; ///< upper case
inline constexpr std::size_t kName = 129;
inline constexpr std::size_t kFinalPoints = 130; ///< predicted total points of the final game, decimal text
inline constexpr std::size_t kEnd = 131;
} // namespace selection_line

/// The seed texts of the 16 first-round rows; entry 16 is never used.
using SeedLabels = std::array<std::string, 17>;

/// The field of a pool that nobody has set up yet: entries 0..94, the others empty.
SetupLines defaultSetupLines();

/// @returns the line's text as a boolean: exactly "1"
inline bool isFinalized(const SetupLines& lines) { return lines[setup_line::kFinalized] == "1"; }

} // namespace tallyhoop
