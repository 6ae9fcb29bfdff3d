// pool/outlook/place_count.h - counts every outcome of the open games: in how many each player ends at each place.
#pragma once

#include "base/step.h"
#include "pool/outlook/contest.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tallyhoop {

/// As many open games can be counted for every place while people wait.
inline constexpr std::size_t kMostPlacedGames = 24;

/// For as many players the places can be counted with little memory: each has a count for every place, and the counts
/// are there twice when they are told. Those of 2,000 players take 2 * 32 MB.
inline constexpr std::size_t kMostPlacedPlayers = 2'000;

/// The places of one player over all outcomes. A player's place is one more than the number of players who have more
/// points, so players with the same points share the better place.
struct PlayerPlaces {
    std::vector<std::uint64_t> outcomes; ///< [i]: those in which the player is at place i + 1; one for each player

    /// @returns the best and the worst place of all outcomes, 1 = first
    std::size_t best() const;
    std::size_t worst() const;

    friend bool operator==(const PlayerPlaces&, const PlayerPlaces&) = default;
};

/// Counts in slices, as FirstCount does.
class PlaceCount
{
public:
    /// @param step as for FirstCount
    /// @pre the contest has at most 40 open games; more than kMostPlacedGames take minutes
    explicit PlaceCount(const Contest& contest, const Step& step = goOn);
    ~PlaceCount();
    PlaceCount(PlaceCount&&) noexcept;
    PlaceCount& operator=(PlaceCount&&) noexcept;
    PlaceCount(const PlaceCount&) = delete;
    PlaceCount& operator=(const PlaceCount&) = delete;

    bool isDone() const;

    /// How much is done, 0..1, growing steadily.
    double fraction() const;

    /// Does one slice of the work: some milliseconds, however many players there are. Nothing when it is done.
    void advance();

    /// One for each player, in the order of the contest. @pre isDone()
    std::vector<PlayerPlaces> places() const;

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

/// Counts all at once, for few open games.
std::vector<PlayerPlaces> countPlaces(const Contest& contest);

} // namespace tallyhoop
