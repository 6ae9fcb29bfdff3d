// demo/sample_pool.h - the files of the sample pool: the tournament of 2000 with four invented players.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "files/player_names_file.h"
#include "pool/pool_lines.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::demo {

/// An invented player: the entry in the player list, and the selection in the file of `fileName`.
struct SamplePlayer {
    std::string fileName;   ///< bare name, as the file is called
    SelectionLines lines{}; ///< picks, initials, name and tie-breaker
    PlayerRecord record;    ///< the file's name in capitals, as the program enters it
};

/// A file to be written: bare name and content.
struct SampleFile {
    std::string name;
    std::string bytes;
};

/// The field, finalized.
SetupLines sampleSetup();

/// The results up to and including the regional finals.
SelectionLines sampleResults();

/// In the alphabetical order of the player list.
std::array<SamplePlayer, 4> samplePlayers();

/// Every file of the pool in the order in which they are to be written: the one that switches demo mode on comes last.
std::vector<SampleFile> sampleFiles();

/// @param name in any case
/// @returns true when the sample pool has a file of this name with this very content
bool isSampleFile(std::string_view name, std::string_view bytes);

/// Writes the sample pool into a folder, each file whole.
/// @returns a failure, with nothing changed in the folder, when it already holds a pool: one of the files is there,
///          other than an empty player list; or when a file cannot be written
Result<Done> installSamplePool(const DataFolder& folder);

} // namespace tallyhoop::demo
