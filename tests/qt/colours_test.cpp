// tests/qt/colours_test.cpp - the choice between the desktop's, light and dark colours.
#include "qt/colours.h"

#include "fakes/scratch_folder.h"
#include "qt/accessibility.h"
#include "qt/colour_menu.h"
#include "qt/sample_screen.h"
#include "qt/services/help_window.h"
#include "qt/style.h"

#include <QAction>
#include <QMenu>
#include <QSettings>
#include <QTextBlock>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

QColor windowColour() { return QApplication::palette().color(QPalette::Window); }

/// A person with settings of their own, and a desktop with light colours.
class ColoursTest : public testing::Test
{
protected:
    ColoursTest()
    {
        QApplication::setStyle(new Style);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(scratch.path().string()));
    }
    ~ColoursTest() override { useColours(Colours::Desktop); }

    static void choose(const QAction& menu, const char* name)
    {
        menu.menu()->findChild<QAction*>(QLatin1String{name})->trigger();
        QApplication::processEvents(); // brings the new colours to the windows
    }

    static QString ticked(const QAction& menu)
    {
        QString names;
        for (const QAction* const action : menu.menu()->actions())
            names += action->isChecked() ? action->objectName() : QString{};
        return names;
    }

    tallyhoop::test::ScratchFolder scratch;
};

TEST_F(ColoursTest, AreThoseOfTheDesktopUntilOthersAreChosen)
{
    const QPalette desktop = QApplication::palette();
    EXPECT_EQ(keptColours(), Colours::Desktop);
    EXPECT_EQ(usedColours(), Colours::Desktop);

    useColours(Colours::Dark);
    EXPECT_EQ(usedColours(), Colours::Dark);
    EXPECT_LT(windowColour().lightness(), 80);
    useColours(Colours::Light);
    EXPECT_GT(windowColour().lightness(), 220);
    useColours(Colours::Dark);
    useColours(Colours::Desktop);
    EXPECT_EQ(QApplication::palette(), desktop);
    EXPECT_EQ(QApplication::palette().resolveMask(), 0U) << "a desktop that changes its colours must be followed";
}

TEST_F(ColoursTest, AreReadable)
{
    for (const Colours colours : {Colours::Light, Colours::Dark}) {
        useColours(colours);
        EXPECT_EQ(paleRoles(QApplication::palette()).join('\n').toStdString(), "");
    }
}

TEST_F(ColoursTest, AreKeptForTheNextStart)
{
    for (const Colours colours : {Colours::Dark, Colours::Light, Colours::Desktop}) {
        keepColours(colours);
        EXPECT_EQ(keptColours(), colours);
    }
}

TEST_F(ColoursTest, AreThoseOfTheDesktopWhenWhatWasKeptIsDamaged)
{
    keepColours(Colours::Dark);
    ASSERT_TRUE(scratch.has("Tallyhoop/Tallyhoop.ini"));
    scratch.put("Tallyhoop/Tallyhoop.ini", "[General]\ncolours=purple\n");
    EXPECT_EQ(keptColours(), Colours::Desktop);
}

TEST_F(ColoursTest, AreChosenInAMenuThatTicksThoseInUse)
{
    test::Shown shown;
    const QAction& menu = *colourMenu(shown.page);
    EXPECT_EQ(ticked(menu), QStringLiteral("mnuViewColoursDesktop"));

    choose(menu, "mnuViewColoursDark");
    EXPECT_EQ(ticked(menu), QStringLiteral("mnuViewColoursDark"));
    EXPECT_EQ(shown.page.palette().color(QPalette::Window), windowColour());
    EXPECT_LT(windowColour().lightness(), 80);
    EXPECT_EQ(keptColours(), Colours::Dark);
    EXPECT_EQ(ticked(*colourMenu(shown.page)), QStringLiteral("mnuViewColoursDark")) << "on a board shown later, too";
}

TEST_F(ColoursTest, ChangeLockedBoxesWithTheWindow)
{
    test::Shown shown;
    shown.screen.txtName.locked = true;
    shown.desk.push();
    const QWidget& box = *shown.page.widgetOf(shown.screen.txtName);
    ASSERT_EQ(box.palette().color(QPalette::Base), windowColour());
    choose(*colourMenu(shown.page), "mnuViewColoursDark");
    EXPECT_EQ(box.palette().color(QPalette::Base), windowColour());
}

TEST_F(ColoursTest, ChangeTheLinksOfAnOpenHelp)
{
    HelpWindow help{nullptr};
    help.setHelp("<p><a href='#there'>there</a></p>");
    help.show();
    useColours(Colours::Dark);
    QApplication::processEvents();
    const QTextBlock line = help.findChild<QTextBrowser*>()->document()->firstBlock();
    EXPECT_EQ(line.begin().fragment().charFormat().foreground().color(), QApplication::palette().color(QPalette::Link));
}

} // namespace
} // namespace tallyhoop::qt
