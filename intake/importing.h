// intake/importing.h - writes what is ticked in a review.
#pragma once

#include "base/step.h"
#include "intake/review.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop {

/// An entry that was ticked and not written, and why.
struct NotWritten {
    std::size_t row = 0; ///< of the review
    std::string reason;  ///< a sentence
};

/// Where it is kept what a row has replaced that was no whole selection.
struct Kept {
    std::size_t row = 0;          ///< of the review
    std::filesystem::path folder; ///< a new subfolder, such as "Backup 2026-11-20 101530"
};

struct ImportOutcome {
    std::size_t created = 0;
    std::size_t replaced = 0;
    std::size_t unchanged = 0; ///< ticked and identical to what is there
    std::vector<NotWritten> notWritten;
    std::vector<Kept> kept;
    std::size_t playersAdded = 0;
    std::vector<std::string> playersAlike;          ///< those added who look like another one, as the list cuts both
    std::vector<std::string> playersWithSender;     ///< those added with the address of their mail: theirs does not fit
    std::vector<std::string> playersWithoutAddress; ///< those added whose address does not fit into the list
    std::string playerListTrouble;                  ///< why the list is as it was; empty = no trouble
    std::string summary; ///< all of this as text, lines separated by CR LF, none after the last
};

/// How many files are written at a time: each waits for the disk, and the disk takes many in one go.
inline constexpr std::size_t kWritersAtATime = 16;

/// Writes every ticked entry, whole or not at all each, and puts those players into the player list that are not in it.
/// A file that was changed since the review stays as it is; one that is no whole selection is kept in a subfolder
/// before it is replaced, and stays as it is when that fails; of several ticked for one file only the latest is
/// written. A faulty player list stays as it is. An address that does not fit into it is replaced by that of the mail's
/// sender. One step of work for each entry.
/// @param now local time, for the subfolder's name
/// @returns what was done; when the work was stopped, the rest is among what was not written
ImportOutcome importTicked(const Review& review, const DataFolder& folder, std::chrono::local_seconds now,
                           const Step& step = goOn, std::size_t writers = kWritersAtATime);

} // namespace tallyhoop
