// intake/importing.h - writes what is ticked in a review.
#pragma once

#include "base/step.h"
#include "intake/review.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// An entry that was ticked and not written, and why.
struct NotWritten {
    std::size_t row = 0; ///< of the review
    std::string reason;  ///< a sentence
};

struct ImportOutcome {
    std::size_t created = 0;
    std::size_t replaced = 0;
    std::size_t unchanged = 0; ///< ticked and identical to what is there
    std::vector<NotWritten> notWritten;
    std::size_t playersAdded = 0;
    std::vector<std::string> playersAlike;          ///< those added who look like another one, as the list cuts both
    std::vector<std::string> playersWithoutAddress; ///< those added whose address does not fit into the list
    std::string playerListTrouble;                  ///< why the list is as it was; empty = no trouble
    std::string summary; ///< all of this as text, lines separated by CR LF, none after the last
};

/// How many files are written at a time: each waits for the disk, and the disk takes many in one go.
inline constexpr std::size_t kWritersAtATime = 16;

/// Writes every ticked entry, whole or not at all each, and puts those players into the player list that are not in it.
/// A file that was changed since the review stays as it is; of several ticked for one file only the latest is written.
/// A faulty player list stays as it is. One step of work for each entry.
/// @returns what was done; when the work was stopped, the rest is among what was not written
ImportOutcome importTicked(const Review& review, const DataFolder& folder, const Step& step = goOn,
                           std::size_t writers = kWritersAtATime);

} // namespace tallyhoop
