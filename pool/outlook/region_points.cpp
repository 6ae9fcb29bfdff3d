// pool/outlook/region_points.cpp - a region played in every way.
#include "pool/outlook/region_points.h"

#include "pool/outlook/margins.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tallyhoop {

namespace {

/// Plays a region in every way, game after game, so that outcomes which begin alike are added up once as far as they
/// do.
template <class Points>
class RegionOutcomes
{
public:
    RegionOutcomes(const Contest& contest, std::span<const Position> played, const UpperChance& upperChance,
                   const Step& step)
        : m_contest{contest},
          m_played{played},
          m_upperChance{upperChance},
          m_step{step},
          m_teams{contest.games().known().numbers()},
          m_sums(played.size() + 1, std::vector<Points>(Lanes<Points>::padded(contest.players())))
    {
        for (const Position game : played) {
            auto& brought = m_brought.emplace_back();
            for (const TeamNumber winner : contest.games().candidates(game))
                brought.push_back(pointsIfWonBy(game, winner));
            brought.emplace_back(m_sums.front().size()); // for nobody
        }
    }

    std::vector<RegionEnd<Points>> ends()
    {
        play(0, 0, 1);
        return std::move(m_ends);
    }

private:
    std::vector<Points> pointsIfWonBy(Position game, TeamNumber winner) const
    {
        std::vector<Points> points(m_sums.front().size());
        for (std::size_t player = 0; player < m_contest.players(); ++player)
            if (m_contest.picks(player)[game] == winner)
                points[player] = static_cast<Points>(m_contest.payoff(game));
        return points;
    }

    /// Plays the games from `number` on, after those before it have ended.
    void play(std::size_t number, OutcomeNumber outcome, double chance)
    {
        if (number == m_played.size()) {
            addOutcome(outcome, chance);
            return;
        }
        const Position game = m_played[number];
        const std::vector<Position>& open = m_contest.games().games();
        const auto found = std::ranges::lower_bound(open, game);
        if (found == open.end() || *found != game) {
            playSide(number, Side::Upper, outcome, chance);
            return;
        }
        const auto openGame = static_cast<std::size_t>(found - open.begin());
        double ofUpper = 1;
        double ofLower = 1;
        if (m_upperChance) {
            const auto [upper, lower] = *feeders(game);
            ofUpper = m_upperChance(openGame, m_teams[upper], m_teams[lower]);
            ofLower = 1 - ofUpper;
        }
        playSide(number, Side::Upper, outcome, chance * ofUpper);
        playSide(number, Side::Lower, outcome | OutcomeNumber{1} << openGame, chance * ofLower);
    }

    void playSide(std::size_t number, Side side, OutcomeNumber outcome, double chance)
    {
        if (m_isStopped)
            return;
        const Position game = m_played[number];
        m_contest.games().play(game, side, m_teams);
        const std::vector<TeamNumber>& winners = m_contest.games().candidates(game);
        const auto winner = std::ranges::lower_bound(winners, m_teams[game]);
        addRows(m_sums[number], m_brought[number][static_cast<std::size_t>(winner - winners.begin())],
                m_sums[number + 1]);
        play(number + 1, outcome, chance);
    }

    static void addRows(const std::vector<Points>& one, const std::vector<Points>& other, std::vector<Points>& sums)
    {
        using Vector = typename Lanes<Points>::Vector;
        for (std::size_t i = 0; i < sums.size(); i += Lanes<Points>::kCount) {
            Vector sum;
            Vector more;
            std::memcpy(&sum, &one[i], sizeof sum);
            std::memcpy(&more, &other[i], sizeof more);
            sum += more;
            std::memcpy(&sums[i], &sum, sizeof sum);
        }
    }

    void addOutcome(OutcomeNumber outcome, double chance)
    {
        const TeamNumber winner = m_teams[m_played.back()];
        auto end = std::ranges::find(m_ends, winner, &RegionEnd<Points>::winner);
        if (end == m_ends.end()) {
            end = m_ends.insert(end, RegionEnd<Points>{});
            end->winner = winner;
        }
        end->outcomes.push_back(outcome);
        end->chances.push_back(chance);
        end->points.insert(end->points.end(), m_sums.back().begin(), m_sums.back().end());
        constexpr std::size_t kOutcomesOfAStep = 64;
        m_isStopped = end->outcomes.size() % kOutcomesOfAStep == 0 && !m_step();
    }

    const Contest& m_contest;
    std::span<const Position> m_played;
    const UpperChance& m_upperChance;
    const Step& m_step;
    ByPosition<TeamNumber> m_teams;
    std::vector<std::vector<std::vector<Points>>> m_brought; ///< by game and candidate, nobody last: a row
    std::vector<std::vector<Points>> m_sums;                 ///< rows: of the first 0, 1, ... games
    std::vector<RegionEnd<Points>> m_ends;
    bool m_isStopped = false;
};

} // namespace

template <class Points>
std::array<RegionPoints<Points>, kRegions> regionPoints(const Contest& contest, const UpperChance& upperChance,
                                                        const Step& step)
{
    std::array<RegionPoints<Points>, kRegions> regions;
    for (int number = 0; number < kRegions; ++number) {
        RegionPoints<Points>& region = regions.at(static_cast<std::size_t>(number));
        const std::span<const Position> played = gamesOfRegion(number);
        region.games = openAmong(contest.games(), played);
        region.ends = RegionOutcomes<Points>{contest, played, upperChance, step}.ends();
    }
    return regions;
}

template <class Points>
void addLeads(const Contest& contest, std::array<RegionPoints<Points>, kRegions>& regions, const Step& step)
{
    const std::size_t row = Lanes<Points>::padded(contest.players());
    Margins margins{contest};
    for (std::size_t leader = 0; leader < contest.players() && step(); ++leader) {
        margins.findLeads(leader);
        for (int region = 0; region < kRegions; ++region) {
            const std::vector<TeamNumber>& winners = contest.games().candidates(regionWinner(region));
            for (RegionEnd<Points>& end : regions.at(static_cast<std::size_t>(region)).ends) {
                const auto candidate = std::ranges::lower_bound(winners, end.winner) - winners.begin();
                const auto leads = margins.at(regionWinner(region), static_cast<std::size_t>(candidate));
                end.leads.resize(row * contest.players());
                std::ranges::transform(leads, end.leads.begin() + static_cast<std::ptrdiff_t>(row * leader),
                                       [](std::int32_t lead) { return static_cast<Points>(lead); });
            }
        }
    }
}

template std::array<RegionPoints<std::int16_t>, kRegions> regionPoints(const Contest&, const UpperChance&, const Step&);
template std::array<RegionPoints<std::int32_t>, kRegions> regionPoints(const Contest&, const UpperChance&, const Step&);

template void addLeads(const Contest&, std::array<RegionPoints<std::int16_t>, kRegions>&, const Step&);
template void addLeads(const Contest&, std::array<RegionPoints<std::int32_t>, kRegions>&, const Step&);

double playAll(const OpenGames& games, std::span<const Position> played, OutcomeNumber outcome,
               ByPosition<TeamNumber>& teams, const UpperChance& upperChance)
{
    const std::vector<Position>& open = games.games();
    auto next = std::ranges::lower_bound(open, played.front());
    double chance = 1;
    for (const Position game : played) {
        if (next == open.end() || *next != game) {
            games.play(game, Side::Upper, teams);
            continue;
        }
        const auto openGame = static_cast<std::size_t>(next++ - open.begin());
        const Side side = sideOf(outcome, openGame);
        if (upperChance) {
            const auto [upper, lower] = *feeders(game);
            const double ofUpper = upperChance(openGame, teams[upper], teams[lower]);
            chance *= side == Side::Upper ? ofUpper : 1 - ofUpper;
        }
        games.play(game, side, teams);
    }
    return chance;
}

std::vector<std::size_t> openAmong(const OpenGames& games, std::span<const Position> positions)
{
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < games.size(); ++i)
        if (positions.front() <= games.games()[i] && games.games()[i] <= positions.back())
            open.push_back(i);
    return open;
}

std::vector<OutcomeNumber> combinations(const std::vector<std::size_t>& openGames)
{
    std::vector<OutcomeNumber> all{0};
    for (const std::size_t game : openGames) {
        const std::size_t sofar = all.size();
        for (std::size_t i = 0; i < sofar; ++i)
            all.push_back(all[i] | OutcomeNumber{1} << game);
    }
    return all;
}

} // namespace tallyhoop
