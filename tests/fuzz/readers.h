// tests/fuzz/readers.h - every reader of a data file, run on arbitrary bytes, with what must hold whatever they are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop::fuzz {

/// Runs one reader on a file's bytes. @returns what does not hold that should; nothing when all is well
using Reader = std::optional<std::string> (*)(std::string_view bytes);

std::optional<std::string> setup(std::string_view bytes);
std::optional<std::string> selection(std::string_view bytes);
std::optional<std::string> players(std::string_view bytes);
std::optional<std::string> teams(std::string_view bytes);
std::optional<std::string> settings(std::string_view bytes);

} // namespace tallyhoop::fuzz
