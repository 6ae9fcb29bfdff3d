// screens/players/field_text.h - what a field of the player list can hold: a quote would end the field, a line break
// the record.
#pragma once

#include "ui/control.h"

#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns whether a text has neither double quotes nor line breaks
bool fitsIntoField(std::string_view text);

/// @returns the text with each double quote as an apostrophe and each line break (a CR LF pair is one) as a blank
std::string madeFit(std::string_view text);

/// Does what pasting does: the text takes the place of what is selected, the caret comes after it.
void insertAtCaret(ui::TextBox& box, std::string_view text);

} // namespace tallyhoop
