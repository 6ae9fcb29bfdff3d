// tests/screens/outlook/side_labels_test.cpp - labels that are moved apart, and those that need not be.
#include "screens/outlook/side_labels.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using Middles = std::vector<double>;

TEST(SideLabels, StayWhereThereIsRoom)
{
    EXPECT_EQ(movedApart({10, 30, 90}, 20, 0, 100), (Middles{10, 30, 90}));
    EXPECT_EQ(movedApart({}, 20, 0, 100), Middles{});
}

TEST(SideLabels, MoveDownBelowOneThatIsTooNear)
{
    EXPECT_EQ(movedApart({20, 25, 70}, 20, 0, 100), (Middles{20, 40, 70}));
}

TEST(SideLabels, MoveUpWhereTheLastWouldBeTooLow)
{
    // The last can be at 90 at most, and those before it 20 higher each.
    EXPECT_EQ(movedApart({20, 80, 85, 95}, 20, 0, 100), (Middles{20, 50, 70, 90}));
}

TEST(SideLabels, StayBetweenTopAndBottom)
{
    EXPECT_EQ(movedApart({0, 0, 0}, 20, 0, 60), (Middles{10, 30, 50})) << "no room to spare";
    EXPECT_EQ(movedApart({60, 60, 60}, 20, 0, 60), (Middles{10, 30, 50}));
}

} // namespace
} // namespace tallyhoop::test
