// tests/pool/scoring_property_test.cpp - random brackets, scored twice: the program and a naive scorer agree.
#include "pool/naive_scorer.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <gtest/gtest.h>
#include <random>

namespace tallyhoop {
namespace {

using test::entrantsOf;
using test::roundOfSlot;

/// Makes brackets as people fill them in, and damages some of them.
class RandomBrackets
{
public:
    explicit RandomBrackets(unsigned seed) : m_random{seed} {}

    /// @param playedPercent how many of the games whose two teams are known get a winner
    SelectionLines bracket(unsigned playedPercent)
    {
        SelectionLines lines = test::startingField();
        for (int slot = 1; slot <= 127; ++slot)
            if (roundOfSlot(slot) > 0 && chance(playedPercent)) {
                const auto [upper, lower] = entrantsOf(slot);
                line(lines, slot) = line(lines, chance(50) ? upper : lower);
            }
        return lines;
    }

    /// Puts strange things on some lines: nothing, a team from elsewhere, another spelling, an unknown name.
    void damage(SelectionLines& lines, unsigned percent)
    {
        for (int slot = 1; slot <= 127; ++slot) {
            if (!chance(percent))
                continue;
            switch (m_random() % 4) {
            case 0:
                line(lines, slot).clear();
                break;
            case 1:
                line(lines, slot) = "Team " + std::to_string(m_random() % 64 + 1);
                break;
            case 2:
                line(lines, slot) = "team 1";
                break;
            default:
                line(lines, slot) = "Nobody " + std::to_string(m_random() % 5);
                break;
            }
        }
    }

    Payoffs payoffs()
    {
        Payoffs points{};
        for (std::int16_t& point : points)
            point = static_cast<std::int16_t>(m_random() % 99 + 1);
        return points;
    }

    unsigned percent() { return static_cast<unsigned>(m_random() % 101); }

private:
    bool chance(unsigned percent) { return m_random() % 100 < percent; }
    static std::string& line(SelectionLines& lines, int slot) { return lines.at(static_cast<std::size_t>(slot)); }

    std::mt19937 m_random;
};

void expectSameScore(const SelectionLines& picks, const SelectionLines& results, const Payoffs& payoffs)
{
    const ScoredPicks scored = Scoring{results, payoffs}.score(picks);
    const ScoredPicks expected = test::scoreNaively(picks, results, payoffs);
    ASSERT_EQ(scored.points, expected.points);
    ASSERT_EQ(scored.possible, expected.possible);
    ASSERT_EQ(scored.goodPicks, expected.goodPicks);
    ASSERT_EQ(scored.badPicks, expected.badPicks);
    ASSERT_EQ(scored.verdict.SlotStatus, expected.verdict.SlotStatus);
    ASSERT_EQ(scored.verdict.EliminatedTeams, expected.verdict.EliminatedTeams);
}

TEST(ScorePicksProperty, AgreesWithTheNaiveScorerOnBracketsAsPeopleFillThemIn)
{
    RandomBrackets brackets{64};
    for (int round = 0; round < 1500; ++round) {
        const SelectionLines results = brackets.bracket(brackets.percent());
        const SelectionLines picks = brackets.bracket(round % 3 == 0 ? 90 : 100);
        ASSERT_NO_FATAL_FAILURE(expectSameScore(picks, results, brackets.payoffs())) << "round " << round;
    }
}

TEST(ScorePicksProperty, AgreesWithTheNaiveScorerOnDamagedBrackets)
{
    RandomBrackets brackets{63};
    for (int round = 0; round < 1500; ++round) {
        SelectionLines results = brackets.bracket(brackets.percent());
        SelectionLines picks = brackets.bracket(95);
        brackets.damage(picks, brackets.percent());
        if (round % 2 == 0)
            brackets.damage(results, brackets.percent() / 4);
        ASSERT_NO_FATAL_FAILURE(expectSameScore(picks, results, brackets.payoffs())) << "round " << round;
    }
}

TEST(ScorePicksProperty, AgreesWithTheNaiveScorerOnEveryStageOfATournament)
{
    const SelectionLines results = test::everyLowerTeamWins();
    RandomBrackets brackets{127};
    for (int firstOpen = 1; firstOpen <= 128; ++firstOpen) {
        const SelectionLines picks = brackets.bracket(100);
        ASSERT_NO_FATAL_FAILURE(expectSameScore(picks, test::without(results, firstOpen, 127), {1, 2, 4, 8, 12, 16}));
    }
}

TEST(ScorePicksProperty, TellsAsManyNamesApartAsTwoBracketsCanHold)
{
    SelectionLines picks;
    SelectionLines results;
    for (std::size_t slot = 1; slot <= 127; ++slot) {
        picks.at(slot) = "pick " + std::to_string(slot);
        results.at(slot) = "result " + std::to_string(slot);
    }
    picks[0] = "result 1"; // line 0 is no place of a bracket
    const ScoredPicks scored = Scoring{results, {1, 2, 4, 8, 12, 16}}.score(picks);
    EXPECT_EQ(scored.badPicks, 127);
    EXPECT_EQ(scored.verdict.EliminatedTeams.size(), 127u);
    EXPECT_EQ(scored.verdict.EliminatedTeams.front(), "pick 1");
    EXPECT_EQ(scored.verdict.EliminatedTeams.back(), "pick 127");
}

} // namespace
} // namespace tallyhoop
