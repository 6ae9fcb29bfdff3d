// ui/list_navigation.cpp - how the navigation keys move the selection of a list box.
#include "ui/list_navigation.h"

#include <algorithm>

namespace tallyhoop::ui {

namespace {

int rowsMoved(Key key)
{
    switch (key) {
    case Key::Up:
        return -1;
    case Key::Down:
        return 1;
    case Key::PageUp:
        return -kListPageRows;
    case Key::PageDown:
        return kListPageRows;
    default:
        return 0;
    }
}

} // namespace

bool isNavigationKey(Key key) { return rowsMoved(key) != 0; }

void moveSelection(ListBox& list, Key key)
{
    if (!isNavigationKey(key) || list.rows.empty())
        return;
    const int last = static_cast<int>(list.rows.size()) - 1;
    list.selected = list.selected ? std::clamp(*list.selected + rowsMoved(key), 0, last) : 0;
}

} // namespace tallyhoop::ui
