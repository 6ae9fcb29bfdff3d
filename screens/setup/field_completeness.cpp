#include "screens/setup/field_completeness.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <string>

namespace tallyhoop {

namespace {

constexpr double kLeastPayoff = 1;
constexpr double kMostPayoff = 99;

/// The number before it is rounded counts, so 0.9 is too little and 99.5 too much.
bool isBadPayoff(const std::string& text)
{
    const double points = leadingNumber(text);
    return points < kLeastPayoff || points > kMostPayoff;
}

std::optional<std::size_t> firstThat(const auto& texts, bool (*isBad)(const std::string&))
{
    const auto at = std::ranges::find_if(texts, isBad);
    if (at == texts.end())
        return std::nullopt;
    return static_cast<std::size_t>(at - texts.begin());
}

bool isBlank(const std::string& text) { return isBlankField(text); }

} // namespace

std::optional<FieldGap> firstGapOf(const Field& field)
{
    if (const auto row = firstThat(field.teams.values, isBlank))
        return FieldGap{FieldGap::Kind::Team, *row};
    if (isBlank(field.title))
        return FieldGap{FieldGap::Kind::Title, 0};
    if (const auto region = firstThat(field.regionTitles, isBlank))
        return FieldGap{FieldGap::Kind::Title, *region + 1};
    if (const auto round = firstThat(field.payoffs.texts(), isBadPayoff))
        return FieldGap{FieldGap::Kind::Payoff, *round};
    return std::nullopt;
}

} // namespace tallyhoop
