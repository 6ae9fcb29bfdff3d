// tests/qt/page_test.cpp - a control and its widget, for each kind of control.
#include "qt/sample_screen.h"

#include <QAction>
#include <QMenuBar>
#include <QStatusBar>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

TEST(Page, NamesEveryWidgetAfterItsControl)
{
    Shown shown;
    for (const ui::Control* control : shown.screen.controls()) {
        const QWidget* widget = shown.page.widgetOf(*control);
        if (widget) {
            EXPECT_EQ(widget->objectName().toStdString(), control->name);
        }
    }
    EXPECT_EQ(shown.page.objectName(), QStringLiteral("frmSample"));
    EXPECT_TRUE(shown.page.controlsWithoutWidget().empty());
}

TEST(Page, ListsTheControlsThatAViewForgot)
{
    Desk desk;
    SampleScreen screen;
    Page page{screen, desk};
    page.add(screen.lblTitle);
    const std::vector<std::string> forgotten = page.controlsWithoutWidget();
    EXPECT_EQ(forgotten.front(), "txtName");
    EXPECT_EQ(forgotten.size(), 10u); // three boxes, button, tick, three options, list, grid
}

TEST(Page, ShowsWhatACommandChanged)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.lblTitle.text = "<b>A&M</b>";
        shown.screen.lblTitle.colour = ui::Colour{255, 0, 0};
        shown.screen.txtName.enabled = false;
        shown.screen.cmdOk.caption = "&Go";
        shown.screen.chkAll.ticked = true;
        shown.screen.txtOther.visible = false;
        shown.screen.txtName.toolTip = "<i>tip</i>";
        shown.screen.txtName.spokenName = "Name";
        shown.screen.txtName.explanation = "of the player";
    });
    EXPECT_EQ(shown.page.title->text(), QStringLiteral("<b>A&M</b>"));
    EXPECT_EQ(shown.page.title->textFormat(), Qt::PlainText);
    EXPECT_EQ(shown.page.title->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    EXPECT_FALSE(shown.page.name->isEnabled());
    EXPECT_EQ(shown.page.ok->text(), QStringLiteral("&Go"));
    EXPECT_TRUE(shown.page.all->isChecked());
    EXPECT_FALSE(shown.page.other->isVisible());
    EXPECT_EQ(shown.page.name->toolTip(), QStringLiteral("<qt>&lt;i&gt;tip&lt;/i&gt;</qt>"));
    EXPECT_EQ(shown.page.name->accessibleName(), QStringLiteral("Name"));
    EXPECT_EQ(shown.page.name->accessibleDescription(), QStringLiteral("of the player"));

    shown.desk.run(shown.screen, [&] {
        shown.screen.lblTitle.colour.reset();
        shown.screen.txtOther.visible = true;
    });
    EXPECT_EQ(shown.page.title->palette().color(QPalette::WindowText),
              QApplication::palette().color(QPalette::WindowText));
    EXPECT_TRUE(shown.page.other->isVisible());
}

TEST(Page, AControlHiddenFromTheStartIsNotAWindowOfItsOwn)
{
    Desk desk;
    SampleScreen screen;
    screen.txtName.visible = false;
    SamplePage page{screen, desk};
    page.show();
    EXPECT_FALSE(page.name->isVisible());
    desk.run(screen, [&] { screen.txtName.visible = true; });
    EXPECT_TRUE(page.name->isVisible());
    EXPECT_FALSE(page.name->isWindow());
}

TEST(Page, PressingAButtonRunsItsCommand)
{
    Shown shown;
    QTest::mouseClick(shown.page.ok, Qt::LeftButton);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"ok"});
}

TEST(Page, TickingABoxReachesTheModelBeforeTheScreenIsInformed)
{
    Shown shown;
    bool seen = false;
    shown.screen.chkAll.changed = [&] { seen = shown.screen.chkAll.ticked; };
    shown.page.all->click();
    EXPECT_TRUE(seen);
}

TEST(Page, AModelThatRefusesATickIsShownUnticked)
{
    Shown shown;
    shown.screen.chkAll.changed = [&] { shown.screen.chkAll.ticked = false; };
    shown.page.all->click();
    EXPECT_FALSE(shown.page.all->isChecked());
    shown.page.all->click();
    EXPECT_FALSE(shown.page.all->isChecked());
}

TEST(Page, SelectingAnOptionDeselectsTheOthersInTheModelToo)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { ui::selectOption(shown.screen.optChoice, 0); });
    EXPECT_TRUE(shown.page.options[0]->isChecked());
    int calls = 0;
    shown.screen.optChoice[2].changed = [&] { ++calls; };
    shown.page.options[2]->click();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(shown.screen.optChoice[0].selected);
    EXPECT_TRUE(shown.screen.optChoice[2].selected);

    shown.desk.run(shown.screen, [&] { ui::selectOption(shown.screen.optChoice, 99); });
    for (const QRadioButton* option : shown.page.options)
        EXPECT_FALSE(option->isChecked());
    shown.desk.run(shown.screen, [] {});
    EXPECT_FALSE(shown.screen.optChoice[2].selected);
}

TEST(Page, OptionsAddedSinglyFormOneGroup)
{
    Desk desk;
    SampleScreen screen;
    Page page{screen, desk};
    QRadioButton* first = page.add(screen.optChoice[0]);
    QRadioButton* second = page.add(screen.optChoice[1]);
    first->click();
    second->click();
    EXPECT_FALSE(first->isChecked());
    EXPECT_FALSE(screen.optChoice[0].selected);
    EXPECT_TRUE(screen.optChoice[1].selected);
}

TEST(Page, OpensItsFirstMenuByF10)
{
    Shown shown;
    const QAction* file = shown.page.menuBar()->actions()[0];
    QTest::keyClick(&shown.page, Qt::Key_F10);
    EXPECT_TRUE(file->menu()->isVisible());
    EXPECT_EQ(shown.page.menuBar()->activeAction(), file);
    QTest::keyClick(file->menu(), Qt::Key_Escape);
    EXPECT_FALSE(file->menu()->isVisible());
}

TEST(Page, BuildsItsMenuBarFromTheScreensMenus)
{
    Shown shown;
    const QList<QAction*> bar = shown.page.menuBar()->actions();
    ASSERT_EQ(bar.size(), 2);
    EXPECT_FALSE(shown.page.menuBar()->isNativeMenuBar());
    EXPECT_EQ(bar[0]->objectName(), QStringLiteral("mnuFile"));
    EXPECT_EQ(bar[1]->objectName(), QStringLiteral("mnuReports"));
    QAction* open = shown.page.actionOf(shown.screen.mnuOpen);
    EXPECT_EQ(open->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
    open->trigger();
    bar[1]->trigger();
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"open", "reports"}));

    shown.desk.run(shown.screen, [&] {
        shown.screen.mnuOpen.enabled = false;
        shown.screen.mnuExit.visible = false;
    });
    EXPECT_FALSE(open->isEnabled());
    EXPECT_FALSE(shown.page.actionOf(shown.screen.mnuExit)->isVisible());
}

TEST(Page, AMenusShortcutRunsItsCommand)
{
    Shown shown;
    QTest::keyClick(shown.page.name, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"open"});
}

TEST(Page, ShowsTheStatusAsPlainText)
{
    Shown shown;
    EXPECT_EQ(shown.page.findChild<QStatusBar*>(), nullptr);
    shown.desk.run(shown.screen, [&] { shown.screen.status = "<b>R&D</b>"; });
    const auto* status = shown.page.findChild<QLabel*>(QStringLiteral("status"));
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->text(), QStringLiteral("<b>R&D</b>"));
    EXPECT_EQ(status->textFormat(), Qt::PlainText);
    EXPECT_TRUE(status->isVisible());
}

TEST(Page, AViewsOwnWidgetCanShowALabel)
{
    Desk desk;
    SampleScreen screen;
    Page page{screen, desk};
    QString shownText;
    auto* own = page.adopt(screen.lblTitle, new QWidget,
                           [&](const ui::Label& label) { shownText = QString::fromStdString(label.text); });
    EXPECT_EQ(shownText, QStringLiteral("A title"));
    EXPECT_EQ(own->objectName(), QStringLiteral("lblTitle"));
    desk.run(screen, [&] {
        screen.lblTitle.text = "Another";
        screen.lblTitle.enabled = false;
    });
    EXPECT_EQ(shownText, QStringLiteral("Another"));
    EXPECT_FALSE(own->isEnabled());
}

TEST(Page, ClosingItsWindowIsDecidedByTheScreen)
{
    Shown shown;
    EXPECT_FALSE(shown.page.close());
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"close"});
    EXPECT_TRUE(shown.page.isVisible());
}
