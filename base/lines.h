// base/lines.h - text files as lines.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Splits a file's bytes into lines at CR LF, lone LF or lone CR. A last line without line end counts; an empty file
/// has no lines.
std::vector<std::string> linesOf(std::string_view bytes);

/// Takes the first line off the bytes, its line end with it; an empty line when there are no bytes left.
std::string_view takeLine(std::string_view& bytes);

/// @returns the lines as a file's bytes, each ended by CR LF
std::string fileOf(std::span<const std::string> lines);

} // namespace tallyhoop
