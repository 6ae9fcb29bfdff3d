// files/setup_file.h - POOLSTART.THS: the starting field and the pool's options.
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "pool/field.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhoop {

/// A field as it was read; the trouble is what a person is told of.
struct [[nodiscard]] ReadField : Read<Field> {
    bool isWhole = true; ///< false = it was not read, or a comment was cut: a save would lose the rest of the file
};

/// Of a longer line only this much is taken for a comment: to show a far longer one takes minutes.
inline constexpr std::size_t kLongestCommentRead = 32'000;

/// Reads a setup file's bytes. A short file is taken as far as it goes, when it ends with its end marker; in one that
/// is a few lines too long, what follows the field is passed over. One that holds nothing, or far too much, gives the
/// default field; a damaged one does, too, and the trouble is set.
/// @param before what the fields hold that a short file lacks
ReadField readSetup(std::string_view bytes, const Field& before = {});

/// Reads the folder's field; one that is missing or cannot be read is the default field without any trouble, for that
/// is how every pool begins.
ReadField readField(const DataFolder& folder, const Field& before = {});

/// @returns the bytes of a field's file
std::string setupFile(const Field& field);

} // namespace tallyhoop
