// bench/large_pool.h - a pool far larger than an office: made up, the same every time.
#pragma once

#include "pool/bracket.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace tallyhoop::bench {

/// Brackets over the sample field, each game's winner left to chance; the same ones on every computer.
std::vector<Bracket> randomBrackets(std::size_t count);

/// Fills a folder, which may be there already, with a finalized field, results up to the Final Four, a list of this
/// many players and a selection of each. Ends the program with a message when a file cannot be written.
void makeLargePool(const std::filesystem::path& folder, std::size_t players);

} // namespace tallyhoop::bench
