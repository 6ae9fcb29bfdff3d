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

} // namespace tallyhoop
