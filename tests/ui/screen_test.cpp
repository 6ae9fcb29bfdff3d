// tests/ui/screen_test.cpp - what a screen says.
#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::ui {
namespace {

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
