// tests/qt/accessibility.h - the light and the dark colours in which every window is checked.
#pragma once

#include "qt/screen_walk.h"
#include "qt/style.h"

#include <QApplication>
#include <gtest/gtest.h>
#include <string>

namespace tallyhoop::qt {

enum class ColourScheme { Light, Dark };

/// A dark palette as desktops have it.
inline QPalette darkPalette()
{
    QPalette palette{QColor{0x31, 0x36, 0x3b}, QColor{0x2a, 0x2e, 0x32}};
    palette.setColor(QPalette::Base, QColor{0x1b, 0x1e, 0x20});
    palette.setColor(QPalette::AlternateBase, QColor{0x23, 0x26, 0x29});
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::HighlightedText})
        palette.setColor(role, QColor{0xfc, 0xfc, 0xfc});
    palette.setColor(QPalette::PlaceholderText, QColor{0xa1, 0xa9, 0xb1});
    palette.setColor(QPalette::Highlight, QColor{0x1d, 0x6f, 0xa5});
    palette.setColor(QPalette::ToolTipBase, QColor{0x31, 0x36, 0x3b});
    return palette;
}

/// Gives the application these colours while the object exists.
class UsedColours
{
public:
    explicit UsedColours(ColourScheme colours)
    {
        QApplication::setStyle(new Style);
        if (colours == ColourScheme::Light) {
            QApplication::setPalette(Style::calmPalette());
            return;
        }
        // Corrected as the program does it when it starts.
        QApplication::setPalette(Style::readableRoles(darkPalette()).resolve(darkPalette()));
    }
    ~UsedColours() { QApplication::setPalette(m_before); }
    UsedColours(const UsedColours&) = delete;
    UsedColours& operator=(const UsedColours&) = delete;

private:
    const QPalette m_before = QApplication::palette();
};

inline std::string troublesOf(QWidget& window) { return ScreenWalk{window}.troubles().join('\n').toStdString(); }

inline std::string colourName(const testing::TestParamInfo<ColourScheme>& colours)
{
    return colours.param == ColourScheme::Light ? "Light" : "Dark";
}

} // namespace tallyhoop::qt
