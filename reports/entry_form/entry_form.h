// reports/entry_form/entry_form.h - the page on which players fill in their brackets without the program.
#pragma once

#include "pool/field.h"

#include <string>

namespace tallyhoop {

inline constexpr const char* kEntryFormFile = "ENTRYFORM.HTML"; ///< the name it is first proposed under

struct EntryFormOptions {
    std::string organiser; ///< e-mail address that brackets are sent to; empty = the player's mail program asks for it
};

/// Writes the entry form: one page in UTF-8 that loads nothing, with the field, points and comments in it.
/// @param field one that is finalized: every row has a team
/// @note A field's texts are only ever data on the page, whatever is in them.
std::string entryFormPage(const Field& field, const EntryFormOptions& options);

} // namespace tallyhoop
