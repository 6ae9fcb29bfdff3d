// tests/pool/sample_brackets.cpp - the bracket's shape by its own arithmetic, independently of the program.
#include "pool/sample_brackets.h"

namespace tallyhoop::test {

namespace {

constexpr int kPlaces = 127;

template <class Choose>
Bracket played(Choose choose)
{
    Bracket bracket = startingField();
    for (int place = 0; place < kPlaces; ++place)
        if (roundAt(Position{place}) > 0)
            bracket.copy(choose(entrantsOf(Position{place})), Position{place});
    return bracket;
}

} // namespace

Bracket startingField()
{
    ByPosition<std::string> names;
    ByPosition<std::string_view> teams;
    int team = 0;
    for (int place = 0; place < kPlaces; ++place)
        if (roundAt(Position{place}) == 0)
            teams[Position{place}] = names[Position{place}] = "Team " + std::to_string(++team);
    return Bracket::of(teams);
}

Bracket everyUpperTeamWins()
{
    return played([](Entrants entrants) { return entrants.upper; });
}

Bracket everyLowerTeamWins()
{
    return played([](Entrants entrants) { return entrants.lower; });
}

Bracket without(Bracket bracket, int firstPosition, int lastPosition)
{
    for (int place = firstPosition; place <= lastPosition; ++place)
        if (roundAt(Position{place}) > 0)
            bracket.clear(Position{place});
    return bracket;
}

Entrants entrantsOf(Position game)
{
    const int place = static_cast<int>(game);
    switch (place) {
    case 124:
        return {Position{30}, Position{61}};
    case 125:
        return {Position{92}, Position{123}};
    case 126:
        return {Position{124}, Position{125}};
    default:
        break;
    }
    const int base = place / 31 * 31;
    const int gameOfRegion = place - base - 16; // 0..14
    return {Position{base + 2 * gameOfRegion}, Position{base + 2 * gameOfRegion + 1}};
}

int roundAt(Position position)
{
    const int place = static_cast<int>(position);
    if (place >= 124)
        return place == 126 ? 6 : 5;
    const int offset = place % 31;
    return offset < 16 ? 0 : offset < 24 ? 1 : offset < 28 ? 2 : offset < 30 ? 3 : 4;
}

} // namespace tallyhoop::test
