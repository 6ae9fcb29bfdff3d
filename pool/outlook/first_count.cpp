// pool/outlook/first_count.cpp - hands the counts of those who run as one to each of the players.
#include "pool/outlook/first_count.h"

#include "pool/outlook/count_tree.h"
#include "pool/outlook/runners.h"

#include <cstdlib>

namespace tallyhoop {

namespace {

/// A count for points of any size.
class Tree
{
public:
    virtual ~Tree() = default;
    virtual std::size_t slices() const = 0;
    virtual void count(std::size_t slice) = 0;

    /// Adds what was counted for a runner to each player that it stands for.
    virtual void addTo(FirstOutlook& outlook, const std::vector<std::vector<std::size_t>>& playersOf) const = 0;
};

template <class Points>
class TreeOf : public Tree
{
public:
    TreeOf(const Contest& contest, const std::vector<std::size_t>& players) : m_tree{contest, players, {}} {}

    std::size_t slices() const override { return m_tree.slices(); }
    void count(std::size_t slice) override { m_tree.count(slice); }

    void addTo(FirstOutlook& outlook, const std::vector<std::vector<std::size_t>>& playersOf) const override
    {
        for (std::size_t runner = 0; runner < playersOf.size(); ++runner)
            for (const std::size_t player : playersOf[runner])
                add(runner, playersOf.size(), outlook.players[player]);
    }

private:
    void add(std::size_t runner, std::size_t runners, PlayerFirsts& firsts) const
    {
        firsts.witness = m_tree.witness(runner);
        for (const auto& count : m_tree.counts()) {
            firsts.all.add(count.together, count.all[runner]);
            for (std::size_t game = 0; game < firsts.ifUpperWins.size(); ++game)
                firsts.ifUpperWins[game].add(count.together, count.ifUpperWins[game * runners + runner]);
        }
    }

    CountTree<Points, std::uint64_t> m_tree;
};

std::int32_t sumOfPayoffs(const Contest& contest)
{
    std::int32_t sum = 0;
    for (const Position game : gamePositions())
        sum += std::abs(contest.payoff(game));
    return sum;
}

} // namespace

class FirstCount::Work
{
public:
    explicit Work(const Contest& contest)
        : m_runners{runnersOf(contest)},
          m_players{contest.players()},
          m_games{contest.games().size()},
          m_outcomes{contest.games().outcomes()}
    {
        std::vector<std::size_t> counts;
        for (const std::vector<std::size_t>& players : m_runners.players)
            counts.push_back(players.size());
        if (counts.empty())
            return;
        if (sumOfPayoffs(contest) <= kMostSmallPoints)
            m_tree = std::make_unique<TreeOf<std::int16_t>>(m_runners.contest, counts);
        else
            m_tree = std::make_unique<TreeOf<std::int32_t>>(m_runners.contest, counts);
    }

    bool isDone() const { return m_next == slices(); }
    double fraction() const { return isDone() ? 1 : static_cast<double>(m_next) / static_cast<double>(slices()); }

    void advance()
    {
        if (!isDone())
            m_tree->count(m_next++);
    }

    FirstOutlook outlook() const
    {
        FirstOutlook outlook;
        outlook.outcomes = m_outcomes;
        outlook.players.resize(m_players);
        for (PlayerFirsts& player : outlook.players)
            player.ifUpperWins.resize(m_games);
        if (m_tree)
            m_tree->addTo(outlook, m_runners.players);
        return outlook;
    }

private:
    std::size_t slices() const { return m_tree ? m_tree->slices() : 0; }

    Runners m_runners;
    std::size_t m_players;
    std::size_t m_games;
    std::uint64_t m_outcomes;
    std::unique_ptr<Tree> m_tree;
    std::size_t m_next = 0;
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
