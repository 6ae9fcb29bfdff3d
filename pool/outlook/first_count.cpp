// pool/outlook/first_count.cpp - one outcome after the other.
#include "pool/outlook/first_count.h"

#include <algorithm>

namespace tallyhoop {

class FirstCount::Work
{
public:
    explicit Work(const Contest& contest) : m_contest{contest}, m_points(contest.players())
    {
        m_outlook.outcomes = contest.games().outcomes();
        m_outlook.players.resize(contest.players());
        for (PlayerFirsts& player : m_outlook.players)
            player.ifUpperWins.resize(contest.games().size());
    }

    bool isDone() const { return m_next == m_outlook.outcomes; }
    double fraction() const { return static_cast<double>(m_next) / static_cast<double>(m_outlook.outcomes); }

    void advance()
    {
        for (int i = 0; i < 64 && !isDone(); ++i)
            count(m_next++);
    }

    const FirstOutlook& outlook() const { return m_outlook; }

private:
    void count(OutcomeNumber outcome)
    {
        const ByPosition<TeamNumber> teams = m_contest.games().outcomeNumbers(outcome);
        for (std::size_t player = 0; player < m_points.size(); ++player)
            m_points[player] = m_contest.points(player, teams);
        if (m_points.empty())
            return;
        const std::int32_t most = std::ranges::max(m_points);
        const auto together = static_cast<std::size_t>(std::ranges::count(m_points, most));
        for (std::size_t player = 0; player < m_points.size(); ++player) {
            if (m_points[player] != most)
                continue;
            PlayerFirsts& firsts = m_outlook.players[player];
            firsts.all.add(together, 1);
            if (!firsts.witness)
                firsts.witness = outcome;
            for (std::size_t game = 0; game < firsts.ifUpperWins.size(); ++game)
                if (sideOf(outcome, game) == Side::Upper)
                    firsts.ifUpperWins[game].add(together, 1);
        }
    }

    Contest m_contest;
    FirstOutlook m_outlook;
    OutcomeNumber m_next = 0;
    std::vector<std::int32_t> m_points;
};

FirstCount::FirstCount(const Contest& contest) : m_work{std::make_unique<Work>(contest)} {}
FirstCount::~FirstCount() = default;
FirstCount::FirstCount(FirstCount&&) noexcept = default;
FirstCount& FirstCount::operator=(FirstCount&&) noexcept = default;

bool FirstCount::isDone() const { return m_work->isDone(); }
double FirstCount::fraction() const { return m_work->fraction(); }
void FirstCount::advance() { m_work->advance(); }
FirstOutlook FirstCount::outlook() const { return m_work->outlook(); }

FirstOutlook countFirsts(const Contest& contest)
{
    FirstCount count{contest};
    while (!count.isDone())
        count.advance();
    return count.outlook();
}

} // namespace tallyhoop
