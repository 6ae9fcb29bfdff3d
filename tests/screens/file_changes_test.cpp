// tests/screens/file_changes_test.cpp - what two versions of a file differ in, and how much of it is shown.
#include "screens/file_changes.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileChanges, AreTheLinesThatOnlyOneOfTheFilesHas)
{
    EXPECT_THAT(changedLines("Duke\r\nKansas\r\nUtah\r\n", "Iowa\r\nDuke\r\nUtah\r\nMaine\r\n"),
                ElementsAre("Only here: Kansas", "Only in the file: Iowa", "Only in the file: Maine"));
    EXPECT_THAT(changedLines("Duke\r\nUtah\r\n", "Utah\nDuke"), IsEmpty()) << "in whatever order and ended however";
}

TEST(FileChanges, CountALineThatIsThereTwice)
{
    EXPECT_THAT(changedLines("Duke\r\nDuke\r\nDuke\r\n", "Duke\r\n"),
                ElementsAre("Only here: Duke", "Only here: Duke"));
}

TEST(FileChanges, LeaveOutTheBlanksThatPadAField)
{
    EXPECT_THAT(changedLines("", "\"Smith,JS    \",\"SMITH_JS.THC   \"\r\n"),
                ElementsAre("Only in the file: \"Smith,JS \",\"SMITH_JS.THC \""));
}

} // namespace
} // namespace tallyhoop::test
