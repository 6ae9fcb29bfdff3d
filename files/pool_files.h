// files/pool_files.h - a whole pool from its folder; each file is read once.
#pragma once

#include "base/step.h"
#include "files/data_folder.h"
#include "pool/entry.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
#include <vector>

namespace tallyhoop {

/// A file that could not be read, or not whole.
struct FileTrouble {
    std::filesystem::path file;
    Failure failure;
};

/// Entries as their files were read, in the order of the list of files; what could be read of a troubled one is there.
struct ReadEntries {
    std::vector<Entry> entries;
    std::vector<FileTrouble> troubles;
};

/// Takes a selection that was read: what could be read, and the trouble if there was any.
/// @returns false when no more selections are wanted
using TakeSelection = std::function<bool(const FolderFile& file, Read<Entry>& selection)>;

/// How many files are read at a time: one on each processor.
std::size_t readersAtATime();

/// Reads every file once, several at a time, and has them taken in the order of the list by the thread of the caller.
/// @param like    a bracket in which most of the teams are expected
/// @param readers the most files that are read at a time; fewer when the system has no more threads for us
void readSelections(std::span<const FolderFile> files, const Bracket& like, const TakeSelection& take,
                    std::size_t readers = readersAtATime());

/// Reads every file once, one step of work each.
/// @param like a bracket in which most of the teams are expected
/// @returns what was read when the work was stopped
ReadEntries readEntries(std::span<const FolderFile> files, const Bracket& like, const Step& step = goOn);

/// A pool, and what of it is not whole.
struct ReadPool {
    Pool pool;
    std::vector<std::size_t> damagedEntries; ///< indices in pool.entries, ascending
    std::vector<FileTrouble> troubles;       ///< those of the pool, with the file apart; the folder's are of its list
    bool isFieldDamaged = false;
    bool isFieldWhole = true; ///< as ReadField has it: also false of a file that cannot be read, without any trouble
    bool areResultsDamaged = false;
    bool isListDamaged = false; ///< there may be entries that are not even named
};

/// Reads the field, the results and every selection of a folder, one step of work for each selection.
/// @returns what was read when the work was stopped
ReadPool readPoolInSteps(const DataFolder& folder, const Step& step);

/// The same for those who wait.
Pool readPool(const DataFolder& folder);

} // namespace tallyhoop
