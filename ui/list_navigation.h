// ui/list_navigation.h - how the navigation keys move the selection of a list box.
//
// A screen that forwards keys to a list, and handles the same keys when the list itself has the focus, moves it alike
// both times by using this for both.
#pragma once

#include "ui/control.h"
#include "ui/keys.h"

namespace tallyhoop::ui {

/// Rows that Page Up and Page Down move by. A constant, so that the logic needs to know nothing of a window's height;
/// no larger than what a list shows in the smallest window, so that no row is passed unseen.
inline constexpr int kListPageRows = 12;

/// @returns true for Up, Down, Page Up and Page Down
bool isNavigationKey(Key key);

/// Moves the selection as the key says, stopping at the first and at the last row. Without a selection any of the keys
/// selects the first row. Nothing happens for other keys and in an empty list.
void moveSelection(ListBox& list, Key key);

} // namespace tallyhoop::ui
