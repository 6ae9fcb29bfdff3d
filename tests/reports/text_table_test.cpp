// tests/reports/text_table_test.cpp - widths, alignment and rules of a table.
#include "reports/text_table.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<TextColumn> kColumns{{"No", Align::Right}, {"Name"}, {"Sum", Align::Right}, {"Note"}};

TEST(TextTable, IsAsWideAsItsCells)
{
    const TextTable table = textTable(kColumns, std::vector<std::vector<std::string>>{
                                                    {"1", "Adams", "12.00", ""},
                                                    {"100", "Li", "7", "last of all"},
                                                });
    EXPECT_THAT(table.heading, ElementsAre(" No  Name     Sum  Note", "---  -----  -----  -----------"));
    EXPECT_THAT(table.rows, ElementsAre("  1  Adams  12.00", "100  Li         7  last of all"));
    EXPECT_EQ(table.width, 30u);
}

TEST(TextTable, IsAsWideAsItsHeadingsWithoutRows)
{
    const TextTable table = textTable(kColumns, {});
    EXPECT_THAT(table.heading, ElementsAre("No  Name  Sum  Note", "--  ----  ---  ----"));
    EXPECT_THAT(table.rows, IsEmpty());
}

} // namespace
} // namespace tallyhoop
