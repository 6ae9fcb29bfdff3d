// tests/faults/import_writers.h - the two files that an import writes.
#pragma once

#include "faults/writers.h"

#include <filesystem>
#include <memory>

namespace tallyhoop::test {

/// @returns what replaces the selection Adams_AB.THC
std::unique_ptr<Writer> importWriter(const std::filesystem::path& folder);

/// @returns what adds the player of a new selection, Evans_GH.THC, to the player list
std::unique_ptr<Writer> importedPlayerWriter(const std::filesystem::path& folder);

} // namespace tallyhoop::test
