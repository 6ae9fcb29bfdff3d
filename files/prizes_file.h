// files/prizes_file.h - PRIZES.CSV: the entry fee, the prizes, and who has paid.
//
// A table for a spreadsheet, Windows-1252, one thing in a row: what, which, how much.
//     Item,Which,Value
//     Entry fee,,10.00
//     Kept back,,5 %
//     Ties,,Nearest               or "Not over", "Share"
//     Prize,1,60 %                the place
//     Paid,Smith_JS.THC,Yes       the selection; "No" is as good as no row
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "pool/prizes/prize_table.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// What the file holds.
struct Prizes {
    PrizeTable table{};
    std::vector<std::string> paid{}; ///< bare names of the selections of those who have paid

    friend bool operator==(const Prizes&, const Prizes&) = default;
};

/// Reads the file's bytes. The trouble names the file and the first row that is not understood; what could be read is
/// there all the same. Things may be missing, and in any order; names of things in any case.
/// @param bytes also UTF-8 with a byte order mark, and separated by semicolons, as spreadsheets may save it
Read<Prizes> prizesOf(std::string_view bytes);

/// @returns everything that is wrong with the file's bytes, in the order of the rows, each with the file's name; empty
///          = nothing
std::vector<Failure> prizesFaults(std::string_view bytes);

/// Reads the folder's file; without one nobody pays and nobody wins anything.
Read<Prizes> readPrizes(const DataFolder& folder);

/// @returns everything that is wrong with the folder's file; nothing when there is none
std::vector<Failure> readPrizesFaults(const DataFolder& folder);

/// @returns the bytes of the file
std::string prizesFile(const Prizes& prizes);

} // namespace tallyhoop
