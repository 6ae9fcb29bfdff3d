// qt/status_line.h - the line below a page: one sentence of what the screen has to say, and its status.
#pragma once

#include "ui/screen.h"

#include <QPoint>
#include <QString>
#include <optional>

class QMainWindow;

namespace tallyhoop::qt {

class ElidedLabel;

/// Chooses the sentence by the order that ui/screen.h gives. There is no line until there is a text for it: a page
/// without any keeps the room for its controls.
class StatusLine
{
public:
    StatusLine(QMainWindow& page, const ui::Screen& screen);

    /// @param where the pointer is, on the desktop
    void pointerCameTo(const ui::Control& control, const QPoint& where);
    void pointerLeft(const ui::Control& control);

    /// The focus came to another control. One that came with the window, or by a command that said something as well,
    /// does not count as reached.
    /// @param first no control had it before
    void focusMoved(bool first);

    /// A command begins: the focus that moves from now on moves after all that was said.
    void commandBegins() { m_spokenNow = false; }

    /// @param explanation empty = no entry is highlighted any more
    void entryReached(const QString& explanation);

    /// Shows what the screen and its controls hold now.
    /// @param focus the control that has the focus, nullptr when none has it
    void show(const ui::Control* focus);

private:
    bool isNeeded() const;
    void make();
    void listen();
    void explain();
    QString sentence() const;

    QMainWindow& m_page;
    const ui::Screen& m_screen;
    ElidedLabel* m_sentence = nullptr; ///< nullptr until there is a text
    ElidedLabel* m_status = nullptr;
    const ui::Control* m_focus = nullptr;

    // What was reached since the screen last spoke.
    const ui::Control* m_pointed = nullptr; ///< where the pointer is
    bool m_pointerMoved = false;            ///< it came there since then
    bool m_focusMoved = false;
    bool m_spokenNow = false;        ///< in the command that is running
    std::optional<QPoint> m_restsAt; ///< the pointer, as long as it has not moved since the screen spoke

    QString m_entryExplained; ///< of the highlighted menu entry; empty = none
    ui::Screen::News m_heard; ///< the screen's news and explanation when it last spoke
    std::string m_heardExplanation;
};

} // namespace tallyhoop::qt
