// ui/keys.h - a key as the screens' rules see it.
#pragma once

namespace tallyhoop::ui {

enum class Key {
    Character, ///< a printable character; see KeyPress::character
    Enter,
    Backspace,
    Delete,
    Escape,
    Tab,
    Up,
    Down,
    Left,
    Right,
    PageUp,
    PageDown,
    Home,
    End,
    Other,
};

/// One key press. Text that arrives in one piece (an input method) comes as one press per character.
struct KeyPress {
    Key key = Key::Other;
    char character = 0;   ///< Windows-1252 byte of Key::Character, else 0
    bool control = false; ///< a command key is held: the press is a shortcut, not text
    bool alt = false;
    bool shift = false;
};

} // namespace tallyhoop::ui
