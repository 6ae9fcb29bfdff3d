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
    /// @param selections the players of the selections that are here, those at least whose file names are cut in a
    /// record
    explicit PlayersHere(std::vector<PlayerRecord> records, const std::vector<NewPlayer>& selections = {});

    /// @returns whether a record holds only the beginning of a file's name
    static bool isCut(std::string_view fileName);

    /// @returns the first record of a player's file; where that is cut, one of a player whose name looks the same in a
    ///          record, and who may be another one
    const PlayerRecord* find(const NewPlayer& player) const;

    /// @returns the addresses in the records that may be the player's, "; " between them; empty = none
    std::string addressesOf(const NewPlayer& player) const;

    /// @returns the first record of a player's name, in any case of its letters and with any kind of apostrophe
    const PlayerRecord* findName(std::string_view name) const;

    /// Adds a record unless there is one. Of players who look the same in a record, each selection has one.
    /// @returns whether it was added
    bool add(const NewPlayer& player);

    /// @returns the records in the order of the list that people see
    std::vector<PlayerRecord> sorted() const;

private:
    void index(std::size_t record);
    bool isListed(const NewPlayer& player) const;

    std::vector<PlayerRecord> m_records;
    std::unordered_map<std::string, std::size_t> m_byFile; ///< the first record for a file, by what all of them share
    std::unordered_map<std::string, std::size_t> m_byName;
    std::unordered_map<std::string, std::vector<std::size_t>> m_alike; ///< the records that look the same
    std::unordered_map<std::string, std::size_t> m_selections;         ///< how many selections have such a record
};

/// @returns the address as a record can hold it; empty when it does not fit or is none
std::string recordedAddress(std::string_view email);

} // namespace tallyhoop
