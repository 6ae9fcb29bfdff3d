// tests/pool/pool_lines_test.cpp - the pool nobody has set up yet.
#include "pool/pool_lines.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(DefaultSetup, NamesTheTeamsTeam1ToTeam64)
{
    const SetupLines lines = defaultSetupLines();
    EXPECT_EQ(lines[0], "TEAM1");
    EXPECT_EQ(lines[32], "TEAM33"); // first team of region 3
    EXPECT_EQ(lines[63], "TEAM64");
}

TEST(DefaultSetup, GivesOneDigitSeedsALeadingBlank)
{
    const SetupLines lines = defaultSetupLines();
    const char* const seeds[16] = {" 1", "16", " 8", " 9", " 5", "12", " 4", "13",
                                   " 6", "11", " 3", "14", " 7", "10", " 2", "15"};
    for (std::size_t row = 0; row < 16; ++row)
        EXPECT_EQ(lines[75 + row], seeds[row]) << "row " << row;
}

TEST(DefaultSetup, HasTitlesPayoffsNoCommentsAndAnOpenField)
{
    const SetupLines lines = defaultSetupLines();
    EXPECT_EQ(lines[64], "2001 NCAA Tournament");
    EXPECT_EQ(lines[65], "West Region");
    EXPECT_EQ(lines[66], "Midwest Region");
    EXPECT_EQ(lines[67], "East Region");
    EXPECT_EQ(lines[68], "South Region");
    const char* const payoffs[6] = {"1", "2", "4", "8", "12", "16"};
    for (std::size_t round = 0; round < 6; ++round)
        EXPECT_EQ(lines[69 + round], payoffs[round]);
    EXPECT_EQ(lines[91], "");
    EXPECT_EQ(lines[92], "");
    EXPECT_EQ(lines[93], "0");
    EXPECT_EQ(lines[94], "*END*");
    for (std::size_t unused = 95; unused <= 100; ++unused)
        EXPECT_EQ(lines[unused], "");
}

TEST(Finalized, IsExactlyOne)
{
    SetupLines lines{};
    for (const char* text : {"", "0", " 1", "1 ", "2"}) {
        lines[93] = text;
        EXPECT_FALSE(isFinalized(lines)) << '"' << text << '"';
    }
    lines[93] = "1";
    EXPECT_TRUE(isFinalized(lines));
}

} // namespace
} // namespace tallyhoop
