// tests/files/selection_file_test.cpp - reading and writing brackets.
#include "files/selection_file.h"

#include "fakes/scratch_folder.h"
#include "pool/sample_brackets.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

/// @returns a file of numbered lines "line 1", "line 2", ...
std::string numberedFile(int lines)
{
    std::string bytes;
    for (int line = 1; line <= lines; ++line)
        bytes += "line " + std::to_string(line) + "\r\n";
    return bytes;
}

/// The entry of a file's first numbered lines.
Entry numberedEntry(int lines)
{
    const auto text = [lines](int line) { return line <= lines ? "line " + std::to_string(line) : std::string{}; };
    Entry entry;
    for (int line = 1; line <= 127; ++line)
        entry.picks.put(Position{line - 1}, text(line));
    entry.initials = text(128);
    entry.name = text(129);
    entry.finalPoints = text(130);
    return entry;
}

TEST(ReadSelection, TakesACompleteFile)
{
    const Read<Entry> read = readSelection(numberedFile(130) + "*END*\r\n");
    EXPECT_EQ(read.value, numberedEntry(130));
    EXPECT_FALSE(read.trouble);
}

TEST(ReadSelection, HasTheChampionOnLine127)
{
    const Entry entry = readSelection(numberedFile(130) + "*END*\r\n").value;
    EXPECT_EQ(entry.picks.at(Position{0}), "line 1");
    EXPECT_EQ(entry.picks.at(kChampion), "line 127");
    EXPECT_EQ(entry.initials, "line 128");
    EXPECT_EQ(entry.name, "line 129");
    EXPECT_EQ(entry.finalPoints, "line 130");
    EXPECT_EQ(entry.fileName, "") << "bytes have no name";
}

TEST(ReadSelection, ReportsAFileWithoutEndMarkerAndKeepsIts130Lines)
{
    const Read<Entry> read = readSelection(numberedFile(130));
    EXPECT_EQ(read.value, numberedEntry(130));
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelection, ReportsAFileOf132LinesAndKeepsWhatCounts)
{
    const Read<Entry> read = readSelection(numberedFile(130) + "*END*\r\nmore\r\n");
    EXPECT_EQ(read.value, numberedEntry(130));
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelection, ReportsALowerCaseEndMarker)
{
    const Read<Entry> read = readSelection(numberedFile(130) + "*end*\r\n");
    EXPECT_EQ(read.value, numberedEntry(130));
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelection, KeepsTheLinesThatAShortFileHas)
{
    for (const int lines : {1, 5, 127, 129}) {
        const Read<Entry> read = readSelection(numberedFile(lines));
        EXPECT_EQ(read.value, numberedEntry(lines)) << lines;
        EXPECT_TRUE(read.trouble);
    }
}

TEST(ReadSelection, ReportsAnEmptyFile)
{
    const Read<Entry> read = readSelection("");
    EXPECT_EQ(read.value, Entry{});
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelection, SurvivesABinaryFile)
{
    const Read<Entry> read = readSelection(std::string(100'000, '\0'));
    EXPECT_EQ(read.value.picks.at(Position{0}), std::string(100'000, '\0'));
    EXPECT_TRUE(read.value.picks.isEmpty(Position{1}));
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelection, AcceptsOtherLineEndsAndAnUnterminatedLastLine)
{
    std::string bytes;
    for (int line = 1; line <= 130; ++line)
        bytes += "line " + std::to_string(line) + (line % 2 == 0 ? "\n" : "\r");
    const Read<Entry> read = readSelection(bytes + "*END*");
    EXPECT_EQ(read.value, numberedEntry(130));
    EXPECT_FALSE(read.trouble);
}

TEST(ReadSelection, SaysWhatIsWrong)
{
    EXPECT_EQ(readSelection(numberedFile(5)).trouble->message, "The file has fewer than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(130)).trouble->message, "The file has fewer than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(132)).trouble->message, "The file has more than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(500)).trouble->message, "The file has more than 131 lines.");
    EXPECT_EQ(readSelection(numberedFile(131)).trouble->message, "Line 131 of the file is not the end marker.");
    EXPECT_FALSE(readSelection(numberedFile(130) + "*END*").trouble);
}

TEST(ReadSelection, SharesTheNamesOfABracketThatHasThemAll)
{
    const Bracket results = test::everyUpperTeamWins();
    const Entry entry{test::everyLowerTeamWins(), "JS", "Smith", "140", ""};
    const Read<Entry> read = readSelection(selectionFile(entry), results);
    EXPECT_EQ(read.value, entry);
    EXPECT_EQ(&read.value.picks.names(), &results.names());
}

TEST(ReadSelection, ReadsTheSameWhateverBracketIsExpected)
{
    Entry entry{test::everyLowerTeamWins(), "JS", "Smith", "140", ""};
    entry.picks.put(Position{24}, "Nobody knows");
    entry.picks.clear(kChampion);
    for (const Bracket& like : {Bracket{}, test::startingField(), test::everyUpperTeamWins()})
        EXPECT_EQ(readSelection(selectionFile(entry), like).value, entry);
}

TEST(ReadSelectionFile, GivesTheEntryTheFilesName)
{
    const ScratchFolder scratch;
    const Entry entry{test::everyUpperTeamWins(), "JS", "Smith", "140", "Smith_JS.THC"};
    const Read<Entry> read = readSelectionFile(scratch.put("Smith_JS.THC", selectionFile(entry)));
    EXPECT_EQ(read.value, entry);
    EXPECT_FALSE(read.trouble);
}

TEST(ReadSelectionFile, ReportsADamagedFileAndKeepsItsLines)
{
    const ScratchFolder scratch;
    const Read<Entry> read = readSelectionFile(scratch.put("A.THC", numberedFile(5)));
    Entry expected = numberedEntry(5);
    expected.fileName = "A.THC";
    EXPECT_EQ(read.value, expected);
    ASSERT_TRUE(read.trouble);
    EXPECT_EQ(read.trouble->message, "The file has fewer than 131 lines.");
}

TEST(ReadSelectionFile, ReportsAMissingFileAndGivesAnEmptyEntryOfItsName)
{
    const ScratchFolder scratch;
    const Read<Entry> read = readSelectionFile(scratch.path() / "A.THC");
    EXPECT_EQ(read.value, (Entry{{}, "", "", "", "A.THC"}));
    EXPECT_TRUE(read.trouble);
}

TEST(ReadSelectionFile, ReportsAFileThatCannotBeRead)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "A.THC");
    const Read<Entry> read = readSelectionFile(scratch.path() / "A.THC");
    EXPECT_EQ(read.value.picks, Bracket{});
    EXPECT_TRUE(read.trouble);
}

TEST(SelectionFile, IsReadBackAsItWas)
{
    Entry entry = numberedEntry(130);
    entry.picks.clear(Position{4});
    entry.picks.put(Position{5}, " St. John's & <b>\xC9t\xE9\x81 ");
    entry.finalPoints = " about 140 ";
    const Read<Entry> read = readSelection(selectionFile(entry));
    EXPECT_EQ(read.value, entry);
    EXPECT_FALSE(read.trouble);
}

TEST(SelectionFile, Has131Lines)
{
    Entry entry;
    entry.picks.put(Position{0}, "Duke");
    entry.initials = "JS";
    entry.name = "Smith";
    entry.finalPoints = "140";
    entry.fileName = "not part of the file";
    std::string expected = "Duke\r\n";
    for (int line = 2; line <= 127; ++line)
        expected += "\r\n";
    EXPECT_EQ(selectionFile(entry), expected + "JS\r\nSmith\r\n140\r\n*END*\r\n");
}

TEST(ProposedFileName, JoinsNameAndInitialsAsTyped)
{
    EXPECT_EQ(proposedFileName("Leader", "QX"), "Leader_QX.THC");
    EXPECT_EQ(proposedFileName("Smith", "js"), "Smith_js.THC");
}

TEST(ProposedFileName, KeepsADotInTheName) { EXPECT_EQ(proposedFileName("Smith Jr.", "JS"), "Smith Jr._JS.THC"); }

TEST(ProposedFileName, ReplacesWhatCannotBeInAFileName)
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
