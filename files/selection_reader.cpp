// files/selection_reader.cpp - straight from bytes to numbers of teams as long as the lines are the expected ones.
#include "files/selection_reader.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace tallyhoop {

namespace {

/// A place that holds a winner, and the two places of those that met for it, side by side in memory.
struct GamePlaces {
    Position winner{};
    Position upper{};
    Position lower{};
};

std::vector<GamePlaces> placesOf(std::span<const Position> winners)
{
    std::vector<GamePlaces> places;
    for (const Position winner : winners)
        places.push_back({winner, feeders(winner)->front(), feeders(winner)->back()});
    return places;
}

/// @returns the games of each region, in the order of their places, and then those that follow the regions
const std::array<std::vector<GamePlaces>, kRegions + 1>& games()
{
    static const std::array<std::vector<GamePlaces>, kRegions + 1> all{
        placesOf(gamesOfRegion(0)), placesOf(gamesOfRegion(1)), placesOf(gamesOfRegion(2)), placesOf(gamesOfRegion(3)),
        placesOf(finalGames())};
    return all;
}

bool hasLineBreak(std::string_view name) { return name.find_first_of(kLineBreak) != std::string_view::npos; }

/// @returns the lines that the teams of a region make in a file
std::string rowsOf(const Bracket& like, int region)
{
    std::string rows;
    for (const Position row : teamsOfRegion(region)) {
        if (hasLineBreak(like.at(row)))
            return {};
        rows += like.at(row);
        rows += kLineBreak;
    }
    return rows;
}

/// @returns the first or the second, without a branch: nobody can predict who wins
TeamNumber oneOf(bool isFirst, TeamNumber first, TeamNumber second)
{
    return static_cast<TeamNumber>(second ^ ((first ^ second) & -static_cast<int>(isFirst)));
}

/// Takes the winners' lines, each of which is that of one of the two that met, or empty.
/// @returns whether they are
bool takeWinners(std::span<const GamePlaces> games, std::span<const TeamLine> teams, std::string_view& bytes,
                 ByPosition<TeamNumber>& numbers)
{
    std::string_view rest = bytes; // of our own: what is written to the numbers cannot change it
    for (const GamePlaces& game : games) {
        if (rest.size() < TeamLine::kWidth)
            return false;
        const TeamNumber upper = numbers[game.upper];
        const TeamNumber lower = numbers[game.lower];
        const bool isUpper = teams[upper].seemsToBegin(rest.data());
        TeamNumber winner = oneOf(isUpper, upper, lower);
        const std::size_t upperSize = teams[upper].size(); // read in any case, so that the choice is a conditional move
        std::size_t size = teams[lower].size();
        if (isUpper)
            size = upperSize;
        if (!teams[winner].begins(rest.data())) {
            winner = teams[lower].begins(rest.data()) ? lower : kNoTeam;
            size = teams[winner].size();
            if (!teams[winner].begins(rest.data()))
                return false;
        }
        numbers[game.winner] = winner;
        rest.remove_prefix(size);
    }
    bytes = rest;
    return true;
}

/// @param bytes what follows the first 130 lines of a file
std::optional<Failure> troubleWithEnd(std::string_view bytes)
{
    if (bytes.empty())
        return Failure{"The file has fewer than 131 lines."};
    const std::string_view last = takeLine(bytes);
    if (!bytes.empty())
        return Failure{"The file has more than 131 lines."};
    if (last != kEndMarker)
        return Failure{"Line 131 of the file is not the end marker."};
    return std::nullopt;
}

} // namespace

TeamLine::TeamLine(std::string_view name)
{
    if (name.size() + kLineBreak.size() > kWidth || hasLineBreak(name))
        return;
    m_size = name.size() + kLineBreak.size();
    std::array<char, kWidth> text{};
    kLineBreak.copy(text.data() + name.copy(text.data(), name.size()), kLineBreak.size());
    std::memcpy(m_text.data(), text.data(), kWidth);
    std::memset(m_mask.data(), 0xFF, m_size);
}

bool TeamLine::seemsToBegin(const char* bytes) const
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return (word & m_mask.front()) == m_text.front();
}

bool TeamLine::begins(const char* bytes) const
{
    Words words;
    std::memcpy(words.data(), bytes, kWidth);
    std::uint64_t difference = 0;
    for (std::size_t i = 0; i < words.size(); ++i)
        difference |= (words[i] & m_mask[i]) ^ m_text[i];
    return difference == 0;
}

SelectionReader::SelectionReader(Bracket like) : m_like{std::move(like)}
{
    for (int region = 0; region < kRegions; ++region)
        m_rows.at(static_cast<std::size_t>(region)) = rowsOf(m_like, region);
    for (std::size_t number = 0; number <= m_like.names().size(); ++number)
        m_teams.emplace_back(m_like.names().nameOf(static_cast<TeamNumber>(number)));
}

Read<Entry> SelectionReader::read(std::string_view bytes) const
{
    Read<Entry> read;
    read.value.picks = takePicks(bytes);
    read.value.initials = takeLine(bytes);
    read.value.name = takeLine(bytes);
    read.value.finalPoints = takeLine(bytes);
    read.trouble = troubleWithEnd(bytes);
    return read;
}

Bracket SelectionReader::takePicks(std::string_view& bytes) const
{
    if (const auto numbers = takeExpected(bytes))
        return Bracket::of(*numbers, m_like);
    ByPosition<std::string_view> teams;
    for (const Position position : allPositions())
        teams[position] = takeLine(bytes);
    return Bracket::of(teams, m_like);
}

/// @returns nothing, and takes nothing, when a line is not the expected one
std::optional<ByPosition<TeamNumber>> SelectionReader::takeExpected(std::string_view& bytes) const
{
    std::string_view rest = bytes;
    ByPosition<TeamNumber> numbers;
    for (int region = 0; region < kRegions; ++region)
        if (!takeRows(region, rest, numbers) ||
            !takeWinners(games()[static_cast<std::size_t>(region)], m_teams, rest, numbers))
            return std::nullopt;
    if (!takeWinners(games().back(), m_teams, rest, numbers))
        return std::nullopt;
    bytes = rest;
    return numbers;
}

/// Takes the lines of a region's teams, which are nearly always those of the expected bracket. @returns whether they
/// are
bool SelectionReader::takeRows(int region, std::string_view& bytes, ByPosition<TeamNumber>& numbers) const
{
    const std::string& rows = m_rows[static_cast<std::size_t>(region)];
    if (rows.empty() || !bytes.starts_with(rows))
        return false;
    const Position first = teamsOfRegion(region).front();
    std::ranges::copy(m_like.numbers().from(first, kRowsPerRegion), numbers.from(first, kRowsPerRegion).begin());
    bytes.remove_prefix(rows.size());
    return true;
}

} // namespace tallyhoop
