// tests/files/selection_file_test.cpp - reading and writing brackets.
#include "files/selection_file.h"

#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::FakeDialogs;
using test::ScratchFolder;

/// @returns a file of numbered lines "line 1", "line 2", ...
std::string numberedFile(int lines)
{
    std::string bytes;
    for (int line = 1; line <= lines; ++line)
        bytes += "line " + std::to_string(line) + "\r\n";
    return bytes;
}

ui::Message openingTrouble(const fs::path& file)
{
    return {"** ERROR IN OPENING FILE - ReadSelections Routine **",
            "There is a problem opening: " + file.string() + "\r\n\r\n The program will attempt to continue ......",
            ui::Buttons::Ok, ui::Icon::Critical};
}

struct Reading {
    ScratchFolder scratch;
    FakeDialogs dialogs;
    SelectionLines lines{};

    Reading() { lines.fill("left over"); }

    void read(std::string_view bytes) { ReadSelections(scratch.put("A.THC", bytes), dialogs, lines); }
    void expectNumbered(std::size_t upTo) const
    {
        EXPECT_EQ(lines[0], "");
        for (std::size_t line = 1; line <= upTo; ++line)
            EXPECT_EQ(lines[line], "line " + std::to_string(line));
    }
    void expectTrouble() const
    {
        EXPECT_EQ(dialogs.shown, std::vector<ui::Message>{openingTrouble(scratch.path() / "A.THC")});
    }
};

TEST(ReadSelections, TakesACompleteFile)
{
    Reading r;
    r.read(numberedFile(130) + "*END*\r\n");
    r.expectNumbered(130);
    EXPECT_EQ(r.lines[131], "*END*");
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadSelections, ReportsAFileWithoutEndMarkerAndKeepsIts130Lines)
{
    Reading r;
    r.read(numberedFile(130));
    r.expectNumbered(130);
    EXPECT_EQ(r.lines[131], "");
    r.expectTrouble();
}

TEST(ReadSelections, ReportsAFileOf132LinesAndKeeps131)
{
    Reading r;
    r.read(numberedFile(130) + "*END*\r\nmore\r\n");
    r.expectNumbered(130);
    EXPECT_EQ(r.lines[131], "*END*");
    r.expectTrouble();
}

TEST(ReadSelections, ReportsALowerCaseEndMarker)
{
    Reading r;
    r.read(numberedFile(130) + "*end*\r\n");
    r.expectNumbered(130);
    EXPECT_EQ(r.lines[131], "*end*");
    r.expectTrouble();
}

TEST(ReadSelections, ReportsAMissingFileAndLeavesEmptyLines)
{
    Reading r;
    ReadSelections(r.scratch.path() / "A.THC", r.dialogs, r.lines);
    EXPECT_EQ(r.lines, SelectionLines{});
    r.expectTrouble();
}

TEST(ReadSelections, ReportsAFileThatCannotBeRead)
{
    Reading r;
    fs::create_directory(r.scratch.path() / "A.THC");
    ReadSelections(r.scratch.path() / "A.THC", r.dialogs, r.lines);
    EXPECT_EQ(r.lines, SelectionLines{});
    r.expectTrouble();
}

TEST(ReadSelections, ReportsAnEmptyFile)
{
    Reading r;
    r.read("");
    EXPECT_EQ(r.lines, SelectionLines{});
    r.expectTrouble();
}

TEST(ReadSelections, SurvivesABinaryFile)
{
    Reading r;
    r.read(std::string(100'000, '\0'));
    EXPECT_EQ(r.lines[1], std::string(100'000, '\0'));
    r.expectTrouble();
}

TEST(ReadSelections, AcceptsOtherLineEndsAndAnUnterminatedLastLine)
{
    Reading r;
    std::string bytes;
    for (int line = 1; line <= 130; ++line)
        bytes += "line " + std::to_string(line) + (line % 2 == 0 ? "\n" : "\r");
    r.read(bytes + "*END*");
    r.expectNumbered(130);
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadSelection, TellsWhatIsWrong)
{
    EXPECT_EQ(readSelection(numberedFile(5)).trouble->message, "The file has fewer than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(500)).trouble->message, "The file has more than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(131)).trouble->message, "Line 131 of the file is not the end marker.");
    EXPECT_FALSE(readSelection(numberedFile(130) + "*END*").trouble);
}

TEST(SaveSelections, IsReadBackAsItWas)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    SelectionLines lines{};
    for (std::size_t line = 0; line < lines.size(); ++line)
        lines[line] = "text " + std::to_string(line);
    lines[5] = "";
    lines[6] = " St. John's & <b>\xC9t\xE9\x81 ";
    KnownFiles known;
    EXPECT_TRUE(SaveSelections(scratch.path() / "A.THC", dialogs, known, lines));
    SelectionLines back{};
    ReadSelections(scratch.path() / "A.THC", dialogs, back);
    EXPECT_EQ(back[0], "");
    for (std::size_t line = 1; line <= 130; ++line)
        EXPECT_EQ(back[line], lines[line]);
    EXPECT_EQ(back[131], "*END*");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST(SaveSelections, Writes131LinesWhateverEntry131Holds)
{
    SelectionLines lines{};
    lines[selection_line::kFirstTeam] = "Duke";
    lines[selection_line::kInitials] = "JS";
    lines[selection_line::kName] = "Smith";
    lines[selection_line::kFinalPoints] = "140";
    lines[selection_line::kEnd] = "something else";
    std::string expected = "Duke\r\n";
    for (int line = 2; line <= 127; ++line)
        expected += "\r\n";
    EXPECT_EQ(selectionFile(lines), expected + "JS\r\nSmith\r\n140\r\n*END*\r\n");
}

TEST(SaveSelections, SaysWhereItFailedAndLeavesTheOldFile)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    fs::create_directory(scratch.path() / "A.THC");
    KnownFiles known;
    EXPECT_FALSE(SaveSelections(scratch.path() / "A.THC", dialogs, known, SelectionLines{}));
    EXPECT_EQ(dialogs.shown,
              (std::vector<ui::Message>{{"** ERROR IN WRITING FILE **",
                                         "There is a problem writing file: " + (scratch.path() / "A.THC").string() +
                                             "\r\n Check your selection and retry.",
                                         ui::Buttons::Ok, ui::Icon::Critical}}));
    EXPECT_TRUE(fs::is_directory(scratch.path() / "A.THC"));
}

TEST(ProposedFileName, JoinsNameAndInitialsAsTyped)
{
    EXPECT_EQ(proposedFileName("Leader", "QX"), "Leader_QX.THC");
    EXPECT_EQ(proposedFileName("Smith", "js"), "Smith_js.THC");
}

TEST(ProposedFileName, KeepsADotInTheName) { EXPECT_EQ(proposedFileName("Smith Jr.", "JS"), "Smith Jr._JS.THC"); }

TEST(ProposedFileName, ReplacesWhatCannotStandInAFileName)
{
    EXPECT_EQ(proposedFileName("../<b>\"A\"|B?", "A/B"), "..__b__A__B__A_B.THC");
}

TEST(ProposedFileName, IsNeverTooLongForAFile)
{
    EXPECT_EQ(proposedFileName(std::string(300, 'n'), "JS"), std::string(251, 'n') + ".THC");
    // An accented letter takes two bytes on disk.
    EXPECT_EQ(proposedFileName(std::string(300, '\xE9'), "JS"), std::string(125, '\xE9') + ".THC");
}

} // namespace
} // namespace tallyhoop
