// tests/fuzz/scoring.cpp - two brackets of arbitrary lines, scored by the program and by the naive scorer.
#include "fuzz/targets.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pool/naive_scorer.h"
#include "pool/scoring.h"

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

/// Takes one line after another; empty ones when none is left.
class Lines
{
public:
    explicit Lines(std::string_view bytes) : m_lines{split(bytes, '\n')} {}

    std::string_view next()
    {
        return m_next < m_lines.size() ? std::string_view{m_lines[m_next++]} : std::string_view{};
    }

    ByPosition<std::string_view> teams()
    {
        ByPosition<std::string_view> teams;
        for (std::string_view& team : teams.values)
            team = next();
        return teams;
    }

private:
    std::vector<std::string> m_lines;
    std::size_t m_next = 0;
};

bool fits(std::int32_t points)
{
    return points >= std::numeric_limits<std::int16_t>::min() && points <= std::numeric_limits<std::int16_t>::max();
}

Complaint compare(const Score& scored, const Score& expected)
{
    if (scored.points != expected.points || scored.possible != expected.possible)
        return "the two scorers give different points";
    if (scored.goodPicks != expected.goodPicks || scored.badPicks != expected.badPicks)
        return "the two scorers count different picks";
    if (scored.verdicts != expected.verdicts)
        return "the two scorers give different verdicts";
    return std::nullopt;
}

} // namespace

Complaint scoring(std::string_view bytes)
{
    Lines lines{bytes};
    std::array<std::string, kRounds> texts;
    for (std::string& text : texts)
        text = lines.next();
    const Result<Payoffs> payoffs = PayoffTexts{texts}.points();
    if (!payoffs)
        return std::nullopt;
    const std::string finalPoints{lines.next()};
    const ByPosition<std::string_view> teams = lines.teams();
    const Bracket results = Bracket::of(lines.teams());
    const Bracket alone = Bracket::of(teams);
    const Bracket alike = Bracket::of(teams, results);
    if (alone != alike)
        return "a bracket depends on the one it is made like";

    const Score expected = test::scoreNaively(alone, results, *payoffs);
    for (const Bracket* picks : {&alone, &alike})
        if (Complaint complaint = compare(score(*picks, results, *payoffs), expected))
            return complaint;
    const Result<PlayerScore> player = scoreEntry({alike, "", "", finalPoints, "A.THC"}, results, *payoffs);
    const bool isUsable =
        fits(expected.points) && fits(expected.points + expected.possible) && wholeNumber(finalPoints);
    if (static_cast<bool>(player) != isUsable)
        return "an entry's score fails when it should not, or the other way round";
    if (player && (player->points != expected.points || player->maxPoints != expected.points + expected.possible))
        return "the entry has other points";
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
