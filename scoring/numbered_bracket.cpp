// scoring/numbered_bracket.cpp - numbers for names, and the shape of a bracket as scoring walks it.
#include "scoring/numbered_bracket.h"

#include "model/bracket_position.h"

#include <cstddef>
#include <string>

namespace tallyhoop {

namespace {

constexpr std::size_t kFirst = selection_line::kFirstTeam;
constexpr std::size_t kLast = selection_line::kChampion;

/// The names met so far; the n-th has the number n.
class KnownNames
{
public:
    TeamNumber numberOf(const std::string& name)
    {
        for (std::size_t number = 1; number <= m_count; ++number)
            if (*m_names[number] == name)
                return static_cast<TeamNumber>(number);
        m_names[++m_count] = &name;
        return static_cast<TeamNumber>(m_count);
    }

private:
    std::array<const std::string*, 256> m_names{};
    std::size_t m_count = 0;
};

/// Numbers one bracket. Searching the names met so far is the exception: a winner nearly always repeats the name of one
/// of the two that met, and anything else that of the same line in the bracket numbered before.
/// @param before lines numbered already, with their numbers
void number(const SelectionLines& lines, NumberedBracket& numbers, const SelectionLines& before,
            const NumberedBracket& numbersBefore, KnownNames& known)
{
    const auto& slots = bracketSlots();
    for (std::size_t slot = kFirst; slot <= kLast; ++slot) {
        const std::string& name = lines[slot];
        const bool isGame = slots[slot].round != 0;
        const auto [upper, lower] = slots[slot].feeders;
        if (name.empty())
            numbers[slot] = kNoTeam;
        else if (isGame && name == lines[upper])
            numbers[slot] = numbers[upper];
        else if (isGame && name == lines[lower])
            numbers[slot] = numbers[lower];
        else if (name == before[slot])
            numbers[slot] = numbersBefore[slot];
        else
            numbers[slot] = known.numberOf(name);
    }
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

NumberedPair numbered(const SelectionLines& picks, const SelectionLines& results)
{
    NumberedPair pair;
    KnownNames known;
    number(results, pair.results, SelectionLines{}, {}, known);
    number(picks, pair.picks, results, pair.results, known);
    return pair;
}

const std::array<BracketSlot, 128>& bracketSlots()
{
    static const std::array<BracketSlot, 128> slots = makeSlots();
    return slots;
}

} // namespace tallyhoop
