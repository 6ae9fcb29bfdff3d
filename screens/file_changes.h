// screens/file_changes.h - what is different between two versions of a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Compares two files by their lines, wherever these are in the files.
/// @returns the lines that only one of them has: "Only here: ..." and then "Only in the file: ...", in the order of
///          their file, without the blanks that pad them
std::vector<std::string> changedLines(std::string_view here, std::string_view theirs);

} // namespace tallyhoop
