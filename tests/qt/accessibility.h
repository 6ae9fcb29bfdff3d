// tests/qt/accessibility.h - by day and by night: the colours in which every window is looked at.
#pragma once

#include "qt/screen_walk.h"
#include "qt/style.h"

#include <QApplication>
#include <gtest/gtest.h>
#include <string>

namespace tallyhoop::qt {

enum class Light { Day, Night };

/// As desktops have it at night.
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

/// Puts the application into this light for as long as it lives.
class Lit
{
public:
    explicit Lit(Light light)
    {
        QApplication::setStyle(new Style);
        if (light == Light::Day) {
            QApplication::setPalette(Style::calmPalette());
            return;
        }
        // Mended as the program does it when it starts.
        QApplication::setPalette(Style::mendedRoles(darkPalette()).resolve(darkPalette()));
    }
    ~Lit() { QApplication::setPalette(m_before); }
    Lit(const Lit&) = delete;
    Lit& operator=(const Lit&) = delete;

private:
    const QPalette m_before = QApplication::palette();
};

inline std::string troublesOf(QWidget& window) { return ScreenWalk{window}.troubles().join('\n').toStdString(); }

inline std::string lightName(const testing::TestParamInfo<Light>& light)
{
    return light.param == Light::Day ? "Light" : "Dark";
}

} // namespace tallyhoop::qt
