// tests/files/team_name_list_file_test.cpp - the maintained list of team names.
#include "files/team_name_list_file.h"

#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::crlf;
using test::FakeDialogs;
using test::ScratchFolder;
using Names = std::vector<std::string>;

const ui::Message kUnreadable{
    "", "Problem locating or Reading NCAALIST.THS file\r\n\r\nMODULE: modTallyhoop - ReadTeamNames", ui::Buttons::Ok,
    ui::Icon::Critical};

/// Reads a list of these bytes; expects the message or none.
std::optional<Names> read(std::string_view bytes, bool expectMessage)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    scratch.put("NCAALIST.THS", bytes);
    std::optional<Names> names = ReadTeamNames(scratch.folder(), dialogs);
    EXPECT_EQ(dialogs.shown, expectMessage ? std::vector<ui::Message>{kUnreadable} : std::vector<ui::Message>{});
    return names;
}

TEST(ReadTeamNames, GivesTheNamesInFileOrder)
{
    EXPECT_EQ(read(crlf({"*START*", "Duke", "Arizona", "duke", "*END*"}), false), (Names{"Duke", "Arizona", "duke"}));
}

TEST(ReadTeamNames, AcceptsTextBehindTheStartMarker)
{
    EXPECT_EQ(read(crlf({"*START* of the list", "Duke", "*END*"}), false), Names{"Duke"});
}

TEST(ReadTeamNames, AcceptsAnEmptyList) { EXPECT_EQ(read(crlf({"*START*", "*END*"}), false), Names{}); }

TEST(ReadTeamNames, TakesAnEndMarkerInTheMiddleForAName)
{
    EXPECT_EQ(read(crlf({"*START*", "*END*", "Duke", "*END*"}), false), (Names{"*END*", "Duke"}));
}

TEST(ReadTeamNames, RejectsATrailingBlankBehindTheEndMarker)
{
    EXPECT_EQ(read(crlf({"*START*", "Duke", "*END* "}), true), std::nullopt);
}

TEST(ReadTeamNames, RejectsAnEmptyFile) { EXPECT_EQ(read("", true), std::nullopt); }

TEST(ReadTeamNames, RejectsBadFrames)
{
    EXPECT_EQ(read(crlf({"*START*"}), true), std::nullopt);
    EXPECT_EQ(read(crlf({"*start*", "Duke", "*END*"}), true), std::nullopt);
    EXPECT_EQ(read(crlf({" *START*", "Duke", "*END*"}), true), std::nullopt);
    EXPECT_EQ(read(crlf({"*START*", "Duke"}), true), std::nullopt);
    EXPECT_EQ(read(crlf({"*START*", "Duke", "*END*", ""}), true), std::nullopt);
    EXPECT_EQ(read(std::string(10'000, '\0'), true), std::nullopt);
}

TEST(ReadTeamNames, SaysThatTheFileIsMissing)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    EXPECT_EQ(ReadTeamNames(scratch.folder(), dialogs), std::nullopt);
    EXPECT_EQ(dialogs.shown, std::vector<ui::Message>{kUnreadable});
}

TEST(WriteTeamNames, WritesNeighbouringEqualNamesOnce)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "Duke", "UCLA"}), crlf({"*START*", "Duke", "UCLA", "*END*"}));
}

TEST(WriteTeamNames, WritesEqualNamesThatAreNoNeighboursTwice)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "UCLA", "Duke"}), crlf({"*START*", "Duke", "UCLA", "Duke", "*END*"}));
}

TEST(WriteTeamNames, TellsNamesThatDifferInCaseApart)
{
    EXPECT_EQ(teamNameListFile(Names{"Duke", "DUKE"}), crlf({"*START*", "Duke", "DUKE", "*END*"}));
}

TEST(WriteTeamNames, SkipsAnEmptyFirstName)
{
    EXPECT_EQ(teamNameListFile(Names{"", "Duke"}), crlf({"*START*", "Duke", "*END*"}));
    EXPECT_EQ(teamNameListFile(Names{}), crlf({"*START*", "*END*"}));
}

TEST(WriteTeamNames, ReplacesTheFile)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    scratch.put("NcaaList.ths", std::string(5000, 'x'));
    KnownFiles known;
    EXPECT_TRUE(WriteTeamNames(scratch.folder(), dialogs, known, Names{"Duke"}));
    EXPECT_EQ(scratch.get("NcaaList.ths"), crlf({"*START*", "Duke", "*END*"}));
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST(WriteTeamNames, SaysWhereItFailed)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    KnownFiles known;
    EXPECT_FALSE(WriteTeamNames(DataFolder{scratch.path() / "gone"}, dialogs, known, Names{"Duke"}));
    EXPECT_EQ(dialogs.shown,
              (std::vector<ui::Message>{{"** ERROR IN WRITING FILE **",
                                         "There is a problem writing file: " + (scratch.path() / "gone").string() +
                                             "/NCAALIST.THS\r\n Check for adequate space in the Application Directory",
                                         ui::Buttons::Ok, ui::Icon::Critical}}));
}

} // namespace
} // namespace tallyhoop
