// cli/command_line.h - from the words that the program was called with to a verb and its options.
#pragma once

namespace tallyhoop::cli {

/// Does what a person has asked for; says on the error stream how the program is used when it was used wrongly.
/// @returns the exit status
int run(int count, char** words);

} // namespace tallyhoop::cli
