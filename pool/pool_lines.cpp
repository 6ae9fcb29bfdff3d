// pool/pool_lines.cpp - the pool as it is before anybody has set it up.
#include "pool/pool_lines.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop {
namespace {

constexpr std::array<std::string_view, 4> kDefaultRegions = {"West Region", "Midwest Region", "East Region",
                                                             "South Region"};
constexpr std::array<std::string_view, 6> kDefaultPayoffs = {"1", "2", "4", "8", "12", "16"};

// One-digit seeds keep their leading blank: that is how they stand in the files.
constexpr std::array<std::string_view, kRowsPerRegion> kDefaultSeeds = {" 1", "16", " 8", " 9", " 5", "12", " 4", "13",
                                                                        " 6", "11", " 3", "14", " 7", "10", " 2", "15"};

template <std::size_t N>
void put(SetupLines& lines, std::size_t first, const std::array<std::string_view, N>& texts)
{
    std::copy(texts.begin(), texts.end(), lines.begin() + static_cast<std::ptrdiff_t>(first));
}

} // namespace

SetupLines defaultSetupLines()
{
    SetupLines lines{};
    for (std::size_t team = 0; team < kTeams; ++team)
        lines[setup_line::kTeam + team] = "TEAM" + std::to_string(team + 1);
    lines[setup_line::kTitle] = "2001 NCAA Tournament";
    put(lines, setup_line::kRegion, kDefaultRegions);
    put(lines, setup_line::kPayoff, kDefaultPayoffs);
    put(lines, setup_line::kSeed, kDefaultSeeds);
    lines[setup_line::kFinalized] = "0";
    lines[setup_line::kEnd] = kEndMarker;
    return lines;
}

} // namespace tallyhoop
