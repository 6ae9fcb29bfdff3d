// output/opened_pool.h - a pool as it was read, without those of whom nothing is known, and what is to be said of that.
#pragma once

#include "files/pool_files.h"
#include "pool/entry.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// A pool as it is in its files.
struct OpenedPool {
    Pool pool;                      ///< without the players of whom nothing could be read
    std::size_t missing = 0;        ///< how many those are
    std::size_t inPart = 0;         ///< how many of the others' selections could not be read whole
    bool isCancelled = false;       ///< by the person: not everybody is there
    bool unsavedResults = false;    ///< the board holds results that are not saved; these here are the saved ones
    bool isFieldDamaged = false;    ///< the setup file was not read whole, if at all
    bool areResultsDamaged = false; ///< the same of the results file
    bool isListDamaged = false;     ///< the folder was not listed whole: who is missing is not known
};

/// @returns the pool without the players of whom nothing could be read, neither cancelled nor unsaved
OpenedPool openedPool(ReadPool read);

/// @returns what of the pool was not read, such as "2 players are missing: their selections cannot be read": lines of
///          up to 75 characters, without full stops; none when all was read
std::vector<std::string> unreadInWords(const OpenedPool& opened);

} // namespace tallyhoop
