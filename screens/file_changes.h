// screens/file_changes.h - what is different between two versions of a file, short enough for a message box.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Compares two files by their lines, wherever these are in the files.
/// @returns the lines that only one of them has: "Only here: ..." and then "Only in the file: ...", each in the order
/// of
///          its file, without the blanks that pad it
std::vector<std::string> changedLines(std::string_view here, std::string_view theirs);

/// @returns the list; of more than 20 lines the first 20, and how many more there are
std::vector<std::string> shortList(std::vector<std::string> lines);

} // namespace tallyhoop
