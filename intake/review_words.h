// intake/review_words.h - what the review says of a row, and of all of them.
#pragma once

#include "intake/players_here.h"
#include "intake/review.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @param rows all rows of the review
/// @returns its warning, what would happen, and what is special about it: "Replaces (4 picks differ). Incomplete: 60 of
///          63 picks."
std::string wordsOf(const ReviewRow& row, const std::vector<ReviewRow>& rows);

/// @returns the player to add, without an address
NewPlayer playerOf(const ReviewRow& row);

/// Anybody can write anybody's name, and anybody's address, into a form. Nothing for an entry that would change
/// nothing.
/// @returns a sentence when the entry's address, or that of its mail, is not the player's in the player list; otherwise
///          empty
std::string otherAddressWarning(const ReviewRow& row, const PlayersHere& players);

/// A selection that was saved under another name on the board stays beside a new one: the player would be in the pool
/// twice.
/// @returns a sentence when the player of an entry that is new, or identical and would add the player, is listed with
///          another file; otherwise empty
std::string otherFileWarning(const ReviewRow& row, const PlayersHere& players);

/// @returns "50 entries: 38 new, 2 replacing others, 10 refused.", and a sentence each when they are late, and when no
///          player can be added
std::string summaryOf(const Review& review);

} // namespace tallyhoop
