// intake/entry_table.h - entries as a table: for spreadsheets, one row for each player.
#pragma once

#include "intake/handed_in.h"
#include "intake/known_teams.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Reads a table: name, initials, predicted total and 63 picks. With a header, which may have up to five rows above it,
/// the columns may be in any order, one for the e-mail address and one for the selection's file may be among them, and
/// a column named "Game 12", whatever follows, holds the picks of that game; 63 columns without such names are the
/// games in the order of the board. Without a header the columns are name, initials, total, the picks in the order of
/// the board and, perhaps, the file, and one row at least has all of them: other lists are tables, too. Blanks around a
/// cell, and more than one inside, are taken for an accident, but for a cell that entryTable() wrote with an apostrophe
/// before it.
/// @param bytes  UTF-8 or Windows-1252, separated by commas, semicolons or tabs
/// @param origin where it came from; an entry's number is its row in the table
/// @returns one for each row that is not empty, at most kMostEntriesHandedIn; a single refusal when the table cannot be
///          read
std::vector<HandedIn> readEntryTable(std::string_view bytes, const KnownTeams& teams, const Origin& origin);

/// @returns whether a text that may be anything is such a table
bool isEntryTable(std::string_view bytes);

/// @returns the entries as such a table, with a header and their files' names in the last column: UTF-8 with a byte
///          order mark, as spreadsheets want it. Read again, each gives the same selection, as long as its first-round
///          rows are those of the field.
std::string entryTable(std::span<const Entry> entries, const Field& field);

} // namespace tallyhoop
