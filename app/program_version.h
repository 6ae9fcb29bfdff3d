// app/program_version.h - which of two copies of a program is the newer one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tallyhoop {

/// @returns the version that Windows shows of a program's file, later ones being larger; nothing when it has none
std::optional<std::uint64_t> programVersion(const std::filesystem::path& program);

} // namespace tallyhoop
