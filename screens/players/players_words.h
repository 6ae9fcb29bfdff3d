// screens/players/players_words.h - what the player list says and asks in boxes.
#pragma once

#include "files/player_names_file.h"
#include "ui/dialogs.h"

#include <filesystem>
#include <string>

namespace tallyhoop {

extern const ui::Message kSelectBeforeChange;
extern const ui::Message kSelectBeforeDelete;
extern const ui::Message kNothingToAdd; ///< the boxes are empty
extern const ui::Message kNoSelections; ///< the player of a changed record has no selection file any more
extern const ui::Message kBothDeleted;  ///< asks before a record is deleted with its selection file

/// @param file the selection file that one of two records means, nobody can tell which
ui::Message selectionsOfEither(const std::filesystem::path& file);

/// Asks before another record is added for a file.
/// @param record the one that the list has for it
ui::Message listedAlready(const PlayerRecord& record);

/// @returns a player's name in a sentence; "The record" where it is blank
std::string shownName(const std::string& name);

} // namespace tallyhoop
