// pool/outlook/prospects.h - clinched, alive or out: what is certain about every player, with proof, at any stage.
#pragma once

#include "base/step.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"
#include "pool/outlook/place_count.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tallyhoop {

/// What can become of a player. First means: nobody has more points; it may be shared.
enum class Prospect {
    Clinched, ///< first in every outcome
    Alive,    ///< first in at least one outcome, but not in every one
    Out,      ///< first in no outcome
    Open,     ///< not proven either way
};

/// A place of which it is only known that it lies between two; 1 = first. It is known exactly when they are the same.
struct PlaceBetween {
    std::size_t least = 1;
    std::size_t most = 1;

    bool isExact() const { return least == most; }
    friend bool operator==(const PlaceBetween&, const PlaceBetween&) = default;
};

/// What is certain about one player, and why.
struct PlayerProspect {
    Prospect prospect = Prospect::Open;
    std::optional<OutcomeNumber> witness; ///< Alive and Clinched: an outcome in which the player is first
    std::optional<std::size_t> rival;     ///< Out: the player who is ahead in every outcome; nothing = all were counted
    PlaceBetween best;                    ///< the best place of all outcomes
    PlaceBetween worst;                   ///< the worst place of all outcomes
};

/// @returns nothing known of anybody: each one Open, with every place possible
std::vector<PlayerProspect> unknownProspects(std::size_t players);

/// Finds what can be proven without counting, for any number of open games. Clinched is always found. Out is found
/// where a single rival is ahead in every outcome. Alive is found where a search comes upon a witness; it nearly always
/// does where there is one. The places are exact where the limits that any two players set each other are reached.
/// @param step called two times for each player; after a stop what is not proven by then stays Open, with every place
///             possible that is not excluded by then
/// @returns one for each player, in the order of the contest
std::vector<PlayerProspect> findProspects(const Contest& contest, const Step& step = goOn);

/// Adds what a count has found: afterwards none is Open.
void addCount(std::vector<PlayerProspect>& prospects, const FirstOutlook& counted);

/// Adds what a count has found: afterwards every best and worst place is exact.
void addCount(std::vector<PlayerProspect>& prospects, std::span<const PlayerPlaces> counted);

} // namespace tallyhoop
