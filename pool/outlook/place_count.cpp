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

/// A slice is one class of the first region, for one way to win the regions and one outcome of the last three games.
class PlaceCount::Work
{
public:
    explicit Work(const Contest& contest)
        : m_players{contest.players()},
          m_runners{allRunners(contest)},
          m_placing{sizesOf(m_runners)},
          m_regions{regionPoints<Points>(m_runners.contest)},
          m_finals{combinations(openAmong(contest.games(), finalGames()))},
          m_places(m_runners.players.size() * contest.players())
    {
        m_everybody.resize(m_runners.players.size());
        std::iota(m_everybody.begin(), m_everybody.end(), std::size_t{0});
        for (std::vector<Points>& points : m_points)
            points.resize(Lanes<Points>::padded(m_everybody.size()));
        m_ways = m_everybody.empty() ? 0 : 1;
        for (const RegionPoints<Points>& region : m_regions)
            m_ways *= region.ends.size();
    }

    bool isDone() const { return m_way == m_ways; }

    double fraction() const
    {
        if (isDone())
            return 1;
        const double ofWay = static_cast<double>(m_final) / static_cast<double>(m_finals.size());
        return (static_cast<double>(m_way) + ofWay) / static_cast<double>(m_ways);
    }

    void advance()
    {
        if (isDone())
            return;
        if (m_final == 0 && m_class == 0)
            findClasses();
        setFinal(m_finals[m_final]);
        count(0, m_class, 1);
        if (++m_class < m_classes[0].size())
            return;
        m_class = 0;
        if (++m_final < m_finals.size())
            return;
        m_final = 0;
        ++m_way;
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
    void findClasses()
    {
        std::size_t way = m_way;
        m_teams = m_runners.contest.games().known().numbers();
        for (std::size_t region = 0; region < kRegions; ++region) {
            const auto& ends = m_regions[region].ends;
            const RegionEnd<Points>& end = ends[way % ends.size()];
            way /= ends.size();
            m_classes[region].find(m_regions[region], end, m_everybody);
            m_teams[regionWinner(static_cast<int>(region))] = end.winner;
        }
    }

    void setFinal(OutcomeNumber outcome)
    {
        playAll(m_runners.contest.games(), finalGames(), outcome, m_teams);
        for (const std::size_t runner : m_everybody)
            m_points[0][runner] = m_runners.contest.points(runner, m_teams, finalGames());
    }

    /// Counts the outcomes in which a class comes true, given what is in m_points[region].
    void count(std::size_t region, std::size_t number, std::uint64_t weight)
    {
        const RegionClasses<Points, std::uint64_t>& classes = m_classes[region];
        const std::vector<Points>& before = m_points[region];
        std::vector<Points>& after = m_points[region + 1];
        const Points* more = &classes.points[number * before.size()];
        for (std::size_t i = 0; i < before.size(); ++i)
            after[i] = before[i] + more[i];
        weight *= classes.weights[number];
        if (region + 1 < kRegions) {
            for (std::size_t next = 0; next < m_classes[region + 1].size(); ++next)
                count(region + 1, next, weight);
            return;
        }
        const std::vector<std::uint32_t>& ahead = m_placing.ahead(std::span{after}.first(m_everybody.size()));
        for (std::size_t runner = 0; runner < ahead.size(); ++runner)
            m_places[runner * m_players + ahead[runner]] += weight;
    }

    std::size_t m_players;
    Runners m_runners;
    Placing m_placing;
    Regions m_regions;
    std::vector<OutcomeNumber> m_finals;
    std::vector<std::uint64_t> m_places; ///< runner by runner: of each place
    std::vector<std::size_t> m_everybody;
    std::size_t m_ways = 0; ///< to win the regions

    std::size_t m_way = 0;
    std::size_t m_final = 0;
    std::size_t m_class = 0;
    ByPosition<TeamNumber> m_teams;
    std::array<RegionClasses<Points, std::uint64_t>, kRegions> m_classes;
    std::array<std::vector<Points>, kRegions + 1> m_points; ///< of the runners: before the first region, after it, ...
};

PlaceCount::PlaceCount(const Contest& contest) : m_work{std::make_unique<Work>(contest)} {}
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
