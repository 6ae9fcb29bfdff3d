// tests/ui/screen_test.cpp - a screen's controls found by name and by their place in the tab order; a list's text; news.
#include "ui/screen.h"

#include "ui/control.h"

#include <gtest/gtest.h>

namespace tallyhoop::ui {
namespace {

struct Sample : Screen {
    Sample() : Screen{"sample", "Sample"} { box.tabIndex = 3; }

    Command longer{this, "cmdOkAgain", "Again"};
    Command shorter{this, "cmdOk", "OK"};
    TextBox box{this, "txtName"};
    ListBox list{this, "lstNames"};
};

TEST(Screen, FindsAControlByItsWholeName)
{
    const Sample sample;
    EXPECT_EQ(sample.find("cmdOk"), &sample.shorter);
    EXPECT_EQ(sample.find("cmdO"), nullptr);
}

TEST(Screen, FindsAControlByItsPlaceInTheTabOrder)
{
    const Sample sample;
    EXPECT_EQ(sample.controlAtTab(3), &sample.box);
    EXPECT_EQ(sample.controlAtTab(4), nullptr);
}

TEST(ListBox, HasTheTextOfTheSelectedRowOnly)
{
    Sample sample;
    sample.list.rows = {"Adams", "Baker"};
    EXPECT_EQ(sample.list.selectedText(), "");
    sample.list.selected = 1;
    EXPECT_EQ(sample.list.selectedText(), "Baker");
}

TEST(ScreenNews, IsWhatWasSaidLast)
{
    Screen screen{"frmSample", "Sample"};
    EXPECT_EQ(screen.news().text, "");
    screen.say("Opened Smith_JS.THC.");
    screen.say("Saved Smith_JS.THC.");
    EXPECT_EQ(screen.news().text, "Saved Smith_JS.THC.");
    screen.say({});
    EXPECT_EQ(screen.news().text, "");
}

TEST(ScreenNews, IsNewWhenTheSameIsSaidAgain)
{
    Screen screen{"frmSample", "Sample"};
    screen.say("Saved.");
    const Screen::News before = screen.news();
    screen.say("Saved.");
    EXPECT_FALSE(screen.news() == before);
}

TEST(ScreenNews, ThatThereIsNoneIsNotNew)
{
    Screen screen{"frmSample", "Sample"};
    const Screen::News before = screen.news();
    screen.say({});
    EXPECT_TRUE(screen.news() == before);
}

} // namespace
} // namespace tallyhoop::ui
