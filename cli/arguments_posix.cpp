// cli/arguments_posix.cpp - words and paths are the same bytes.
#ifndef _WIN32

#include "cli/arguments.h"

namespace tallyhoop::cli {

std::vector<std::string> argumentsOf(int count, const char* const* words)
{
    return count > 1 ? std::vector<std::string>{words + 1, words + count} : std::vector<std::string>{};
}

std::filesystem::path pathOf(const std::string& argument) { return argument; }

std::string argumentOf(const std::filesystem::path& path) { return path.native(); }

} // namespace tallyhoop::cli

#endif
