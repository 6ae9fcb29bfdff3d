// pool/position.cpp - the table that says where every winner goes, and what follows from it.
#include "pool/position.h"

namespace tallyhoop {
namespace {

constexpr int kRegionWinner = 30; ///< offset of a region's winner in its block

constexpr std::size_t at(int position) { return static_cast<std::size_t>(position); }

std::array<Position, kGames> findGamePositions()
{
    std::array<Position, kGames> games{};
    std::size_t game = 0;
    for (int position = 0; position < kPositions; ++position)
        if (!isFirstRound(Position{position}))
            games.at(game++) = Position{position};
    return games;
}

} // namespace

int roundOf(Position position)
{
    if (index(position) == kChampion)
        return 6;
    if (index(position) >= kSemifinalA)
        return 5;
    const int offset = index(position) % kRegionBlock;
    if (offset < 16)
        return 0;
    if (offset < 24)
        return 1;
    if (offset < 28)
        return 2;
    return offset < kRegionWinner ? 3 : 4;
}

const std::array<Position, kGames>& gamePositions()
{
    static const std::array<Position, kGames> games = findGamePositions();
    return games;
}

int gameOf(Position position)
{
    if (isFirstRound(position))
        return -1;
    if (index(position) >= kSemifinalA)
        return index(position) - kTeams;
    return index(position) - kRowsPerRegion * (regionOf(position) + 1);
}

BracketMap::BracketMap()
{
    for (int row = 0; row < kPositions; ++row)
        m_rows[at(row)][0] = static_cast<std::int16_t>(row);
    // Two neighbouring rows meet; the winners of a block's rows stand behind each other from offset 16 on.
    for (int region = 0; region < kRegions; ++region)
        for (int offset = 0; offset < kRegionWinner; ++offset) {
            const int base = region * kRegionBlock;
            m_rows[at(base + offset)][1] = static_cast<std::int16_t>(base + kRowsPerRegion + offset / 2);
        }
    for (int region = 0; region < kRegions; ++region)
        m_rows[at(region * kRegionBlock + kRegionWinner)][1] =
            static_cast<std::int16_t>(region < 2 ? kSemifinalA : kSemifinalB);
    m_rows[kSemifinalA][1] = kChampion;
    m_rows[kSemifinalB][1] = kChampion;
    m_rows[kChampion][1] = kChampionEnd;
}

std::array<int, 2> BracketMap::feeders(int position) const
{
    std::array<int, 2> found{-1, -1};
    std::size_t count = 0;
    for (int row = 0; row < kPositions && count < found.size(); ++row)
        if (m_rows[at(row)][1] == position)
            found.at(count++) = row;
    return found;
}

const BracketMap& bracketMap()
{
    static const BracketMap map;
    return map;
}

} // namespace tallyhoop
