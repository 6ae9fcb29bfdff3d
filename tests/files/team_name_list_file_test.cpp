// tests/files/team_name_list_file_test.cpp - the maintained list of team names.
#include "files/team_name_list_file.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::crlf;
using test::ScratchFolder;
using Names = std::vector<std::string>;

constexpr const char* kUnreadable =
    "Problem locating or Reading NCAALIST.THS file\r\n\r\nMODULE: modTallyhoop - ReadTeamNames";

/// @returns what is read from a list of these bytes; for a failure, which must be the usual one, nothing
std::optional<Names> read(std::string_view bytes)
{
    const ScratchFolder scratch;
    scratch.put("NCAALIST.THS", bytes);
    const Result<Names> names = readTeamNames(scratch.folder());
    if (names)
        return *names;
    EXPECT_EQ(names.failure().message, kUnreadable);
    return std::nullopt;
}

TEST(ReadTeamNames, GivesTheNamesInFileOrder)
{
    EXPECT_EQ(read(crlf({"*START*", "Duke", "Arizona", "duke", "*END*"})), (Names{"Duke", "Arizona", "duke"}));
}

TEST(ReadTeamNames, AcceptsTextAfterTheStartMarker)
{
    EXPECT_EQ(read(crlf({"*START* of the list", "Duke", "*END*"})), Names{"Duke"});
}

TEST(ReadTeamNames, AcceptsAnEmptyList) { EXPECT_EQ(read(crlf({"*START*", "*END*"})), Names{}); }

TEST(ReadTeamNames, TakesAnEndMarkerInTheMiddleForAName)
{
    EXPECT_EQ(read(crlf({"*START*", "*END*", "Duke", "*END*"})), (Names{"*END*", "Duke"}));
}

TEST(ReadTeamNames, RejectsATrailingBlankAfterTheEndMarker)
{
    EXPECT_EQ(read(crlf({"*START*", "Duke", "*END* "})), std::nullopt);
}

TEST(ReadTeamNames, RejectsAnEmptyFile) { EXPECT_EQ(read(""), std::nullopt); }

TEST(ReadTeamNames, RejectsBadFrames)
{
    EXPECT_EQ(read(crlf({"*START*"})), std::nullopt);
    EXPECT_EQ(read(crlf({"*start*", "Duke", "*END*"})), std::nullopt);
    EXPECT_EQ(read(crlf({" *START*", "Duke", "*END*"})), std::nullopt);
    EXPECT_EQ(read(crlf({"*START*", "Duke"})), std::nullopt);
    EXPECT_EQ(read(crlf({"*START*", "Duke", "*END*", ""})), std::nullopt);
    EXPECT_EQ(read(std::string(10'000, '\0')), std::nullopt);
}

TEST(ReadTeamNames, FailsForAMissingFile)
{
    const ScratchFolder scratch;
    const Result<Names> names = readTeamNames(scratch.folder());
    ASSERT_FALSE(names);
    EXPECT_EQ(names.failure().message, kUnreadable);
}

TEST(ReadTeamNames, FindsTheFileInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("NcaaList.ths", crlf({"*START*", "Duke", "*END*"}));
    const Result<Names> names = readTeamNames(scratch.folder());
    ASSERT_TRUE(names);
    EXPECT_EQ(*names, Names{"Duke"});
}

TEST(ReadTeamNameList, SaysWhichMarkerIsMissing)
{
    EXPECT_EQ(readTeamNameList("Duke\r\n").failure().message, "The list does not begin with its start marker.");
    EXPECT_EQ(readTeamNameList(crlf({"*START*", "Duke"})).failure().message,
              "The list does not end with its end marker.");
}

TEST(TeamNameListFile, HasNeighbouringEqualNamesOnce)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "Duke", "UCLA"}), crlf({"*START*", "Duke", "UCLA", "*END*"}));
}

TEST(TeamNameListFile, HasEqualNamesThatAreNoNeighboursTwice)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "UCLA", "Duke"}), crlf({"*START*", "Duke", "UCLA", "Duke", "*END*"}));
}

TEST(TeamNameListFile, DistinguishesNamesThatDifferInCase)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "DUKE"}), crlf({"*START*", "Duke", "DUKE", "*END*"}));
}

TEST(TeamNameListFile, SkipsAnEmptyFirstName)
{
    EXPECT_EQ(teamNameListFile(Names{"", "Duke"}), crlf({"*START*", "Duke", "*END*"}));
    EXPECT_EQ(teamNameListFile(Names{}), crlf({"*START*", "*END*"}));
}

} // namespace
} // namespace tallyhoop
