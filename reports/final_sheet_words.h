// reports/final_sheet_words.h - what the final sheet says in sentences, on paper and on a page.
#pragma once

#include "reports/final_sheet.h"

#include <string>
#include <vector>

namespace tallyhoop {

/// @returns what is above the rows: whether it is final, how ties are told apart, where the money goes; a line each
std::vector<std::string> finalSheetNotes(const FinalSheet& sheet);

/// @returns such as "2", and "2=" for a place that is shared
std::string placeInWords(const FinalRow& row);

/// @returns the amount; empty when there is none
std::string prizeInWords(const FinalRow& row);

/// @returns such as "+4"; empty when it is not known
std::string offInWords(const FinalRow& row);

/// Two players with equal points, and which totals of the final put which of them ahead.
struct PairInWords {
    std::string place;
    std::string lower;  ///< the player with the lower prediction, such as "AB, Adams (150)"
    std::string upTo;   ///< the highest total that has him ahead; "any" = all; empty = none
    std::string tiedAt; ///< the total that leaves them tied; "any" = all; empty = none
    std::string higher; ///< the other player
    std::string from;   ///< the lowest total that has the other one ahead; empty = none
};

/// @returns the rows of the pairs, in their order
std::vector<PairInWords> pairsInWords(const FinalSheet& sheet);

/// @returns what is above those rows, a heading first; none without pairs
std::vector<std::string> pairsNotes(const FinalSheet& sheet);

} // namespace tallyhoop
