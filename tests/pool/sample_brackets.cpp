// tests/pool/sample_brackets.cpp - the shape of the bracket written down once more, independently of the program.
#include "pool/sample_brackets.h"

namespace tallyhoop::test {

namespace {

template <class Choose>
SelectionLines played(Choose choose)
{
    SelectionLines lines = startingField();
    for (int slot = 1; slot <= 127; ++slot)
        if (roundOfSlot(slot) > 0)
            lines.at(static_cast<std::size_t>(slot)) = lines.at(static_cast<std::size_t>(choose(entrantsOf(slot))));
    return lines;
}

} // namespace

SelectionLines startingField()
{
    SelectionLines lines;
    int team = 0;
    for (int slot = 1; slot <= 124; ++slot)
        if (roundOfSlot(slot) == 0)
            lines.at(static_cast<std::size_t>(slot)) = "Team " + std::to_string(++team);
    lines[selection_line::kEnd] = kEndMarker;
    return lines;
}

SelectionLines everyUpperTeamWins()
{
    return played([](Entrants entrants) { return entrants.upper; });
}

SelectionLines everyLowerTeamWins()
{
    return played([](Entrants entrants) { return entrants.lower; });
}

SelectionLines without(SelectionLines lines, int firstSlot, int lastSlot)
{
    for (int slot = firstSlot; slot <= lastSlot; ++slot)
        if (roundOfSlot(slot) > 0)
            lines.at(static_cast<std::size_t>(slot)).clear();
    return lines;
}

Entrants entrantsOf(int slot)
{
    switch (slot) {
    case 125:
        return {31, 62};
    case 126:
        return {93, 124};
    case 127:
        return {125, 126};
    default:
        break;
    }
    const int base = (slot - 1) / 31 * 31;
    const int game = slot - base - 16; // 1..15
    return {base + 2 * game - 1, base + 2 * game};
}

int roundOfSlot(int slot)
{
    if (slot >= 125)
        return slot == 127 ? 6 : 5;
    const int line = (slot - 1) % 31 + 1;
    return line <= 16 ? 0 : line <= 24 ? 1 : line <= 28 ? 2 : line <= 30 ? 3 : 4;
}

} // namespace tallyhoop::test
