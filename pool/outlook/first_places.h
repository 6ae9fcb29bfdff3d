// pool/outlook/first_places.h - how often a player ends first: counts over outcomes, as whole numbers.
#pragma once

#include "pool/outlook/open_games.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tallyhoop {

/// Outcomes in which so many players are first together.
struct SharedFirsts {
    std::size_t together = 2; ///< 2 or more
    std::uint64_t outcomes = 0;

    friend bool operator==(const SharedFirsts&, const SharedFirsts&) = default;
};

/// In how many of some outcomes a player is first: has as many points as anybody. Exact counts.
struct FirstPlaces {
    std::uint64_t alone = 0;
    std::vector<SharedFirsts> shared; ///< by how many share it, ascending; only those that come true

    /// The outcomes in which the player is first, alone or together.
    std::uint64_t outcomes() const;

    /// The player's share of first place, in outcomes: one that k players share counts 1/k.
    double share() const;

    /// Counts more outcomes in which so many players are first together, the player being one of them.
    /// @param together 1 or more
    void add(std::size_t together, std::uint64_t outcomes);

    friend bool operator==(const FirstPlaces&, const FirstPlaces&) = default;
};

/// @returns what is left of `all` without `part`, which is in it
FirstPlaces without(const FirstPlaces& all, const FirstPlaces& part);

/// The first places of one player.
struct PlayerFirsts {
    FirstPlaces all;                      ///< of all outcomes
    std::vector<FirstPlaces> ifUpperWins; ///< for each open game: of the outcomes in which its upper side wins

    /// An outcome in which the player is first, alone or together; nothing when there is none.
    std::optional<OutcomeNumber> witness;

    /// @returns the first places of the outcomes, half of all, in which this side wins an open game
    /// @param openGame index in OpenGames::games()
    FirstPlaces given(std::size_t openGame, Side side) const;
};

/// The first places of every player over all outcomes. For each k the sum over the players of those shared by k is a
/// multiple of k; divided by it and added up, with those alone, they make the number of outcomes, as long as there are
/// players.
struct FirstOutlook {
    std::uint64_t outcomes = 0;
    std::vector<PlayerFirsts> players; ///< in the order of the contest
};

/// How likely a player is to be first, 0..1. Chances, not counts: rounded like all calculations with them.
struct FirstChances {
    double alone = 0;
    double together = 0; ///< with one or more others
    double share = 0;    ///< of first place: where k players share it, each has 1/k of the chance

    FirstChances& operator+=(const FirstChances& more)
    {
        alone += more.alone;
        together += more.together;
        share += more.share;
        return *this;
    }
    FirstChances& operator/=(double by);

    friend bool operator==(const FirstChances&, const FirstChances&) = default;
};

/// The chances of one player.
struct PlayerChances {
    FirstChances all;
    std::vector<FirstChances> andUpperWins; ///< for each open game: that this comes true and its upper side wins
};

/// The chances of every player to be first.
struct ChanceOutlook {
    std::vector<PlayerChances> players; ///< in the order of the contest
    std::vector<double> upperWins;      ///< for each open game: that its upper side wins; 0 without players

    /// @returns a player's chances once this side has won an open game; those at all when it has no chance to win
    FirstChances given(std::size_t player, std::size_t openGame, Side side) const;
};

} // namespace tallyhoop
