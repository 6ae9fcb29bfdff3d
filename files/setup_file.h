// files/setup_file.h - POOLSTART.THS: the starting field and the pool's options.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "pool/field.h"

#include <string>
#include <string_view>

namespace tallyhoop {

/// Reads a setup file's bytes. A short file is taken as far as it goes, when it ends with its end marker. One that
/// holds nothing, or far too much, gives the default field; a damaged one does, too, and the trouble is set.
/// @param before what the fields hold that a short file lacks
Read<Field> readSetup(std::string_view bytes, const Field& before = {});

/// Reads the folder's field; one that is missing or cannot be opened is the default field without any trouble, for that
/// is how every pool begins.
Read<Field> readField(const DataFolder& folder, const Field& before = {});

/// @returns the bytes of a field's file
std::string setupFile(const Field& field);

} // namespace tallyhoop
