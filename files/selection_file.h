// files/selection_file.h - one player's bracket (*.THC), or the results (TALLYHOOP.THS): 131 lines.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "files/known_files.h"
#include "pool/pool_lines.h"
#include "ui/dialogs.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tallyhoop {

/// Reads a selection file's bytes: line n into entry n, 1..131. The trouble is set when there are more or fewer lines
/// or line 131 is not the end marker; the lines read so far are there all the same.
Read<SelectionLines> readSelection(std::string_view bytes);

/// Reads a selection file from disk; a missing or unreadable file gives empty lines and the trouble.
Read<SelectionLines> readSelectionFile(const std::filesystem::path& file);

/// @returns the file of these lines: entries 1..130 and the end marker
std::string selectionFile(const SelectionLines& lines);

/// Empties the lines, fills them from a file, and shows "** ERROR IN OPENING FILE - ReadSelections Routine **" when
/// there was trouble; what could be read stays.
void ReadSelections(const std::filesystem::path& file, ui::Dialogs& dialogs, SelectionLines& lines);

/// Shows the reader's message for a file that was read with trouble.
void showReadingTrouble(const std::filesystem::path& file, ui::Dialogs& dialogs);

/// Replaces a file by these lines; asks first when somebody else has changed it since it was noted. A failure shows
/// "** ERROR IN WRITING FILE **" and leaves the old file.
/// @returns whether the file was written
bool SaveSelections(const std::filesystem::path& file, ui::Dialogs& dialogs, KnownFiles& known,
                    const SelectionLines& lines);

/// @returns the name a player's file is first proposed under, such as "Smith_JS.THC", fit for a file name
std::string proposedFileName(std::string_view playerName, std::string_view initials);

} // namespace tallyhoop
