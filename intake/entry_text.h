// intake/entry_text.h - the text that the entry form puts into a mail and onto the clipboard, read again after what
// people and mail programs have done to it.
//
//     Tallyhoop bracket: Office Pool
//     Name: Ann Smith
//     Initials: AS
//     Total: 142
//     E-mail: ann@example.org
//     Region 1: West
//     Round 1: Arizona, Wisconsin, Texas, LSU, Purdue, Oklahoma, Louisville, St. John's
//     Round 2: ...
//     Semifinals: Arizona, Duke
//     Champion: Duke
//     Check: 6623D64A
//
// Lines may be wrapped, joined, quoted with ">"; characters may be replaced by others that look alike. A list's
// elements are separated by ", ", a comma inside of a name is doubled, an open game is an empty element. A colon inside
// of a name, initials or a team is doubled as well: whatever a player is called, it is never taken for a key. The check
// value is that of checkValue(); what follows it does not matter, nor does what comes before the first line.
#pragma once

#include "intake/handed_in.h"
#include "intake/known_teams.h"

#include <string_view>
#include <vector>

namespace tallyhoop {

/// Reads every entry of a text, one after another, at most kMostEntriesHandedIn of them.
/// @param utf8   the text
/// @param origin where it came from; the entries are numbered from its number on
/// @returns one for each "Tallyhoop bracket:", also for a mangled one; empty when there is none. The address is the
///          entry's own; without one the sender's, or, for an entry that was quoted or forwarded, that of the writer
///          whom the text names
std::vector<HandedIn> readEntryTexts(std::string_view utf8, const KnownTeams& teams, const Origin& origin);

} // namespace tallyhoop
