// intake/review_words.h - what the review says of a row, and of all of them.
#pragma once

#include "intake/plain_text.h"
#include "intake/players_here.h"
#include "intake/review.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @param rows all rows of the review
/// @returns what would happen, and what is special about it: "Replaces (4 picks differ). Incomplete: 60 of 63 picks."
std::string wordsOf(const ReviewRow& row, const std::vector<ReviewRow>& rows, const PlayersHere& players);

/// @returns "50 entries: 38 new, 2 replacing others, 10 refused.", and a sentence when it is late
std::string summaryOf(const Review& review);

} // namespace tallyhoop
