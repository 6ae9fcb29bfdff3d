// pool/outlook/place_count.cpp - the points of all players in each outcome, and how many of them have more.
#include "pool/outlook/place_count.h"

#include "pool/outlook/region_classes.h"
#include "pool/outlook/runners.h"

#include <algorithm>
#include <numeric>

namespace tallyhoop {

namespace {

using Points = std::int32_t;
using Regions = std::array<RegionPoints<Points>, kRegions>;

constexpr std::size_t kWorkOfASlice = 1'000'000; ///< points looked at: about four milliseconds
constexpr std::size_t kWorkOfAnOutcome = 100;    ///< besides everybody's points

/// Finds how many have more points than each one. Points are mostly close together: then it is enough to count how many
/// have each number of points.
class Placing
{
public:
    explicit Placing(std::vector<std::uint32_t> players) : m_players{std::move(players)} {}

    /// @param points one for each runner, one or more
    /// @returns for each runner the players who have more points
    const std::vector<std::uint32_t>& ahead(std::span<const Points> points)
    {
        const auto [least, most] = std::ranges::minmax(points);
        if (static_cast<std::size_t>(most - least) < 1024 + 4 * points.size())
            countPoints(points, least, most);
        else
            sortPoints(points);
        return m_ahead;
    }

private:
    void countPoints(std::span<const Points> points, Points least, Points most)
    {
        m_counts.assign(static_cast<std::size_t>(most - least) + 1, 0);
        for (std::size_t i = 0; i < points.size(); ++i)
            m_counts[static_cast<std::size_t>(most - points[i])] += m_players[i];
        std::exclusive_scan(m_counts.begin(), m_counts.end(), m_counts.begin(), 0U);
        m_ahead.resize(points.size());
        for (std::size_t i = 0; i < points.size(); ++i)
            m_ahead[i] = m_counts[static_cast<std::size_t>(most - points[i])];
    }

    void sortPoints(std::span<const Points> points)
    {
        m_order.resize(points.size());
        std::iota(m_order.begin(), m_order.end(), std::size_t{0});
        std::ranges::sort(m_order, std::greater{}, [&](std::size_t i) { return points[i]; });
        m_ahead.resize(points.size());
        std::uint32_t before = 0;
        for (std::size_t i = 0; i < m_order.size();) {
            std::uint32_t same = 0;
            std::size_t end = i;
            for (; end < m_order.size() && points[m_order[end]] == points[m_order[i]]; ++end) {
                m_ahead[m_order[end]] = before;
                same += m_players[m_order[end]];
            }
            before += same;
            i = end;
        }
    }

    std::vector<std::uint32_t> m_players; ///< how many each runner stands for
    std::vector<std::uint32_t> m_counts;
    std::vector<std::size_t> m_order;
    std::vector<std::uint32_t> m_ahead;
};

std::vector<std::uint32_t> sizesOf(const Runners& runners)
{
    std::vector<std::uint32_t> sizes;
    for (const std::vector<std::size_t>& players : runners.players)
        sizes.push_back(static_cast<std::uint32_t>(players.size()));
    return sizes;
}

} // namespace

std::size_t PlayerPlaces::best() const
{
    const auto found = std::ranges::find_if(outcomes, [](std::uint64_t count) { return count > 0; });
    return static_cast<std::size_t>(found - outcomes.begin()) + 1;
}

std::size_t PlayerPlaces::worst() const
{
    const auto found = std::find_if(outcomes.rbegin(), outcomes.rend(), [](std::uint64_t count) { return count > 0; });
    return static_cast<std::size_t>(outcomes.rend() - found);
}

/// Outcome by outcome of the classes, for each way to win the regions and the last three games.
class PlaceCount::Work
{
public:
    Work(const Contest& contest, const Step& step)
        : m_players{contest.players()},
          m_runners{allRunners(contest)},
          m_placing{sizesOf(m_runners)},
          m_regions{regionPoints<Points>(m_runners.contest, {}, step)},
          m_finals{combinations(openAmong(contest.games(), finalGames()))},
          m_places(m_runners.players.size() * contest.players())
    {
        m_everybody.resize(m_runners.players.size());
        std::iota(m_everybody.begin(), m_everybody.end(), std::size_t{0});
        for (std::vector<Points>& points : m_points)
            points.resize(Lanes<Points>::padded(m_everybody.size()));
        if (m_everybody.empty() || !step())
            return;
        m_ways = m_finals.size();
        for (const RegionPoints<Points>& region : m_regions)
            m_ways *= region.ends.size();
    }

    bool isDone() const { return m_way == m_ways; }

    double fraction() const
    {
        if (isDone())
            return 1;
        double done = 0;
        if (m_isUnderWay) {
            double part = 1;
            for (std::size_t region = 0; region < kRegions; ++region) {
                part /= static_cast<double>(m_classes[region].size());
                done += part * static_cast<double>(m_chosen[region]);
            }
        }
        return (static_cast<double>(m_way) + done) / static_cast<double>(m_ways);
    }

    void advance()
    {
        for (std::size_t work = 0; work < kWorkOfASlice && !isDone();)
            work += m_isUnderWay ? place() : begin();
    }

    std::vector<PlayerPlaces> places() const
    {
        std::vector<PlayerPlaces> places(m_players);
        for (std::size_t runner = 0; runner < m_everybody.size(); ++runner)
            for (const std::size_t player : m_runners.players[runner]) {
                const auto first = m_places.begin() + static_cast<std::ptrdiff_t>(runner * m_players);
                places[player].outcomes.assign(first, first + static_cast<std::ptrdiff_t>(m_players));
            }
        return places;
    }

private:
    /// @param way number of the ways to win the regions
    void findClasses(std::size_t way)
    {
        m_teams = m_runners.contest.games().known().numbers();
        for (std::size_t region = 0; region < kRegions; ++region) {
            const auto& ends = m_regions[region].ends;
            const RegionEnd<Points>& end = ends[way % ends.size()];
            way /= ends.size();
            m_classes[region].find(m_regions[region], end, m_everybody);
            m_teams[regionWinner(static_cast<int>(region))] = end.winner;
        }
    }

    /// Begins with one way to win the regions and the last three games.
    /// @returns about how many numbers it was necessary to look at
    std::size_t begin()
    {
        const bool isFirstFinal = m_way % m_finals.size() == 0;
        if (isFirstFinal)
            findClasses(m_way / m_finals.size());
        playAll(m_runners.contest.games(), finalGames(), m_finals[m_way % m_finals.size()], m_teams);
        for (const std::size_t runner : m_everybody)
            m_points[0][runner] = m_runners.contest.points(runner, m_teams, finalGames());
        m_chosen.fill(0);
        addPoints(0);
        m_isUnderWay = true;
        std::size_t outcomes = kRegions;
        for (const auto& region : m_regions)
            outcomes += isFirstFinal ? region.ends.front().outcomes.size() : 0;
        return outcomes * m_points[0].size();
    }

    /// Adds the points of the classes chosen, from a region on.
    void addPoints(std::size_t region)
    {
        for (; region < kRegions; ++region) {
            const std::vector<Points>& before = m_points[region];
            std::vector<Points>& after = m_points[region + 1];
            const Points* more = &m_classes[region].points[m_chosen[region] * before.size()];
            for (std::size_t i = 0; i < before.size(); ++i)
                after[i] = before[i] + more[i];
            m_weights[region + 1] = m_weights[region] * m_classes[region].weights[m_chosen[region]];
        }
    }

    /// Counts the outcomes in which the classes chosen come true, and chooses the next ones.
    std::size_t place()
    {
        const std::vector<std::uint32_t>& ahead = m_placing.ahead(std::span{m_points.back()}.first(m_everybody.size()));
        for (std::size_t runner = 0; runner < ahead.size(); ++runner)
            m_places[runner * m_players + ahead[runner]] += m_weights.back();
        std::size_t region = kRegions;
        while (region > 0 && ++m_chosen[region - 1] == m_classes[region - 1].size())
            m_chosen[--region] = 0;
        m_isUnderWay = region > 0;
        if (m_isUnderWay)
            addPoints(region - 1);
        else
            ++m_way;
        return kWorkOfAnOutcome + m_points[0].size();
    }

    std::size_t m_players;
    Runners m_runners;
    Placing m_placing;
    Regions m_regions;
    std::vector<OutcomeNumber> m_finals;
    std::vector<std::uint64_t> m_places; ///< runner by runner: of each place
    std::vector<std::size_t> m_everybody;
    std::size_t m_ways = 0; ///< to win the regions and the last three games

    std::size_t m_way = 0;
    bool m_isUnderWay = false;                    ///< some of this way's outcomes may be counted
    std::array<std::size_t, kRegions> m_chosen{}; ///< by region: the class counted next
    ByPosition<TeamNumber> m_teams;
    std::array<RegionClasses<Points, std::uint64_t>, kRegions> m_classes;
    std::array<std::vector<Points>, kRegions + 1> m_points; ///< of the runners: before the first region, after it, ...
    std::array<std::uint64_t, kRegions + 1> m_weights{1};   ///< likewise: in how many outcomes these are made
};

PlaceCount::PlaceCount(const Contest& contest, const Step& step) : m_work{std::make_unique<Work>(contest, step)} {}
PlaceCount::~PlaceCount() = default;
PlaceCount::PlaceCount(PlaceCount&&) noexcept = default;
PlaceCount& PlaceCount::operator=(PlaceCount&&) noexcept = default;

bool PlaceCount::isDone() const { return m_work->isDone(); }
double PlaceCount::fraction() const { return m_work->fraction(); }
void PlaceCount::advance() { m_work->advance(); }
std::vector<PlayerPlaces> PlaceCount::places() const { return m_work->places(); }

std::vector<PlayerPlaces> countPlaces(const Contest& contest)
{
    PlaceCount count{contest};
    while (!count.isDone())
        count.advance();
    return count.places();
}

} // namespace tallyhoop
