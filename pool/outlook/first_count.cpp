// pool/outlook/first_count.cpp - hands what was counted for those who run as one to each of the players.
#include "pool/outlook/first_count.h"

#include "pool/outlook/counted_runners.h"

namespace tallyhoop {

namespace {

void add(FirstChances& chances, std::size_t together, double chance)
{
    (together == 1 ? chances.alone : chances.together) += chance;
    chances.share += chance / static_cast<double>(together);
}

template <class Count>
auto countedAll(Count count)
{
    while (!count.isDone())
        count.advance();
    return count.outlook();
}

} // namespace

class FirstCount::Work : public CountedRunners<std::uint64_t>
{
public:
    Work(const Contest& contest, const Step& step, std::size_t mostBytes)
        : CountedRunners{contest, {}, step, mostBytes},
          m_players{contest.players()},
          m_games{contest.games().size()},
          m_outcomes{contest.games().outcomes()}
    {
    }

    FirstOutlook outlook() const
    {
        FirstOutlook outlook{m_outcomes, std::vector<PlayerFirsts>(m_players)};
        for (PlayerFirsts& player : outlook.players)
            player.ifUpperWins.resize(m_games);
        forEachPlayer([&](std::size_t player, std::size_t runner, std::size_t runners, const auto& tree) {
            PlayerFirsts& firsts = outlook.players[player];
            firsts.witness = tree.witness(runner);
            for (const auto& count : tree.counts()) {
                firsts.all.add(count.together, count.all[runner]);
                for (std::size_t game = 0; game < m_games; ++game)
                    firsts.ifUpperWins[game].add(count.together, count.ifUpperWins[game * runners + runner]);
            }
        });
        return outlook;
    }

private:
    std::size_t m_players;
    std::size_t m_games;
    std::uint64_t m_outcomes;
};

class ChanceCount::Work : public CountedRunners<double>
{
public:
    Work(const Contest& contest, const UpperChance& upperChance, const Step& step, std::size_t mostBytes)
        : CountedRunners{contest, upperChance, step, mostBytes},
          m_players{contest.players()},
          m_games{contest.games().size()}
    {
    }

    ChanceOutlook outlook() const
    {
        ChanceOutlook outlook{std::vector<PlayerChances>(m_players), std::vector<double>(m_games)};
        for (PlayerChances& player : outlook.players)
            player.andUpperWins.resize(m_games);
        forEachPlayer([&](std::size_t player, std::size_t runner, std::size_t runners, const auto& tree) {
            PlayerChances& chances = outlook.players[player];
            for (const auto& count : tree.counts()) {
                add(chances.all, count.together, count.all[runner]);
                for (std::size_t game = 0; game < m_games; ++game)
                    add(chances.andUpperWins[game], count.together, count.ifUpperWins[game * runners + runner]);
            }
        });
        // In every outcome the shares of the players make one.
        for (const PlayerChances& player : outlook.players)
            for (std::size_t game = 0; game < m_games; ++game)
                outlook.upperWins[game] += player.andUpperWins[game].share;
        return outlook;
    }

private:
    std::size_t m_players;
    std::size_t m_games;
};

FirstCount::FirstCount(const Contest& contest, const Step& step, std::size_t mostBytes)
    : m_work{std::make_unique<Work>(contest, step, mostBytes)}
{
}
FirstCount::~FirstCount() = default;
FirstCount::FirstCount(FirstCount&&) noexcept = default;
FirstCount& FirstCount::operator=(FirstCount&&) noexcept = default;

bool FirstCount::isTooLarge() const { return m_work->isTooLarge(); }
bool FirstCount::isDone() const { return m_work->isDone(); }
double FirstCount::fraction() const { return m_work->fraction(); }
void FirstCount::advance() { m_work->advance(); }
FirstOutlook FirstCount::outlook() const { return m_work->outlook(); }

ChanceCount::ChanceCount(const Contest& contest, const UpperChance& upperChance, const Step& step,
                         std::size_t mostBytes)
    : m_work{std::make_unique<Work>(contest, upperChance, step, mostBytes)}
{
}
ChanceCount::~ChanceCount() = default;
ChanceCount::ChanceCount(ChanceCount&&) noexcept = default;
ChanceCount& ChanceCount::operator=(ChanceCount&&) noexcept = default;

bool ChanceCount::isTooLarge() const { return m_work->isTooLarge(); }
bool ChanceCount::isDone() const { return m_work->isDone(); }
double ChanceCount::fraction() const { return m_work->fraction(); }
void ChanceCount::advance() { m_work->advance(); }
ChanceOutlook ChanceCount::outlook() const { return m_work->outlook(); }

FirstOutlook countFirsts(const Contest& contest) { return countedAll(FirstCount{contest}); }

ChanceOutlook countChances(const Contest& contest, const UpperChance& upperChance)
{
    return countedAll(ChanceCount{contest, upperChance});
}

} // namespace tallyhoop
