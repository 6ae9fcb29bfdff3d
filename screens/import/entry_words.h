// screens/import/entry_words.h - the cells of an entry's row, and all that is known of it in words.
#pragma once

#include "intake/review.h"
#include "ui/control.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallyhoop {

/// The columns of the review.
enum class EntryColumn { Tick, Row, Name, Initials, File, Picks, Total, Sender, Words };

std::vector<ui::GridColumn> entryColumns();

/// @returns what a column is about, for the status line
std::string explanationOf(EntryColumn column);

/// @param index     of the row, from 0 on
/// @param isOnBoard the selection that it would replace is open on the board with changes that are not saved
/// @returns a row of cells, each a line of moderate length whatever was handed in
std::vector<std::string> entryCells(const ReviewRow& row, std::size_t index, bool isOnBoard);

/// @returns "Row 3: Ann Smith", or where it came from when nobody is named
std::string entryHeading(const ReviewRow& row, std::size_t index);

/// @returns all that is known of an entry, and every reason why it is refused; lines separated by CR LF
std::string entryDetails(const ReviewRow& row, bool isOnBoard);

/// @returns the picks as they can be shown: a line of moderate length each
Bracket shownPicks(const Bracket& picks);

} // namespace tallyhoop
