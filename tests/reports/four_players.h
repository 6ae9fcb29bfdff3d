// tests/reports/four_players.h - entries that can be followed without paper.
//
// In every region the teams are numbered 01..16 from the top; "W05" is the fifth of the West. The first of each region
// has a name of its own. When the upper rows win, 01 03 05 07 09 11 13 15 win round 1, 01 05 09 13 round 2, 01 09 round
// 3 and 01 the region; when the lower rows win round 1 it is 02 04 .. 16, then 02 06 10 14, 02 10 and 02.
#pragma once

#include "pool/entry.h"

#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop::test {

inline constexpr int kWest = 0;
inline constexpr int kMidwest = 1;
inline constexpr int kEast = 2;
inline constexpr int kSouth = 3;

/// @param row 1..16
inline std::string teamName(int region, int row)
{
    static const std::array<std::string, 4> first{"CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"};
    if (row == 1)
        return first.at(static_cast<std::size_t>(region));
    return std::string{"WMES"[region]} + (row < 10 ? "0" : "") + std::to_string(row);
}

/// A selection, or results, put together region by region.
struct EntryBuilder {
    Entry entry;

    EntryBuilder()
    {
        for (int region = 0; region < 4; ++region)
            for (int row = 1; row <= 16; ++row)
                entry.picks.put(firstRoundPosition(region, row - 1), teamName(region, row));
    }

    EntryBuilder& upperRowsWin(int region) { return play(region, 1); }
    EntryBuilder& lowerRowsWin(int region) { return play(region, 2); }

    EntryBuilder& upperRowsWinEverywhere()
    {
        for (int region = 0; region < 4; ++region)
            upperRowsWin(region);
        return *this;
    }

    EntryBuilder& finals(const std::string& firstSemifinal, const std::string& secondSemifinal,
                         const std::string& champion)
    {
        entry.picks.put(kSemifinalA, firstSemifinal);
        entry.picks.put(kSemifinalB, secondSemifinal);
        entry.picks.put(kChampion, champion);
        return *this;
    }

    EntryBuilder& player(std::string initials, std::string name, std::string finalPoints)
    {
        entry.initials = std::move(initials);
        entry.name = std::move(name);
        entry.finalPoints = std::move(finalPoints);
        return *this;
    }

    EntryBuilder& file(std::string fileName)
    {
        entry.fileName = std::move(fileName);
        return *this;
    }

private:
    EntryBuilder& play(int region, int firstWinner)
    {
        std::span<const Position> games = gamesOfRegion(region);
        for (int count = 8; count > 0; count /= 2) { // 8, 4, 2 and 1 winners, every second, fourth, ... row
            for (int i = 0; i < count; ++i)
                entry.picks.put(games[static_cast<std::size_t>(i)], teamName(region, firstWinner + 16 / count * i));
            games = games.subspan(static_cast<std::size_t>(count));
        }
        return *this;
    }
};

/// The upper rows have won everywhere and the Final Four is still to be played.
inline Entry fourPlayersResults()
{
    return EntryBuilder{}.upperRowsWinEverywhere().player("A", "FinalResults", "").entry;
}

inline std::vector<Entry> fourPlayers()
{
    return {EntryBuilder{}
                .upperRowsWinEverywhere()
                .finals("CEDAR RAPIDS", "PINE BLUFF", "CEDAR RAPIDS")
                .player("AB", "Adams", "150")
                .file("Adams_AB.THC")
                .entry,
            EntryBuilder{}
                .upperRowsWinEverywhere()
                .lowerRowsWin(kWest)
                .finals("OLD HARBOR", "SALT LAKE", "SALT LAKE")
                .player("C", "Baker", "99")
                .file("Baker_C.THC")
                .entry,
            EntryBuilder{}.player("D", "Clark", "").file("Clark_D.THC").entry,
            EntryBuilder{}
                .upperRowsWinEverywhere()
                .lowerRowsWin(kMidwest)
                .finals("CEDAR RAPIDS", "PINE BLUFF", "PINE BLUFF")
                .player("EF", "Dunn", "250")
                .file("Dunn_EF.THC")
                .entry};
}

inline const Payoffs kUsualPayoffs{1, 2, 4, 8, 12, 16};

} // namespace tallyhoop::test
