// cli/arguments.h - what the program was called with, whatever characters are in it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop::cli {

/// @returns the words after the program's name: in UTF-8 on Windows, elsewhere the bytes that they are
std::vector<std::string> argumentsOf(int count, const char* const* words);

/// @param argument one of these words
std::filesystem::path pathOf(const std::string& argument);

/// @returns the word that means a path, as messages of the terminal show it
std::string argumentOf(const std::filesystem::path& path);

} // namespace tallyhoop::cli
