// pool/numbered_bracket.cpp - numbers for names, and the shape of a bracket as scoring walks it.
#include "pool/numbered_bracket.h"

#include "pool/position.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace tallyhoop {

namespace {

constexpr std::size_t kFirst = selection_line::kFirstTeam;
constexpr std::size_t kLast = selection_line::kChampion;

/// A name has the number of the first line that holds it. Those that only the picks hold come behind the results' ones.
constexpr std::size_t kOnlyPicked = kLast;

/// @returns the first line before the given one that holds its name; nullopt when none does
std::optional<std::size_t> earlier(const SelectionLines& lines, std::size_t slot)
{
    const auto begin = lines.begin() + kFirst;
    const auto end = lines.begin() + static_cast<std::ptrdiff_t>(slot);
    const auto found = std::find(begin, end, lines[slot]);
    return found == end ? std::nullopt : std::optional{static_cast<std::size_t>(found - lines.begin())};
}

std::array<BracketSlot, 128> makeSlots()
{
    std::array<BracketSlot, 128> slots{};
    for (const Position position : gamePositions()) {
        const auto [upper, lower] = bracketMap().feeders(index(position));
        BracketSlot& slot = slots[static_cast<std::size_t>(index(slotOf(position)))];
        slot.round = static_cast<std::uint8_t>(roundOf(position));
        slot.feeders = {static_cast<std::uint8_t>(index(slotOf(Position{upper}))),
                        static_cast<std::uint8_t>(index(slotOf(Position{lower})))};
    }
    return slots;
}

} // namespace

NumberedResults::NumberedResults(const SelectionLines& results) : m_lines{results}
{
    for (std::size_t slot = kFirst; slot <= kLast; ++slot)
        if (!results[slot].empty())
            m_numbers[slot] = static_cast<TeamNumber>(earlier(results, slot).value_or(slot));
}

NumberedPair NumberedResults::pairWith(const SelectionLines& picks) const
{
    NumberedPair pair{{}, m_numbers};
    const auto& slots = bracketSlots();
    for (std::size_t slot = kFirst; slot <= kLast; ++slot) {
        // Nearly always a row is the results' own, and a winner is one of the two that met: searching is the exception.
        const auto [upper, lower] = slots[slot].feeders;
        const bool isGame = slots[slot].round != 0;
        if (picks[slot].empty())
            continue;
        if (isGame && picks[slot] == picks[upper])
            pair.picks[slot] = pair.picks[upper];
        else if (isGame && picks[slot] == picks[lower])
            pair.picks[slot] = pair.picks[lower];
        else if (picks[slot] == m_lines[slot])
            pair.picks[slot] = m_numbers[slot];
        else
            pair.picks[slot] = numberOf(picks, slot);
    }
    return pair;
}

TeamNumber NumberedResults::numberOf(const SelectionLines& picks, std::size_t slot) const
{
    const auto begin = m_lines.begin() + kFirst;
    const auto end = m_lines.begin() + kLast + 1;
    const auto found = std::find(begin, end, picks[slot]);
    if (found != end)
        return static_cast<TeamNumber>(found - m_lines.begin());
    return static_cast<TeamNumber>(kOnlyPicked + earlier(picks, slot).value_or(slot));
}

const std::array<BracketSlot, 128>& bracketSlots()
{
    static const std::array<BracketSlot, 128> slots = makeSlots();
    return slots;
}

} // namespace tallyhoop
