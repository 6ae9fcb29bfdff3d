// ui/screen.h - a screen is its controls by name, its menus as data, and what it does on keys, focus and closing.
#pragma once

#include "ui/control.h"
#include "ui/keys.h"

#include <span>
#include <string>
#include <vector>

namespace tallyhoop::ui {

class Screen
{
public:
    /// @param name    the window's objectName, such as "frmPoolMain"
    /// @param caption the window's title
    Screen(std::string name, std::string caption);
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const std::string name;
    std::string caption;
    std::string document;            ///< what is open, for the frame's title bar; empty = nothing worth naming
    bool unsaved = false;            ///< there are changes that no file holds yet
    std::string status;              ///< the screen's state in words, always shown in the status line; empty = none
    std::string hint;                ///< what to do now, shown until a control explains itself; empty = nothing to say
    std::vector<MenuEntry*> menuBar; ///< menus and plain commands, left to right
    Control* focused = nullptr;      ///< who has the focus; assign to move it

    /// @returns the anchor of the help topic that fits the screen as it is now; empty = the help's beginning
    virtual std::string helpTopic() const { return {}; }

    /// Derives what the controls show from the screen's own values. Runs after each command, whoever's it was, and
    /// before each question: no command has to remember what it made stale.
    virtual void showState() {}

    /// Runs once the window exists, before it is first seen. Messages may be shown.
    virtual void load() {}

    /// The person closed the window or pressed Escape.
    virtual void closeRequested() {}

    /// Runs right before the screen is destroyed, whoever unloads it.
    virtual void unloading() {}

    /// @returns true when the key was dealt with and must not reach the control
    virtual bool keyPressed(Control& control, const KeyPress& press);

    /// The person moved the focus (by mouse, keyboard or an assistive tool), or a command did.
    virtual void gotFocus(Control& control);
    virtual void lostFocus(Control& control);

    /// Text pasted or dropped into a box. @returns true when it was dealt with and must not be inserted
    virtual bool pasted(TextBox& box, const std::string& text);

    /// @returns the control at this tab position, nullptr when there is none
    Control* controlAtTab(int tabIndex) const;

    /// @returns the control of this name, nullptr when there is none
    Control* find(std::string_view controlName) const;

    /// @returns all controls in order of declaration
    std::span<Control* const> controls() const { return m_controls; }

private:
    friend struct Control;
    void list(Control& control) { m_controls.push_back(&control); }

    std::vector<Control*> m_controls;
};

} // namespace tallyhoop::ui
