// screens/saving.h - the messages and questions about reading and writing data files, in one place for all screens.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "files/known_files.h"
#include "ui/platform.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// What is different in the file that somebody else has saved, a line for each difference.
/// @param theirs the bytes of that file
using DescribeChanges = std::function<std::vector<std::string>(std::string_view theirs)>;

/// Replaces a file as a whole; asks first when somebody else has changed it since it was noted, and only Yes proceeds.
/// The question has a button that shows what is different, and asks again.
/// A file that cannot be written shows "** ERROR IN WRITING FILE **" and is as it was. What cannot be read, or was read
/// only in part, is kept in a dated subfolder before it is replaced, and a message says where; what cannot be kept is
/// not replaced.
/// @param shownPath the file's full path as text
/// @param advice    that message's last line
/// @param changesIn empty = compares the lines of the two
/// @returns whether the file holds the bytes now
bool saveFile(const ui::Platform& platform, KnownFiles& known, const std::filesystem::path& file,
              std::string_view bytes, std::string_view shownPath, std::string_view advice,
              const DescribeChanges& changesIn = {});

/// The same for a file of the program's folder that the program itself names.
bool saveDataFile(const ui::Platform& platform, KnownFiles& known, const DataFolder& folder, std::string_view name,
                  std::string_view bytes);

/// Creates a file of the program's folder. One that another program has created meanwhile is left as it is.
/// @param troubleSaid whether it was said before that the folder cannot be written: then it is not said again
void createDataFile(ui::Dialogs& dialogs, const DataFolder& folder, std::string_view name, std::string_view bytes,
                    bool& troubleSaid);

/// Shows that a selection or results file could not be read, or not whole; a second message names the limit of a file
/// that is too large.
void showReadingTrouble(ui::Dialogs& dialogs, const std::filesystem::path& file);

/// Lists the selection files; says so when the folder cannot be listed, which is another thing than a folder without
/// any.
std::vector<FolderFile> listSelections(ui::Dialogs& dialogs, const DataFolder& folder);

/// Shows that the selections cannot be listed, or not all of them, and why.
void showListingTrouble(ui::Dialogs& dialogs, const DataFolder& folder, const Failure& reason);

/// Asks the desktop to show the pool's folder. @returns a sentence for the status line: where it is, and whether it is
/// shown
std::string showFolder(const ui::Platform& platform, const DataFolder& folder);

/// Shows what is wrong, without a caption of its own.
void showTrouble(ui::Dialogs& dialogs, const Failure& failure);

/// Shows what is wrong with the player list.
void showFaultyPlayerList(ui::Dialogs& dialogs, const Failure& fault);

/// Checks the player list and says what is wrong with it. @returns whether it can be used
bool playerListIsSound(ui::Dialogs& dialogs, const DataFolder& folder);

} // namespace tallyhoop
