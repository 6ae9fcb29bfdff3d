// files/player_names_file.h - PLAYERNAMES.CSV: the players, one record of exactly 126 characters a line.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// One player. Fields as read keep their trailing blanks; fields to be written are padded or cut to their width.
struct PlayerRecord {
    std::string name;     ///< 25 characters
    std::string fileName; ///< 33: the player's selection file
    std::string email;    ///< 43
    std::string phone;    ///< 14

    friend bool operator==(const PlayerRecord&, const PlayerRecord&) = default;
};

inline constexpr std::size_t kNameWidth = 25;
inline constexpr std::size_t kFileNameWidth = 33;
inline constexpr std::size_t kEmailWidth = 43;
inline constexpr std::size_t kPhoneWidth = 14;
inline constexpr std::size_t kRecordLength = 126;

enum class RecordFault { None, TooLong, TooShort, BadFormat };

/// @returns what is wrong with a line of the file
RecordFault faultOf(std::string_view line);

/// Takes the fields of a record by column; columns beyond the line's end are empty.
PlayerRecord parseRecord(std::string_view line);

/// @returns a copy of a file's lines, before each faulty one a line that names its fault; nothing when none is faulty
std::optional<std::vector<std::string>> annotatedCopy(std::span<const std::string> lines);

/// @returns the 126 characters of a record, fields padded or cut; a double quote in a field becomes an apostrophe, a
///          line break a blank
std::string recordLine(const PlayerRecord& record);

/// @returns the header record's line
std::string headerLine();

/// @returns the whole file: header and records
std::string playerNamesFile(std::span<const PlayerRecord> records);

/// The four fields padded or cut to their widths and joined by one blank: 118 characters, as lists show a player.
std::string playerRow(const PlayerRecord& record);

/// Takes the fields of a row made by playerRow().
PlayerRecord parsePlayerRow(std::string_view row);

/// Checks every record of PLAYERNAMES.CSV. When one is faulty, writes the annotated copy PLAYERNAMES.TXT, if that can
/// be written; when none is, no PLAYERNAMES.TXT remains. Never changes PLAYERNAMES.CSV.
/// @returns a failure that says what to do about a faulty record or an unreadable file
Result<Done> checkPlayerNames(const DataFolder& folder);

/// @returns the records after the header, in file order; empty when the file cannot be read
std::vector<PlayerRecord> readPlayerNames(const DataFolder& folder);

} // namespace tallyhoop
