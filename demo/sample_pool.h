// demo/sample_pool.h - the files of the sample pool: the tournament of 2000 with four invented players.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "files/player_names_file.h"
#include "pool/entry.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::demo {

/// The sample players' selection files: few, fixed, and unlikely names for real players.
inline constexpr std::array<const char*, 4> kSelectionFiles = {"Demo Favorite_DF.THC", "Demo Halfway_DH.THC",
                                                               "Demo Longshot_DL.THC", "Demo Prophet_DP.THC"};

/// An invented player: the selection, and the record in the player list.
struct SamplePlayer {
    Entry entry;         ///< its file name is the bare name of the file
    PlayerRecord record; ///< the file's name in capitals, as the program enters it
};

/// A file to be written: bare name and content.
struct SampleFile {
    std::string name;
    std::string bytes;
};

/// The field, finalized.
Field sampleField();

/// The results up to and including the regional finals.
Entry sampleResults();

/// In the alphabetical order of the player list.
std::array<SamplePlayer, 4> samplePlayers();

/// Every file of the pool in the order in which they are to be written: the one that switches demo mode on comes last.
std::vector<SampleFile> sampleFiles();

/// @param name in any case
/// @returns true when the sample pool has a file of this name with this very content
bool isSampleFile(std::string_view name, std::string_view bytes);

/// Writes the sample pool into a folder, each file whole.
/// @returns a failure, with nothing changed in the folder, when it already holds a pool: one of the files is there,
///          other than an empty player list, with another content; or when a file cannot be written
Result<Done> installSamplePool(const DataFolder& folder);

} // namespace tallyhoop::demo
