// scoring/numbered_bracket.cpp - numbers for names, and the shape of a bracket as scoring walks it.
#include "scoring/numbered_bracket.h"

#include "model/bracket_position.h"

#include <cstddef>
#include <string>

namespace tallyhoop {

namespace {

constexpr std::size_t kFirst = selection_line::kFirstTeam;
constexpr std::size_t kLast = selection_line::kChampion;

/// The names met so far; the n-th has the number n. They are kept in chains of names that look alike at a glance, since
/// comparing each with all others would cost more than the scoring itself.
class KnownNames
{
public:
    /// @param name not empty; kept by address
    TeamNumber numberOf(const std::string& name)
    {
        TeamNumber& first = m_firstOfChain[glance(name)];
        for (TeamNumber number = first; number != kNoTeam; number = m_nextInChain[number])
            if (*m_names[number] == name)
                return number;
        ++m_count;
        m_names[m_count] = &name;
        m_nextInChain[m_count] = first;
        return first = m_count;
    }

private:
    static std::size_t glance(const std::string& name)
    {
        const auto byte = [&](std::size_t at) {
            return static_cast<std::size_t>(static_cast<unsigned char>(name[at]));
        };
        return (name.size() * 31 + byte(0) * 7 + byte(name.size() / 2) * 13 + byte(name.size() - 1) * 17) % 256;
    }

    std::array<TeamNumber, 256> m_firstOfChain{};
    std::array<TeamNumber, 256> m_nextInChain{};
    std::array<const std::string*, 256> m_names; ///< the first m_count of 1.. are set
    TeamNumber m_count = 0;
};

/// Numbers one bracket. Searching the names met so far is the exception: a winner nearly always repeats the name of one
/// of the two that met, and anything else that of the same line in the bracket numbered before.
/// @param before another bracket; those of its lines count that have a number already
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
        else if (numbersBefore[slot] != kNoTeam && name == before[slot])
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
    number(results, pair.results, picks, pair.picks, known); // no pick has a number yet
    number(picks, pair.picks, results, pair.results, known);
    return pair;
}

const std::array<BracketSlot, 128>& bracketSlots()
{
    static const std::array<BracketSlot, 128> slots = makeSlots();
    return slots;
}

} // namespace tallyhoop
