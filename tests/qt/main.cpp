// tests/qt/main.cpp - runs the Qt tests inside a Qt application.
#include "qt/look.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CUPS_SERVER", "/no/printers"); // no test may reach a printer of this machine
    QApplication application{argc, argv};
#ifdef _WIN32
    // What fontconfig does on Linux. Windows itself has Courier New; these tests have the fonts of their folder only.
    QFont::insertSubstitution(QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"));
    QFont font = QApplication::font();
    font.setHintingPreference(QFont::PreferVerticalHinting);
    QApplication::setFont(font);
#endif
    tallyhoop::qt::look::apply(application); // the resources of the icons, and the style people see
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
