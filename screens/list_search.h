// screens/list_search.h - typing ahead: key presses in an entry box find a row of a list and complete the box.
#pragma once

#include "ui/control.h"
#include "ui/keys.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the first row, from the top, that begins with the text without regard to case; nothing when none does
std::optional<int> findRow(std::span<const std::string> rows, std::string_view prefix);

/// @returns what a key press makes of the typed part of a box: the text to be looked for; nothing when typeAhead()
///          leaves the key alone
std::optional<std::string> soughtText(const ui::TextBox& box, const ui::KeyPress& press);

/// @returns what to say of a key press that finds no row: "No name of the list begins with "qx"."; empty where one is
///          found, or nothing is looked for
std::string nothingFound(const ui::TextBox& box, const ui::ListBox& list, const ui::KeyPress& press);

/// Looks for the first row that begins with what has been typed, selects it and completes the box: the part that is not
/// yet typed is selected, so that further typing replaces it. When no row does, box and list stay as they are. A
/// Backspace looks for one character less; when none is left, it empties the box.
/// @returns whether the key was dealt with and must not reach the box. Left alone are all keys but ASCII characters and
///          Backspace, shortcuts, and Backspace in an empty box
bool typeAhead(ui::TextBox& box, ui::ListBox& list, const ui::KeyPress& press);

} // namespace tallyhoop
