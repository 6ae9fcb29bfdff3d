// pool/prizes/final_places.h - who ends where, ties told apart by the predicted total of the final, and who wins what.
#pragma once

#include "pool/prizes/prize_table.h"
#include "pool/scoring.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tallyhoop {

/// @returns whether there is a tie-breaker to go by
bool hasPredicted(const PlayerScore& score);

/// A player's place at the end.
struct FinalPlace {
    std::size_t player = 0; ///< index of the score
    std::size_t place = 1;  ///< one more than the number of players ahead
    std::size_t sharedBy = 1;
    bool isLast = false; ///< nobody comes after this place, and somebody before it

    friend bool operator==(const FinalPlace&, const FinalPlace&) = default;
};

/// Puts players into the order of their places: by points, then by the rule. Who has predicted nothing comes after
/// those who have; players that no rule tells apart share their place and stay in the order of their scores.
/// @param total of the final's points; nothing = not known, and equal points share their place
std::vector<FinalPlace> finalPlaces(std::span<const PlayerScore> scores, TieRule rule, std::optional<int> total);

/// Pays out the prizes: players who share a place share the prizes of all places that they take, and the cents that
/// cannot be split go to those who are listed first.
/// @param prizes for places 1, 2, ...
/// @returns one for each of the places; their sum is that of the prizes when there are no more prizes than players
std::vector<Money> payouts(std::span<const FinalPlace> places, std::span<const Money> prizes);

} // namespace tallyhoop
