// files/read_pool.h - the selections of a pool in memory: each file is read once per report.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "pool/pool_lines.h"
#include "pool/scoring.h"
#include "screens/screens.h"
#include "ui/work.h"

#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// One player's file as it was read.
struct PoolEntry {
    std::string fileName; ///< as listed
    SelectionLines lines{};
};

/// Every player's file, in the order of the list of files.
struct ReadPool {
    std::vector<PoolEntry> players;
    std::vector<std::filesystem::path> troubled; ///< files that could not be read, or not whole; what was read is there
};

/// Reads every file once.
/// @returns what was read when the work was cancelled
ReadPool readPool(std::span<const FolderFile> files, Work& work);

/// Scores every player against results, one step of work each.
/// @returns a score for each player in pool order, fewer when the work was cancelled; a failure when a number of a
/// player
///          does not fit 16 bits
Result<std::vector<ScoreLine>> scorePool(const ReadPool& pool, const SelectionLines& results, const Payoffs& payoffs,
                                         Work& work);

} // namespace tallyhoop
