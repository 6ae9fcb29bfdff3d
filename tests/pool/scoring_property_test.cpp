// tests/pool/scoring_property_test.cpp - random brackets, scored twice: the program and a naive scorer agree.
#include "pool/naive_scorer.h"
#include "pool/sample_brackets.h"
#include "pool/scoring.h"

#include <gtest/gtest.h>
#include <random>

namespace tallyhoop {
namespace {

constexpr Payoffs kUsual{1, 2, 4, 8, 12, 16};

ByPosition<std::string_view> teamsOf(const Bracket& bracket)
{
    ByPosition<std::string_view> teams;
    for (const Position position : allPositions())
        teams[position] = bracket.at(position);
    return teams;
}

/// Makes brackets as people fill them in, and damages some of them.
class RandomBrackets
{
public:
    explicit RandomBrackets(unsigned seed) : m_random{seed} {}

    /// @param playedPercent how many of the games whose two teams are known get a winner
    Bracket bracket(unsigned playedPercent)
    {
        Bracket bracket = test::startingField();
        for (const Position position : allPositions())
            if (test::roundAt(position) > 0 && chance(playedPercent)) {
                const auto [upper, lower] = test::entrantsOf(position);
                bracket.copy(chance(50) ? upper : lower, position);
            }
        return bracket;
    }

    /// Puts strange things on some places: nothing, a team from elsewhere, another spelling, an unknown name.
    void damage(Bracket& bracket, unsigned percent)
    {
        for (const Position position : allPositions()) {
            if (!chance(percent))
                continue;
            switch (m_random() % 4) {
            case 0:
                bracket.clear(position);
                break;
            case 1:
                bracket.put(position, "Team " + std::to_string(m_random() % 64 + 1));
                break;
            case 2:
                bracket.put(position, "team 1");
                break;
            default:
                bracket.put(position, "Nobody " + std::to_string(m_random() % 5));
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

    /// @returns the same names on the same places, numbered in another order
    Bracket renumbered(const Bracket& bracket)
    {
        ByPosition<std::string_view> shuffled = teamsOf(bracket);
        std::shuffle(shuffled.values.begin(), shuffled.values.end(), m_random);
        return Bracket::of(teamsOf(bracket), Bracket::of(shuffled));
    }

private:
    bool chance(unsigned percent) { return m_random() % 100 < percent; }

    std::mt19937 m_random;
};

void expectSameScore(const Bracket& picks, const Bracket& results, const Payoffs& payoffs)
{
    const Score scored = score(picks, results, payoffs);
    const Score expected = test::scoreNaively(picks, results, payoffs);
    ASSERT_EQ(scored.points, expected.points);
    ASSERT_EQ(scored.possible, expected.possible);
    ASSERT_EQ(scored.goodPicks, expected.goodPicks);
    ASSERT_EQ(scored.badPicks, expected.badPicks);
    ASSERT_EQ(scored.verdicts, expected.verdicts);
}

/// The same whatever tables the two have their names in.
void expectSameScoreWithEveryTable(RandomBrackets& brackets, const Bracket& picks, const Bracket& results)
{
    const Payoffs payoffs = brackets.payoffs();
    expectSameScore(picks, results, payoffs);
    expectSameScore(Bracket::of(teamsOf(picks), results), results, payoffs);
    expectSameScore(brackets.renumbered(picks), results, payoffs);
}

TEST(ScoreProperty, AgreesWithTheNaiveScorerOnBracketsAsPeopleFillThemIn)
{
    RandomBrackets brackets{64};
    for (int round = 0; round < 1500; ++round) {
        const Bracket results = brackets.bracket(brackets.percent());
        const Bracket picks = brackets.bracket(round % 3 == 0 ? 90 : 100);
        ASSERT_NO_FATAL_FAILURE(expectSameScoreWithEveryTable(brackets, picks, results)) << "round " << round;
    }
}

TEST(ScoreProperty, AgreesWithTheNaiveScorerOnDamagedBrackets)
{
    RandomBrackets brackets{63};
    for (int round = 0; round < 1500; ++round) {
        Bracket results = brackets.bracket(brackets.percent());
        Bracket picks = brackets.bracket(95);
        brackets.damage(picks, brackets.percent());
        if (round % 2 == 0)
            brackets.damage(results, brackets.percent() / 4);
        ASSERT_NO_FATAL_FAILURE(expectSameScoreWithEveryTable(brackets, picks, results)) << "round " << round;
    }
}

TEST(ScoreProperty, AgreesWithTheNaiveScorerOnEveryStageOfATournament)
{
    const Bracket results = test::everyLowerTeamWins();
    RandomBrackets brackets{127};
    for (int firstOpen = 0; firstOpen <= 127; ++firstOpen) {
        const Bracket picks = brackets.bracket(100);
        ASSERT_NO_FATAL_FAILURE(expectSameScore(picks, test::without(results, firstOpen, 126), kUsual));
    }
}

TEST(ScoreProperty, DistinguishesAsManyNamesAsTwoBracketsCanHold)
{
    Bracket picks;
    Bracket results;
    for (const Position position : allPositions()) {
        picks.put(position, "pick " + std::to_string(index(position)));
        results.put(position, "result " + std::to_string(index(position)));
    }
    EXPECT_EQ(score(picks, results, kUsual).badPicks, 127);
    EXPECT_EQ(score(picks, results, kUsual).goodPicks, 0);
    expectSameScore(picks, results, kUsual);

    picks.put(kChampion, "result 126");
    EXPECT_EQ(score(picks, results, kUsual).badPicks, 126);
    EXPECT_EQ(score(picks, results, kUsual).points, 16);
}

} // namespace
} // namespace tallyhoop
