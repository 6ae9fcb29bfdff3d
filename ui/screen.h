// ui/screen.h - a screen is its controls by name, its menus as data, and what it does on keys, focus and closing.
//
// A screen tells the person three things, and each has one place:
//
//   what this place does   explanation, of a control, of a menu entry, of the screen itself
//   how things stand       status; the emptyNote of a list without rows
//   what just happened     news, set by say()
//
// The status line shows the status at its right end, always. Its left end shows one sentence, the first that there is:
//
//   1. the explanation of the menu entry that is highlighted, while it is
//   2. the explanation of the control that was reached last: where the pointer is, else where the focus was moved to
//   3. the news
//   4. the explanation of the screen
//   5. the explanation of the control that has the focus
//
// When a screen says something, or its own explanation changes, a control has to be reached anew to count for 2, and
// the focus that the same command moved does not count: what happens last is shown. A pointer at rest reaches nothing,
// also when a box closes and leaves it above another control.
#pragma once

#include "ui/control.h"
#include "ui/keys.h"

#include <filesystem>
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
    std::string explanation;         ///< what this place does: what to do here now; empty = none
    std::string status;              ///< how things stand, in words; empty = none
    std::vector<MenuEntry*> menuBar; ///< menus and plain commands, left to right
    Control* focused = nullptr;      ///< who has the focus; assign to move it

    /// What just happened.
    struct News {
        std::string text; ///< a sentence; empty = nothing worth saying
        int number = 0;   ///< counts what was said, so that the same sentence is news again

        friend bool operator==(const News&, const News&) = default;
    };

    /// Says what just happened. @param sentence empty = nothing any more
    void say(std::string sentence);
    const News& news() const { return m_news; }

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

    /// Whether files that are dropped onto the window are of use now.
    virtual bool takesFiles() const { return false; }

    /// Files or folders were dropped onto the window. @pre takesFiles()
    virtual void filesDropped(const std::vector<std::filesystem::path>& files);

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
    News m_news;
};

} // namespace tallyhoop::ui
