// tests/qt/page_focus_test.cpp - the focus in the model and in the widgets.
#include "qt/sample_screen.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

struct Focused : Shown {
    Focused()
    {
        desk.run(screen, [this] { screen.focused = &screen.txtName; });
        screen.logFocus = true;
    }
};

} // namespace

TEST(PageFocus, ACommandMovesTheFocusAndTheScreenIsInformed)
{
    Focused shown;
    shown.desk.run(shown.screen, [&] { shown.screen.focused = &shown.screen.txtOther; });
    EXPECT_TRUE(shown.page.other->hasFocus());
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"lost txtName", "got txtOther"}));
}

TEST(PageFocus, FocusByTabAndMouseIsReported)
{
    Focused shown;
    QTest::keyClick(shown.page.name, Qt::Key_Tab);
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"lost txtName", "got txtOther"}));
    EXPECT_EQ(shown.screen.focused, &shown.screen.txtOther);
    shown.screen.log.clear();
    QTest::mouseClick(shown.page.ok, Qt::LeftButton);
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"lost txtOther", "got cmdOk", "ok"}));
}

TEST(PageFocus, ADialogOrAnotherWindowDoesNotChangeTheScreensFocus)
{
    Focused shown;
    QDialog dialog{&shown.page};
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    dialog.exec();
    QWidget other;
    other.show();
    activate(other);
    activate(shown.page);
    EXPECT_TRUE(shown.screen.log.empty());
    EXPECT_TRUE(shown.page.name->hasFocus());
}

TEST(PageFocus, AControlThatCannotHaveTheFocusDoesNotKeepIt)
{
    Focused shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.focused = &shown.screen.txtOther;
        shown.screen.txtOther.enabled = false;
    });
    EXPECT_TRUE(shown.page.name->hasFocus());
    EXPECT_EQ(shown.screen.focused, &shown.screen.txtName);
    EXPECT_TRUE(shown.screen.log.empty());
}

TEST(PageFocus, DisablingTheFocusedControlInformsTheScreenOfTheNewOne)
{
    Focused shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.enabled = false; });
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"lost txtName", "got txtOther"}));
    EXPECT_EQ(shown.screen.focused, &shown.screen.txtOther);
}

TEST(PageFocus, ARuleMayMoveTheFocusFurther)
{
    class Relay : public SampleScreen
    {
        void gotFocus(ui::Control& control) override
        {
            SampleScreen::gotFocus(control);
            if (&control == &txtOther)
                focused = &cmdOk;
        }
    };
    Desk desk;
    Relay screen;
    SamplePage page{screen, desk};
    page.show();
    desk.run(screen, [&] { screen.focused = &screen.txtName; });
    screen.logFocus = true;
    desk.run(screen, [&] { screen.focused = &screen.txtOther; });
    EXPECT_EQ(screen.focused, &screen.cmdOk);
    EXPECT_EQ(screen.log, (std::vector<std::string>{"lost txtName", "got txtOther", "lost txtOther", "got cmdOk"}));
}

TEST(PageFocus, TheTabOrderFollowsTheTabIndexAndThenTheDeclaration)
{
    Desk desk;
    SampleScreen screen;
    screen.cmdOk.tabIndex = 0;
    screen.txtOther.tabIndex = 1;
    SamplePage page{screen, desk};
    page.focusFirst();
    desk.push();
    page.show();
    activate(page);
    EXPECT_TRUE(page.ok->hasFocus());
    QTest::keyClick(page.ok, Qt::Key_Tab);
    EXPECT_TRUE(page.other->hasFocus());
    QTest::keyClick(page.other, Qt::Key_Tab);
    EXPECT_TRUE(page.name->hasFocus()); // the first declared of those without an index
}

TEST(PageFocus, ABoxWithoutATabStopIsReachedByAClickOnly)
{
    Focused shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtOther.tabStop = false; });
    QTest::keyClick(shown.page.name, Qt::Key_Tab);
    EXPECT_TRUE(shown.page.notes->hasFocus());
    QTest::mouseClick(shown.page.other, Qt::LeftButton);
    EXPECT_TRUE(shown.page.other->hasFocus());
    shown.desk.run(shown.screen, [&] { shown.screen.txtOther.tabStop = true; });
    shown.page.name->setFocus();
    QTest::keyClick(shown.page.name, Qt::Key_Tab);
    EXPECT_TRUE(shown.page.other->hasFocus());
}
