// files/selection_file.h - one player's bracket (*.THC), or the results (TALLYHOOP.THS): 131 lines.
//
// The 127 teams in the order of the positions, initials, name, predicted total of the final, end marker.
#pragma once

#include "base/result.h"
#include "pool/entry.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Reads a selection file's bytes. The trouble is set when there are more or fewer than 131 lines, or the last one is
/// not the end marker; what could be read is there all the same. The entry's file name stays empty.
/// @param like a bracket in which most of the teams are expected, such as the results
Read<Entry> readSelection(std::string_view bytes, const Bracket& like = {});

/// Reads a selection file from disk; a missing or unreadable file gives an empty entry and the trouble. The entry's
/// file name is the file's.
Read<Entry> readSelectionFile(const std::filesystem::path& file, const Bracket& like = {});

/// @returns the bytes of an entry's file
std::string selectionFile(const Entry& entry);

/// @returns the name a player's file is first proposed under, such as "Smith_JS.THC", fit for a file name
std::string proposedFileName(std::string_view playerName, std::string_view initials);

} // namespace tallyhoop
