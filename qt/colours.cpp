// qt/colours.cpp - palettes of the program's own instead of the desktop's, and a file that keeps the choice.
#include "qt/colours.h"

#include "qt/style.h"

#include <QApplication>
#include <QSettings>

namespace tallyhoop::qt {

namespace {

constexpr const char* kKey = "colours";
constexpr const char* kLight = "light";
constexpr const char* kDark = "dark";

/// Not in the system's native format, which main() has turned off.
QSettings settings()
{
    return QSettings{QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Tallyhoop"),
                     QStringLiteral("Tallyhoop")};
}

Colours& used()
{
    static Colours colours = Colours::Desktop;
    return colours;
}

QPalette paletteOf(Colours colours)
{
    switch (colours) {
    case Colours::Light:
        return Style::calmPalette();
    case Colours::Dark:
        return Style::darkPalette();
    case Colours::Desktop:
        break;
    }
    return {}; // defines no colour: each is the desktop's, and follows it
}

} // namespace

void useColours(Colours colours)
{
    if (colours == used())
        return;
    used() = colours;
    QApplication::setPalette(paletteOf(colours));
}

Colours usedColours() { return used(); }

void keepColours(Colours colours)
{
    QSettings kept = settings();
    if (colours == Colours::Desktop)
        kept.remove(QLatin1String{kKey});
    else
        kept.setValue(QLatin1String{kKey}, QLatin1String{colours == Colours::Dark ? kDark : kLight});
}

Colours keptColours()
{
    const QString kept = settings().value(QLatin1String{kKey}).toString();
    if (kept == QLatin1String{kDark})
        return Colours::Dark;
    return kept == QLatin1String{kLight} ? Colours::Light : Colours::Desktop;
}

} // namespace tallyhoop::qt
