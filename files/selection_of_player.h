// files/selection_of_player.h - which selection file a record of the player list means.
//
// A record holds 33 characters of the file's name, in capitals; the file itself may be written in any case and be
// longer.
#pragma once

#include "files/data_folder.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns how a record names a selection file: relative to the program's folder when it is inside, in capitals
std::string recordedFileName(const DataFolder& folder, const std::filesystem::path& file);

/// Finds the selection file that a record's file name means. A name that fills its 33 characters may have been
/// cut: it means the one selection file that begins with it.
/// @param recorded the field, trailing blanks allowed
/// @returns nothing when there is no such file, when several begin with a full name, and for every name that is not a
///          bare name of a selection file: whatever a record says, nothing else of the folder, and nothing outside of
///          it, is ever found
std::optional<std::filesystem::path> selectionFileOf(const DataFolder& folder, std::string_view recorded);

/// Whether a file has another name than its record says: the name was cut, and other records may have been cut to the
/// same.
/// @param recorded the field, trailing blanks allowed
/// @param file     what selectionFileOf() found for it
bool isCutName(std::string_view recorded, const std::filesystem::path& file);

/// Whether two records name the same file as far as their fields go: trailing blanks and case make no difference.
bool isSameRecordedName(std::string_view left, std::string_view right);

/// Whether a record belongs to a file, compared without the final ".THC" and without regard to case.
/// @param recorded the field, trailing blanks allowed
/// @param fileName as recordedFileName() gives it
bool recordMeans(const DataFolder& folder, std::string_view recorded, std::string_view fileName);

} // namespace tallyhoop
