// pool/outlook/place_count.cpp - every outcome's points, from most to fewest.
#include "pool/outlook/place_count.h"

#include <algorithm>

namespace tallyhoop {

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

class PlaceCount::Work
{
public:
    explicit Work(const Contest& contest) : m_contest{contest}, m_places(contest.players()), m_points(contest.players())
    {
        for (PlayerPlaces& player : m_places)
            player.outcomes.resize(contest.players());
    }

    bool isDone() const { return m_next == m_contest.games().outcomes(); }
    double fraction() const { return static_cast<double>(m_next) / static_cast<double>(m_contest.games().outcomes()); }

    void advance()
    {
        for (int i = 0; i < 64 && !isDone(); ++i)
            count(m_next++);
    }

    const std::vector<PlayerPlaces>& places() const { return m_places; }

private:
    void count(OutcomeNumber outcome)
    {
        const ByPosition<TeamNumber> teams = m_contest.games().outcomeNumbers(outcome);
        for (std::size_t player = 0; player < m_points.size(); ++player)
            m_points[player] = m_contest.points(player, teams);
        std::vector<std::int32_t> sorted = m_points;
        std::ranges::sort(sorted, std::greater{});
        for (std::size_t player = 0; player < m_points.size(); ++player) {
            const auto place = std::ranges::lower_bound(sorted, m_points[player], std::greater{}) - sorted.begin();
            ++m_places[player].outcomes[static_cast<std::size_t>(place)];
        }
    }

    Contest m_contest;
    std::vector<PlayerPlaces> m_places;
    OutcomeNumber m_next = 0;
    std::vector<std::int32_t> m_points;
};

PlaceCount::PlaceCount(const Contest& contest) : m_work{std::make_unique<Work>(contest)} {}
PlaceCount::~PlaceCount() = default;
PlaceCount::PlaceCount(PlaceCount&&) noexcept = default;
PlaceCount& PlaceCount::operator=(PlaceCount&&) noexcept = default;

bool PlaceCount::isDone() const { return m_work->isDone(); }
double PlaceCount::fraction() const { return m_work->fraction(); }
void PlaceCount::advance() { m_work->advance(); }
std::vector<PlayerPlaces> PlaceCount::places() const { return m_work->places(); }

} // namespace tallyhoop
