// tests/qt/screen_walk.h - checks a window for people who cannot see it, use no mouse, or need large letters.
#pragma once

#include "qt/page.h"

#include <QImage>
#include <QPalette>
#include <QStringList>

class QTextEdit;

namespace tallyhoop::qt {

/// Lists what is wrong with a visible window or page of the frame, each with the control's name; empty = nothing.
class ScreenWalk
{
public:
    explicit ScreenWalk(QWidget& window);

    /// All that is wrong, each line beginning with the kind of trouble.
    QStringList troubles() const;

    /// Controls that a screen reader does not reach, has no name for, or announces with a wrong role.
    QStringList namelessControls() const;
    QStringList wrongRoles() const;

    /// Controls without a description that do more than their kind suggests, or that have a tool tip.
    QStringList undescribedControls() const;

    /// Buttons and menus without a mnemonic, and mnemonics that mean two things at once. Buttons that Enter or Escape
    /// press need none.
    QStringList mnemonicTroubles() const;

    /// Texts that do not fit their place.
    QStringList clippedTexts() const;

    /// Texts with too little contrast with their background, as painted. Disabled ones may have less, but have to stay
    /// legible.
    QStringList paleTexts() const;

private:
    template <class Use>
    void forEachVisible(Use use) const;
    template <class Use>
    void forEachControl(Use use) const;
    QColor backgroundOf(const QWidget& widget) const;

    QWidget& m_window;
    Page* m_page; ///< the window as a page, null when it is none
    QImage m_picture;
};

/// @returns pairs of a palette's colours with too little contrast, such as "Text on Base: 3.1"
QStringList paleRoles(const QPalette& palette);

/// @returns the passages of a text with too little contrast with their background
QStringList palePassages(const QTextEdit& text);

/// The text that the widget paints itself; empty for those that scroll theirs or have none.
QString paintedText(const QWidget& widget);

/// @returns whether this is only a part of which Qt makes a control, such as the line of a spin box
bool isInnerPart(const QWidget& widget);

/// @returns the name of the widget for messages of failures
QString walkedName(const QWidget& widget);

} // namespace tallyhoop::qt
