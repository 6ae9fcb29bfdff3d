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

    std::string next() { return m_next < m_lines.size() ? m_lines[m_next++] : std::string{}; }

    SelectionLines bracket()
    {
        SelectionLines lines;
        for (std::size_t slot = selection_line::kFirstTeam; slot <= selection_line::kChampion; ++slot)
            lines.at(slot) = next();
        return lines;
    }

private:
    std::vector<std::string> m_lines;
    std::size_t m_next = 0;
};

bool fits(std::int32_t points)
{
    return points >= std::numeric_limits<std::int16_t>::min() && points <= std::numeric_limits<std::int16_t>::max();
}

Complaint compare(const ScoredPicks& scored, const ScoredPicks& expected)
{
    if (scored.points != expected.points || scored.possible != expected.possible)
        return "the two scorers give different points";
    if (scored.goodPicks != expected.goodPicks || scored.badPicks != expected.badPicks)
        return "the two scorers count different picks";
    if (scored.verdict.SlotStatus != expected.verdict.SlotStatus)
        return "the two scorers give different verdicts";
    if (scored.verdict.EliminatedTeams != expected.verdict.EliminatedTeams)
        return "the two scorers eliminate different teams";
    return std::nullopt;
}

} // namespace

Complaint scoring(std::string_view bytes)
{
    Lines lines{bytes};
    std::array<std::string, 6> texts;
    for (std::string& text : texts)
        text = lines.next();
    const Result<Payoffs> payoffs = payoffsOf(texts);
    if (!payoffs)
        return std::nullopt;
    const std::string finalPoints = lines.next();
    SelectionLines picks = lines.bracket();
    picks.at(selection_line::kFinalPoints) = finalPoints;
    const SelectionLines results = lines.bracket();

    const ScoredPicks expected = test::scoreNaively(picks, results, *payoffs);
    if (Complaint complaint = compare(Scoring{results, *payoffs}.score(picks), expected))
        return complaint;
    ScoredVerdict verdict;
    const Result<ScoreLine> line = Scoring{results, *payoffs}.line("A.THC", picks, verdict);
    const bool isUsable =
        fits(expected.points) && fits(expected.points + expected.possible) && wholeNumber(finalPoints);
    if (static_cast<bool>(line) != isUsable)
        return "a score line fails when it should not, or the other way round";
    if (line && (line->Points != expected.points || line->MaxPoints != expected.points + expected.possible))
        return "the score line has other points";
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
