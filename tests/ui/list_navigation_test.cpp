// tests/ui/list_navigation_test.cpp - what the navigation keys do to a list's selection.
#include "ui/list_navigation.h"

#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::ui {
namespace {

struct Sample : Screen {
    Sample() : Screen{"sample", "Sample"}
    {
        for (int i = 0; i < 30; ++i)
            list.rows.push_back("row " + std::to_string(i));
    }
    ListBox list{this, "list"};
};

TEST(ListNavigation, AnyNavigationKeySelectsTheFirstRowWhenNoneIsSelected)
{
    for (const Key key : {Key::Up, Key::Down, Key::PageUp, Key::PageDown}) {
        Sample sample;
        moveSelection(sample.list, key);
        EXPECT_EQ(sample.list.selected, 0);
    }
}

TEST(ListNavigation, UpAndDownMoveByOneRow)
{
    Sample sample;
    sample.list.selected = 5;
    moveSelection(sample.list, Key::Down);
    EXPECT_EQ(sample.list.selected, 6);
    moveSelection(sample.list, Key::Up);
    moveSelection(sample.list, Key::Up);
    EXPECT_EQ(sample.list.selected, 4);
}

TEST(ListNavigation, PageKeysMoveByOnePage)
{
    Sample sample;
    sample.list.selected = 5;
    moveSelection(sample.list, Key::PageDown);
    EXPECT_EQ(sample.list.selected, 5 + kListPageRows);
    moveSelection(sample.list, Key::PageUp);
    EXPECT_EQ(sample.list.selected, 5);
}

TEST(ListNavigation, StopsAtBothEnds)
{
    Sample sample;
    sample.list.selected = 0;
    moveSelection(sample.list, Key::Up);
    EXPECT_EQ(sample.list.selected, 0);
    moveSelection(sample.list, Key::PageUp);
    EXPECT_EQ(sample.list.selected, 0);

    sample.list.selected = 28;
    moveSelection(sample.list, Key::PageDown);
    EXPECT_EQ(sample.list.selected, 29);
    moveSelection(sample.list, Key::Down);
    EXPECT_EQ(sample.list.selected, 29);
}

TEST(ListNavigation, DoesNothingInAnEmptyListOrForOtherKeys)
{
    Sample sample;
    moveSelection(sample.list, Key::Left);
    EXPECT_FALSE(sample.list.selected);
    sample.list.rows.clear();
    moveSelection(sample.list, Key::Down);
    EXPECT_FALSE(sample.list.selected);
}

} // namespace
} // namespace tallyhoop::ui
