// tests/reports/report_pool.h - brackets that can be followed in one's head.
//
// In every region the teams are numbered 01..16 from the top; "W05" is the fifth of the West. The first of each region
// has a name of its own. When the upper rows win, 01 03 05 07 09 11 13 15 win round 1, 01 05 09 13 round 2, 01 09 round
// 3 and 01 the region; when the lower rows win round 1 it is 02 04 .. 16, then 02 06 10 14, 02 10 and 02.
#pragma once

#include "fakes/scratch_folder.h"
#include "files/read_pool.h"
#include "files/selection_file.h"
#include "pool/pool_lines.h"

#include <array>
#include <cstddef>
#include <string>

namespace tallyhoop::test {

inline constexpr std::size_t kWest = 0;
inline constexpr std::size_t kMidwest = 1;
inline constexpr std::size_t kEast = 2;
inline constexpr std::size_t kSouth = 3;

/// @param row 1..16
inline std::string teamName(std::size_t region, std::size_t row)
{
    static const std::array<std::string, 4> first{"CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"};
    if (row == 1)
        return first.at(region);
    return std::string{"WMES"[region]} + (row < 10 ? "0" : "") + std::to_string(row);
}

/// A selection, or results, put together region by region.
class Bracket
{
public:
    Bracket()
    {
        for (std::size_t region = 0; region < 4; ++region)
            for (std::size_t row = 1; row <= 16; ++row)
                lines[31 * region + row] = teamName(region, row);
        lines[selection_line::kEnd] = kEndMarker;
    }

    Bracket& upperRowsWin(std::size_t region) { return play(region, 1); }
    Bracket& lowerRowsWin(std::size_t region) { return play(region, 2); }

    Bracket& upperRowsWinEverywhere()
    {
        for (std::size_t region = 0; region < 4; ++region)
            upperRowsWin(region);
        return *this;
    }

    Bracket& finals(std::string firstSemifinal, std::string secondSemifinal, std::string champion)
    {
        lines[125] = std::move(firstSemifinal);
        lines[126] = std::move(secondSemifinal);
        lines[127] = std::move(champion);
        return *this;
    }

    Bracket& player(std::string initials, std::string name, std::string finalPoints)
    {
        lines[selection_line::kInitials] = std::move(initials);
        lines[selection_line::kName] = std::move(name);
        lines[selection_line::kFinalPoints] = std::move(finalPoints);
        return *this;
    }

    std::string file() const { return selectionFile(lines); }

    SelectionLines lines{};

private:
    Bracket& play(std::size_t region, std::size_t firstWinner)
    {
        const std::size_t base = 31 * region;
        const auto win = [&](std::size_t slot, std::size_t step, std::size_t count) {
            for (std::size_t i = 0; i < count; ++i)
                lines[base + slot + i] = teamName(region, firstWinner + step * i);
        };
        win(17, 2, 8);
        win(25, 4, 4);
        win(29, 8, 2);
        win(31, 16, 1);
        return *this;
    }
};

/// Four players; the upper rows have won everywhere and the Final Four is still to be played.
inline Bracket fourPlayersResults() { return Bracket{}.upperRowsWinEverywhere().player("A", "FinalResults", ""); }

inline ReadPool fourPlayers()
{
    ReadPool pool;
    pool.players = {
        {"Adams_AB.THC", Bracket{}
                             .upperRowsWinEverywhere()
                             .finals("CEDAR RAPIDS", "PINE BLUFF", "CEDAR RAPIDS")
                             .player("AB", "Adams", "150")
                             .lines},
        {"Baker_C.THC", Bracket{}
                            .upperRowsWinEverywhere()
                            .lowerRowsWin(kWest)
                            .finals("OLD HARBOR", "SALT LAKE", "SALT LAKE")
                            .player("C", "Baker", "99")
                            .lines},
        {"Clark_D.THC", Bracket{}.player("D", "Clark", "").lines},
        {"Dunn_EF.THC", Bracket{}
                            .upperRowsWinEverywhere()
                            .lowerRowsWin(kMidwest)
                            .finals("CEDAR RAPIDS", "PINE BLUFF", "PINE BLUFF")
                            .player("EF", "Dunn", "250")
                            .lines},
    };
    return pool;
}

inline const Payoffs kUsualPayoffs{1, 2, 4, 8, 12, 16};

/// Puts the files of the four players and their results into a folder.
inline void putFourPlayers(const ScratchFolder& folder)
{
    for (const PoolEntry& player : fourPlayers().players)
        folder.put(player.fileName, selectionFile(player.lines));
    folder.put("TALLYHOOP.THS", fourPlayersResults().file());
    folder.put("PLAYERNAMES.CSV", crlf({"\"Name                     \",\"FileName                         \","
                                        "\"Email                                      \",\"Phone         \"",
                                        "\"Adams                    \",\"Adams_AB.THC                     \","
                                        "\"adams@example.org                          \",\"555-0101      \"",
                                        "\"Baker                    \",\"Baker_C.THC                      \","
                                        "\"                                           \",\"555-0102      \"",
                                        "\"Clark                    \",\"Clark_D.THC                      \","
                                        "\"clark@example.org                          \",\"              \"",
                                        "\"Dunn                     \",\"Dunn_EF.THC                      \","
                                        "\"dunn@example.org                           \",\"555-0104      \""}));
}

} // namespace tallyhoop::test
