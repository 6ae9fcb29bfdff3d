// tests/qt/dark_desktop_windows_test.cpp - Windows' switch between light and dark programs is followed.
#include "qt/style.h"

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <gtest/gtest.h>
#include <windows.h>

namespace tallyhoop::qt {
namespace {

class DarkDesktop : public testing::Test
{
protected:
    void SetUp() override
    {
        if (QGuiApplication::platformName() != QLatin1String{"windows"})
            GTEST_SKIP() << "the offscreen platform has no desktop";
        QApplication::setPalette(QPalette{});
        window.show();
        if (!::IsWindowVisible(reinterpret_cast<HWND>(window.winId())))
            GTEST_SKIP() << "there is no display";
    }

    ~DarkDesktop() override
    {
        if (before.isValid())
            themes.setValue(key, before);
        else
            themes.remove(key);
    }

    /// As Windows' settings do.
    void set(bool dark)
    {
        themes.setValue(key, dark ? 0 : 1);
        themes.sync();
        ::SendMessageW(reinterpret_cast<HWND>(window.winId()), WM_SETTINGCHANGE, 0,
                       reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
        QApplication::processEvents();
    }

    static QColor background(const char* widgets = nullptr)
    {
        return (widgets ? QApplication::palette(widgets) : QApplication::palette()).color(QPalette::Window);
    }

    QWidget window;
    QSettings themes{
        QStringLiteral(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"),
        QSettings::NativeFormat};
    const QString key = QStringLiteral("AppsUseLightTheme");
    const QVariant before = themes.value(key);
};

TEST_F(DarkDesktop, IsFollowedWhileTheProgramRuns)
{
    const QColor dark = Style::darkPalette().color(QPalette::Window);
    set(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.palette().color(QPalette::Window) == dark; }));
    EXPECT_EQ(background(), dark);
    for (const char* widgets : {"QMenu", "QMenuBar", "QCheckBox", "QRadioButton"})
        EXPECT_EQ(background(widgets), dark) << widgets;

    set(false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.palette().color(QPalette::Window).lightness() > 200; }));
    EXPECT_GT(background().lightness(), 200);
    EXPECT_GT(background("QMenu").lightness(), 200);
}

TEST_F(DarkDesktop, GivesWayToTheColoursThatThePersonChose)
{
    set(true);
    QApplication::setPalette(Style::calmPalette());
    EXPECT_EQ(background(), Style::calmPalette().color(QPalette::Window));
    EXPECT_EQ(background("QMenu"), background());
    set(false);
    set(true);
    EXPECT_EQ(background(), Style::calmPalette().color(QPalette::Window));
    EXPECT_EQ(background("QMenu"), background());
    QApplication::setPalette(QPalette{});
}

} // namespace
} // namespace tallyhoop::qt
