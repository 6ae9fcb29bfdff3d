// qt/page_focus.h - the focus of a page in both directions, and its tab order.
#pragma once

#include "qt/control_widgets.h"
#include "ui/screen.h"

#include <optional>

namespace tallyhoop::qt {

/// The focus came to a control.
struct FocusMove {
    ui::Control* from = nullptr; ///< nullptr = there was none before
    ui::Control* to = nullptr;
};

class PageFocus
{
public:
    PageFocus(QWidget& page, ui::Screen& screen, const ControlWidgets& widgets);

    /// @returns the control that has the focus within the page, nullptr when none has it
    ui::Control* focused() const;

    /// The focus that the person moved goes into the screen; the one that the screen wants goes to its widget.
    void pull();
    void push();

    /// @returns whether the focus is on another control than takeMove() last gave
    bool hasMoved() const;

    /// @returns the move since the last call, for the screen's rules; nothing when there was none
    std::optional<FocusMove> takeMove();

    /// A control's place in the tab order changed: the next push brings all into order.
    void tabsChanged() { m_tabsChanged = true; }

    /// Gives the focus to the first control in the tab order unless the screen chose one.
    void toFirst();

private:
    void orderTabs();

    QWidget& m_page;
    ui::Screen& m_screen;
    const ControlWidgets& m_widgets;
    ui::Control* m_seen = nullptr;  ///< at the last sync
    ui::Control* m_taken = nullptr; ///< by takeMove()
    bool m_tabsChanged = false;
};

} // namespace tallyhoop::qt
