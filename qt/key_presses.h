// qt/key_presses.h - keys of the window system as the screens' rules see them.
#pragma once

#include "ui/keys.h"

#include <QKeyEvent>
#include <vector>

namespace tallyhoop::qt {

/// @returns the meaning of a Qt::Key, Other when the screens know none
ui::Key keyOf(int key);

/// @returns one press per character: a key may bring several, and a letter with its accent may come in two pieces; none
/// for a key that only modifies others
std::vector<ui::KeyPress> pressesOf(const QKeyEvent& event);

} // namespace tallyhoop::qt
