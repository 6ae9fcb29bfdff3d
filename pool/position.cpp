// pool/position.cpp - the shape of the bracket, calculated once.
#include "pool/position.h"

namespace tallyhoop {

namespace {

constexpr int kRegionBlock = 31;  ///< positions of one region
constexpr int kRegionWinner = 30; ///< offset of a region's winner in its block

/// Where each round's winners begin in a region's block: rounds 0 (the teams) to 4.
constexpr std::array<int, 5> kRoundStart{0, 16, 24, 28, kRegionWinner};

constexpr std::size_t at(int number) { return static_cast<std::size_t>(number); }

constexpr bool isInRegion(Position position) { return position < kSemifinalA; }

template <class Id, std::size_t N>
std::array<Id, N> numbered()
{
    std::array<Id, N> ids{};
    for (std::size_t i = 0; i < N; ++i)
        ids.at(i) = Id{static_cast<int>(i)};
    return ids;
}

std::array<Position, kGames> findGamePositions()
{
    std::array<Position, kGames> games{};
    std::size_t game = 0;
    for (const Position position : allPositions())
        if (!isFirstRound(position))
            games.at(game++) = position;
    return games;
}

std::optional<Position> findNext(Position position)
{
    if (position == kChampion)
        return std::nullopt;
    if (!isInRegion(position))
        return kChampion;
    const int region = index(position) / kRegionBlock;
    const int offset = index(position) % kRegionBlock;
    if (offset == kRegionWinner)
        return region < 2 ? kSemifinalA : kSemifinalB;
    // Two neighbours meet; the winners of a block's places follow each other from the end of its teams on.
    return Position{region * kRegionBlock + kRowsPerRegion + offset / 2};
}

using Feeders = std::array<Position, 2>;

ByPosition<std::optional<Feeders>> findFeeders()
{
    ByPosition<std::optional<Feeders>> found;
    for (const Position position : allPositions()) {
        const std::optional<Position> winner = next(position);
        if (!winner)
            continue;
        if (!found[*winner])
            found[*winner] = Feeders{position, position};
        else
            found[*winner]->back() = position;
    }
    return found;
}

} // namespace

const std::array<Position, kPositions>& allPositions()
{
    static const std::array<Position, kPositions> positions = numbered<Position, kPositions>();
    return positions;
}

const std::array<Position, kGames>& gamePositions()
{
    static const std::array<Position, kGames> games = findGamePositions();
    return games;
}

const std::array<TeamRow, kTeams>& allTeamRows()
{
    static const std::array<TeamRow, kTeams> rows = numbered<TeamRow, kTeams>();
    return rows;
}

std::span<const Position> teamsOfRegion(int region)
{
    return std::span{allPositions()}.subspan(at(kRegionBlock * region), kRowsPerRegion);
}

std::span<const Position> gamesOfRegion(int region)
{
    return std::span{allPositions()}.subspan(at(kRegionBlock * region + kRowsPerRegion), kRegionBlock - kRowsPerRegion);
}

std::span<const Position> finalGames() { return std::span{allPositions()}.subspan(at(index(kSemifinalA))); }

Position firstRoundPosition(int region, int row) { return Position{kRegionBlock * region + row}; }

Position positionOf(TeamRow row) { return firstRoundPosition(regionOf(row), rowInRegion(row)); }

Position positionOf(Game game) { return gamePositions().at(at(index(game))); }

std::optional<TeamRow> teamRowOf(Position position)
{
    if (!isFirstRound(position))
        return std::nullopt;
    return teamRowAt(index(position) / kRegionBlock, index(position) % kRegionBlock);
}

int regionOf(TeamRow row) { return index(row) / kRowsPerRegion; }

int rowInRegion(TeamRow row) { return index(row) % kRowsPerRegion; }

TeamRow teamRowAt(int region, int row) { return TeamRow{region * kRowsPerRegion + row}; }

std::optional<TeamRow> rowAfter(TeamRow row, std::size_t rows)
{
    const std::span left = std::span{allTeamRows()}.subspan(at(index(row)));
    return rows < left.size() ? std::optional{left[rows]} : std::nullopt;
}

std::optional<Game> gameOf(Position position)
{
    if (isFirstRound(position))
        return std::nullopt;
    const int teamsBefore = isInRegion(position) ? kRowsPerRegion * (index(position) / kRegionBlock + 1) : kTeams;
    return Game{index(position) - teamsBefore};
}

bool isFirstRound(Position position) { return isInRegion(position) && index(position) % kRegionBlock < kRowsPerRegion; }

int roundOf(Position position)
{
    if (!isInRegion(position))
        return position == kChampion ? 6 : 5;
    const int offset = index(position) % kRegionBlock;
    int round = 0;
    while (round < 4 && offset >= kRoundStart.at(at(round + 1)))
        ++round;
    return round;
}

std::optional<int> regionOf(Position position)
{
    return isInRegion(position) ? std::optional{index(position) / kRegionBlock} : std::nullopt;
}

Position regionWinner(int region) { return Position{kRegionBlock * region + kRegionWinner}; }

int gameOfColumn(Position position)
{
    if (position == kChampion)
        return 0;
    if (!isInRegion(position))
        return position == kSemifinalA ? 0 : 1;
    return index(position) % kRegionBlock - kRoundStart.at(at(roundOf(position)));
}

std::optional<Position> next(Position position)
{
    static const auto all = [] {
        ByPosition<std::optional<Position>> found;
        for (const Position from : allPositions())
            found[from] = findNext(from);
        return found;
    }();
    return all[position];
}

std::optional<std::array<Position, 2>> feeders(Position position)
{
    static const ByPosition<std::optional<Feeders>> all = findFeeders();
    return all[position];
}

bool isOnPath(Position source, Position target)
{
    std::optional<Position> position = source;
    while (position && *position < target)
        position = next(*position);
    return position == target;
}

} // namespace tallyhoop
