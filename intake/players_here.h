// intake/players_here.h - whom the player list knows, looked up by file.
#pragma once

#include "files/data_folder.h"
#include "files/player_names_file.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyhoop {

/// A player to enter: what the record says, and the whole name of the file.
struct NewPlayer {
    std::string name;     ///< name, comma, initials, as a save on the board enters it: "Smith,JS"
    std::string fileName; ///< such as "Smith_JS.THC"
    std::string email;    ///< empty = none

    friend bool operator==(const NewPlayer&, const NewPlayer&) = default;
};

/// The records of a player list, found without reading all of them for each file.
class PlayersHere
{
public:
    explicit PlayersHere(std::vector<PlayerRecord> records);

    /// @returns the record of a player's file; one whose file name was cut is that of the player of the same name
    const PlayerRecord* find(const NewPlayer& player) const;

    /// @returns the first record of a player's name, in any case of its letters
    const PlayerRecord* findName(std::string_view name) const;

    /// Adds a record unless there is one. @returns whether it was added
    bool add(const NewPlayer& player);

    /// @returns the records in the order of the list that people see
    std::vector<PlayerRecord> sorted() const;

private:
    void index(std::size_t record);

    std::vector<PlayerRecord> m_records;
    std::unordered_map<std::string, std::size_t> m_byFile; ///< the first record for a file, by what all of them share
    std::unordered_map<std::string, std::size_t> m_byName;
};

/// @returns the address as a record can hold it; empty when it does not fit or is none
std::string recordedAddress(std::string_view email);

} // namespace tallyhoop
