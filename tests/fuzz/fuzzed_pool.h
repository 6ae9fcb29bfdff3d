// tests/fuzz/fuzzed_pool.h - a pool made of arbitrary bytes, for the reports.
#pragma once

#include "pool/entry.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::fuzz {

struct FuzzedPool {
    std::string title;
    Payoffs payoffs{1, 2, 4, 8, 12, 16};
    Bracket results;
    std::vector<std::string> playerList; ///< the lines of the player list, the header first
    std::vector<Entry> entries;

    /// @returns whether no name of a team, a player or a file holds this character
    bool isFreeOf(char separator) const;

    /// Asks something of every player's picks in rounds 1..6 that are there.
    void forEachPick(const std::function<void(int round, const std::string& team)>& ask) const;
};

/// Takes sections separated by byte 1E: a line with the title and up to six with payoffs; the results file, which is
/// also the player list; then for each player a line with the file's name, and the file. What is missing is empty;
/// payoffs that are missing or not numbers are the usual ones.
FuzzedPool decodePool(std::string_view bytes);

} // namespace tallyhoop::fuzz
