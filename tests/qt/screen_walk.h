// tests/qt/screen_walk.h - looks at a screen as people do who cannot see it, use no mouse, or need large letters.
#pragma once

#include "ui/qt/page.h"

#include <QImage>
#include <QPalette>
#include <QStringList>

namespace tallyhoop::qt {

/// What is wrong with a screen, each with the control's name; empty = nothing. The page has to be visible.
class ScreenWalk
{
public:
    explicit ScreenWalk(Page& page);

    /// Controls that a screen reader has no name for, or takes for something else than they are.
    QStringList namelessControls() const;
    QStringList wrongRoles() const;

    /// Buttons and menus without a mnemonic, and mnemonics that mean two things at once.
    QStringList mnemonicTroubles() const;

    /// Texts that do not fit where they stand.
    QStringList clippedTexts() const;

    /// Texts that hardly stand out from the ground behind them, as painted. Disabled ones are meant to recede.
    QStringList paleTexts() const;

private:
    template <class Use>
    void forEachVisible(Use use) const;
    QColor groundBehind(const QWidget& widget) const;

    Page& m_page;
    QImage m_picture;
};

/// @returns what is told of pairs of colours that widgets use without being asked: "Text on Base: 3.1"
QStringList paleRoles(const QPalette& palette);

} // namespace tallyhoop::qt
