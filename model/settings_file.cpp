// model/settings_file.cpp - TALLYHOOP.INI: whether demo mode is on, and what the demo brought.
#include "model/settings_file.h"

#include "model/file_names.h"
#include "model/text_file.h"
#include "model/windows1252.h"

#include <algorithm>
#include <cstdint>
#include <fmt/format.h>

namespace tallyhoop {
namespace {

/// Tells contents apart that differ by accident: FNV-1a of 64 bits, and the length.
std::string fingerprint(std::string_view bytes)
{
    constexpr std::uint64_t kOffset = 14695981039346656037u;
    constexpr std::uint64_t kPrime = 1099511628211u;
    std::uint64_t hash = kOffset;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    return fmt::format("{:016x}-{}", hash, bytes.size());
}

std::string mark(std::string_view name, std::string_view bytes)
{
    std::string line = fingerprint(bytes);
    line += ' ';
    line += name;
    return line;
}

} // namespace

bool demoModeIsOn(const DataFolder& folder)
{
    const Result<std::string> bytes = folder.read(file_name::kSettings);
    return bytes && settingsSayDemo(*bytes);
}

bool settingsSayDemo(std::string_view bytes)
{
    const std::vector<std::string> lines = linesOf(bytes);
    return !lines.empty() && lines.front() == "1";
}

std::string demoSettings(const std::vector<DemoFile>& files)
{
    std::vector<std::string> lines{"1"};
    for (const DemoFile& file : files)
        lines.push_back(mark(file.name, file.bytes));
    return fileOf(lines);
}

bool settingsMark(std::string_view settings, std::string_view name, std::string_view bytes)
{
    if (!settingsSayDemo(settings))
        return false;
    const std::vector<std::string> lines = linesOf(settings);
    const std::string wanted = mark(name, bytes);
    return std::any_of(lines.begin() + 1, lines.end(),
                       [&](const std::string& line) { return equalFolded(line, wanted); });
}

} // namespace tallyhoop
