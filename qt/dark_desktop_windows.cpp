// qt/dark_desktop_windows.cpp - reads the switch of Windows' settings.
#include "qt/dark_desktop.h"

#include <QGuiApplication>
#include <QSettings>
#include <windows.h>

namespace tallyhoop::qt {

namespace {

bool isHighContrast()
{
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    const bool answered = ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0;
    return answered && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace

bool desktopIsDark()
{
    if (QGuiApplication::platformName() != QLatin1String{"windows"} || isHighContrast())
        return false;
    const QSettings themes{
        QStringLiteral(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"),
        QSettings::NativeFormat};
    return themes.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
}

} // namespace tallyhoop::qt
