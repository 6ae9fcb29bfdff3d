// pool/field.cpp - the field that every pool begins with.
#include "pool/field.h"

#include "base/numbers.h"

namespace tallyhoop {

bool Field::mayBeReplaced() const { return leadingNumber(finalized) == 0; }

Field defaultField()
{
    Field field;
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "TEAM" + std::to_string(index(row) + 1);
    field.title = "2001 NCAA Tournament";
    field.regionTitles = {"West Region", "Midwest Region", "East Region", "South Region"};
    field.payoffs = PayoffTexts{std::array<std::string, kRounds>{"1", "2", "4", "8", "12", "16"}};
    // One-digit seeds keep their leading blank: that is how the files have them.
    field.seeds = {" 1", "16", " 8", " 9", " 5", "12", " 4", "13", " 6", "11", " 3", "14", " 7", "10", " 2", "15"};
    field.finalized = "0";
    return field;
}

ByTeamRow<std::int16_t> seedNumbers(const Field& field)
{
    ByTeamRow<std::int16_t> numbers;
    for (const TeamRow row : allTeamRows())
        if (const Result<std::int16_t> seed = wholeNumber(field.seedOf(row)))
            numbers[row] = *seed;
    return numbers;
}

Bracket startingBracket(const Field& field)
{
    ByPosition<std::string_view> teams;
    for (const TeamRow row : allTeamRows())
        teams[positionOf(row)] = field.teams[row];
    return Bracket::of(teams);
}

} // namespace tallyhoop
