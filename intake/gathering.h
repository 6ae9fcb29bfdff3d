// intake/gathering.h - reads what a person has chosen to import, and no more than is sensible.
#pragma once

#include "base/step.h"
#include "intake/entry_readers.h"

#include <filesystem>
#include <span>
#include <vector>

namespace tallyhoop {

/// Reads files, and of each folder among them the files of the kinds that are read, those of its subfolders not
/// included. One step of work for each file.
/// @returns the entries in the order of the files, those of a folder by name; a refusal for each file that cannot be
///          read or is too large, and one for all that are too many. What was read when the work was stopped.
std::vector<HandedIn> gatherEntries(std::span<const std::filesystem::path> chosen, const EntryReaders& readers,
                                    const Step& step = goOn);

} // namespace tallyhoop
