// files/setup_file.h - POOLSTART.THS: the starting field and the pool's options.
#pragma once

#include "files/data_folder.h"
#include "files/known_files.h"
#include "pool/pool_lines.h"
#include "screens/mod_tallyhoop.h"
#include "ui/dialogs.h"

#include <string_view>

namespace tallyhoop {

enum class SetupReading {
    Taken,           ///< the lines are the file's
    DefaultsQuietly, ///< no usable file: the defaults, without a word
    DefaultsLoudly,  ///< a damaged file: the defaults, and the person should know
};

/// Reads a setup file's bytes over the lines: entries beyond the last line read keep what they held.
/// Whatever is not taken gives the defaults in entries 0..94.
SetupReading readSetup(std::string_view bytes, SetupLines& lines);

/// @returns the file of these lines: start marker, entries 0..93, end marker
std::string setupFile(const SetupLines& lines);

/// Reads POOLSTART.THS into the shared setup lines (defaults when it is missing or damaged, with a message when it is
/// damaged) and copies the title.
void ReadStartingField(const DataFolder& folder, ui::Dialogs& dialogs, modTallyhoop& state);

/// Replaces POOLSTART.THS; asks first when somebody else has changed it since it was noted. A failure shows "** ERROR
/// IN WRITING FILE **" with the path. @returns whether it was written
bool WriteStartingField(const DataFolder& folder, ui::Dialogs& dialogs, KnownFiles& known, const SetupLines& lines);

} // namespace tallyhoop
