// tests/qt/screen_walk.h - looks at a window as people do who cannot see it, use no mouse, or need large letters.
#pragma once

#include "qt/page.h"

#include <QImage>
#include <QPalette>
#include <QStringList>

class QTextEdit;

namespace tallyhoop::qt {

/// What is wrong with a window or with a page of the frame, each with the control's name; empty = nothing. It has to be
/// visible.
class ScreenWalk
{
public:
    explicit ScreenWalk(QWidget& window);

    /// All that is wrong, each line headed by the kind of trouble.
    QStringList troubles() const;

    /// Controls that a screen reader does not come to, has no name for, or takes for something else than they are.
    QStringList namelessControls() const;
    QStringList wrongRoles() const;

    /// Controls that do more than their kind lets people expect, or that have a tool tip, and that say nothing of it.
    QStringList undescribedControls() const;

    /// Buttons and menus without a mnemonic, and mnemonics that mean two things at once. Buttons that Enter or Escape
    /// press need none.
    QStringList mnemonicTroubles() const;

    /// Texts that do not fit where they stand.
    QStringList clippedTexts() const;

    /// Texts that hardly stand out from the ground behind them, as painted. Disabled ones are meant to recede, but have
    /// to stay legible.
    QStringList paleTexts() const;

private:
    template <class Use>
    void forEachVisible(Use use) const;
    template <class Use>
    void forEachControl(Use use) const;
    QColor groundBehind(const QWidget& widget) const;

    QWidget& m_window;
    Page* m_page; ///< the window as a page, null when it is none
    QImage m_picture;
};

/// @returns what is told of pairs of colours that widgets use without being asked: "Text on Base: 3.1"
QStringList paleRoles(const QPalette& palette);

/// @returns the passages of a text that hardly stand out from their ground
QStringList palePassages(const QTextEdit& text);

/// The text that the widget paints itself; empty for those that scroll theirs or have none.
QString paintedText(const QWidget& widget);

/// A part that Qt makes a control of, such as the line of a spin box: the whole speaks for it.
bool isInnerPart(const QWidget& widget);

/// What failures call this widget.
QString walkedName(const QWidget& widget);

} // namespace tallyhoop::qt
