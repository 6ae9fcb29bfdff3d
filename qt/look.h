// qt/look.h - the spacing, fonts and colours that every view shares.
#pragma once

#include "ui/colour.h"
#include "ui/control.h"

#include <QBoxLayout>
#include <QColor>
#include <QFont>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPalette>

class QApplication;

namespace tallyhoop::qt::look {

inline constexpr int kTight = 4;    ///< between things that belong together, in device-independent pixels
inline constexpr int kGap = 8;      ///< between controls
inline constexpr int kSection = 16; ///< between groups, and around a page

/// Sets the application's style and font once, light or dark as the platform's palette says.
void apply(QApplication& application);

/// Type scale, relative to the application's font.
QFont headingFont();
QFont smallFont();
QFont boldFont();
QFont fixedFont();

/// @returns a caption of the view itself (not a control): plain text, in the scale's font
QLabel* heading(const QString& text);
QLabel* hint(const QString& text); ///< smaller, and paler than the text around it; wraps

/// Layouts with the scale's spacing; the margins are 0 for a part, kSection around a page.
QVBoxLayout* column(int spacing = kGap);
QHBoxLayout* row(int spacing = kGap);
void pageMargins(QLayout& layout);

/// @returns a titled group around this layout
QGroupBox* group(const QString& title, QLayout* content);

QColor toQColor(ui::Colour colour);

/// @returns a line icon drawn in the palette's text colour, null for none
QIcon menuIcon(ui::MenuIcon icon);

/// Gives boxes and lists a background of this colour, and their text black or white, whichever has more contrast.
/// Disabled text is paler.
void setBackground(QPalette& palette, const QColor& background);

/// Contrast between two colours, 1..21.
double contrast(const QColor& one, const QColor& other);

} // namespace tallyhoop::qt::look
