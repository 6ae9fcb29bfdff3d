// tests/files/setup_file_test.cpp - reading and writing the starting field.
#include "files/setup_file.h"

#include "fakes/scratch_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::crlf;
using test::ScratchFolder;

/// @returns a file of the start marker, this many numbered lines and a last line
std::string fileWith(int numbered, std::string_view last)
{
    std::string bytes = "*START*\r\n";
    for (int i = 0; i < numbered; ++i)
        bytes += "line " + std::to_string(i) + "\r\n";
    return bytes + std::string{last} + "\r\n";
}

/// The field of a file whose lines are numbered from 0, so that each text says which line it is.
Field numberedField()
{
    int line = 0;
    const auto number = [&line](auto& texts) {
        for (std::string& text : texts)
            text = "line " + std::to_string(line++);
    };
    Field field;
    number(field.teams.values);
    field.title = "line " + std::to_string(line++);
    number(field.regionTitles);
    std::array<std::string, kRounds> payoffs;
    number(payoffs);
    field.payoffs = PayoffTexts{payoffs};
    number(field.seeds);
    field.comment1 = "line 91";
    field.comment2 = "line 92";
    field.finalized = "line 93";
    return field;
}

/// A field with the same text everywhere.
Field filledWith(const std::string& text)
{
    Field field;
    field.teams.values.fill(text);
    field.title = text;
    field.regionTitles.fill(text);
    std::array<std::string, kRounds> payoffs;
    payoffs.fill(text);
    field.payoffs = PayoffTexts{payoffs};
    field.seeds.fill(text);
    field.comment1 = field.comment2 = field.finalized = text;
    return field;
}

void expectDefaultsWithoutTrouble(const Read<Field>& read)
{
    EXPECT_EQ(read.value, defaultField());
    EXPECT_FALSE(read.trouble);
}

void expectDefaultsWithTrouble(const Read<Field>& read)
{
    EXPECT_EQ(read.value, defaultField());
    ASSERT_TRUE(read.trouble);
    EXPECT_EQ(read.trouble->message, "Problem with file, will use default values");
}

TEST(ReadSetup, TakesEachLineForItsText)
{
    const Read<Field> read = readSetup(fileWith(94, "*END*"));
    EXPECT_FALSE(read.trouble);
    const Field& field = read.value;
    EXPECT_EQ(field.teams[TeamRow{0}], "line 0");
    EXPECT_EQ(field.teams[TeamRow{63}], "line 63");
    EXPECT_EQ(field.title, "line 64");
    EXPECT_EQ(field.regionTitles.front(), "line 65");
    EXPECT_EQ(field.regionTitles.back(), "line 68");
    EXPECT_EQ(field.payoffs.text(1), "line 69");
    EXPECT_EQ(field.payoffs.text(6), "line 74");
    EXPECT_EQ(field.seeds.front(), "line 75");
    EXPECT_EQ(field.seeds.back(), "line 90");
    EXPECT_EQ(field.comment1, "line 91");
    EXPECT_EQ(field.comment2, "line 92");
    EXPECT_EQ(field.finalized, "line 93");
}

TEST(ReadSetup, RejectsALowerCaseStartMarker)
{
    expectDefaultsWithTrouble(readSetup(crlf({"*start*", "Duke", "*END*"})));
}

TEST(ReadSetup, RejectsBlanksAroundTheStartMarker)
{
    expectDefaultsWithTrouble(readSetup(crlf({"*START* ", "Duke", "*END*"})));
    expectDefaultsWithTrouble(readSetup(crlf({" *START*", "Duke", "*END*"})));
}

TEST(ReadSetup, TakesAShortFileLineByLineAndLeavesTheRestEmpty)
{
    const Read<Field> read = readSetup(crlf({"*START*", "a", "b", "c", "d", "e", "*END*"}));
    EXPECT_FALSE(read.trouble);
    Field expected;
    for (int row = 0; row < 5; ++row)
        expected.teams[TeamRow{row}] = std::string(1, static_cast<char>('a' + row));
    expected.teams[TeamRow{5}] = "*END*";
    EXPECT_EQ(read.value, expected);
}

TEST(ReadSetup, KeepsWhatWasThereBeforeForTheLinesThatAreMissing)
{
    const Read<Field> read = readSetup(crlf({"*START*", "a", "*END*"}), filledWith("before"));
    EXPECT_FALSE(read.trouble);
    Field expected = filledWith("before");
    expected.teams[TeamRow{0}] = "a";
    expected.teams[TeamRow{1}] = "*END*";
    EXPECT_EQ(read.value, expected);
}

TEST(ReadSetup, KeepsNothingOfBeforeWhenItGivesDefaults)
{
    expectDefaultsWithoutTrouble(readSetup("*START*\r\n", filledWith("before")));
    expectDefaultsWithTrouble(readSetup("Duke\r\n", filledWith("before")));
    const ScratchFolder scratch;
    expectDefaultsWithoutTrouble(readField(scratch.folder(), filledWith("before")));
}

TEST(ReadSetup, GivesDefaultsWithoutTroubleForTheStartMarkerAlone)
{
    expectDefaultsWithoutTrouble(readSetup("*START*\r\n"));
    expectDefaultsWithoutTrouble(readSetup("*START*"));
}

TEST(ReadSetup, GivesDefaultsWithoutTroubleForAnEmptyFile) { expectDefaultsWithoutTrouble(readSetup("")); }

TEST(ReadSetup, AcceptsAFileThatEndsRightAfterTheMarker)
{
    const Read<Field> read = readSetup(crlf({"*START*", "*END*"}));
    EXPECT_FALSE(read.trouble);
    Field expected;
    expected.teams[TeamRow{0}] = "*END*";
    EXPECT_EQ(read.value, expected);
}

TEST(ReadSetup, AcceptsOneHundredAndOneLinesAfterTheMarker)
{
    const Read<Field> read = readSetup(fileWith(100, "*END*"));
    EXPECT_FALSE(read.trouble);
    EXPECT_EQ(read.value, numberedField());
}

TEST(ReadSetup, GivesDefaultsWithoutTroubleForMoreLines)
{
    expectDefaultsWithoutTrouble(readSetup(fileWith(101, "*END*")));
    expectDefaultsWithoutTrouble(readSetup(fileWith(101, "no end")));
}

TEST(ReadSetup, RejectsAFileWithoutEndMarker)
{
    for (const char* last : {"*end*", "*END* ", " *END*", "", "Duke"}) {
        SCOPED_TRACE(last);
        expectDefaultsWithTrouble(readSetup(fileWith(94, last)));
    }
}

TEST(ReadSetup, RejectsABinaryFile)
{
    expectDefaultsWithTrouble(readSetup(std::string(50'000, '\0') + "\xFF\xFE\n\r"));
}

TEST(ReadSetup, AcceptsAnyLineEnds)
{
    const Read<Field> read = readSetup("*START*\nDuke\rKansas\r\n*END*");
    EXPECT_FALSE(read.trouble);
    EXPECT_EQ(read.value.teams[TeamRow{0}], "Duke");
    EXPECT_EQ(read.value.teams[TeamRow{1}], "Kansas");
}

TEST(ReadSetup, TurnsBarsInCommentsIntoLineBreaksAndLeavesThemElsewhere)
{
    std::string bytes = "*START*\r\n";
    for (int line = 0; line < 94; ++line)
        bytes += "a|b\r\n";
    const Field field = readSetup(bytes + "*END*\r\n").value;
    EXPECT_EQ(field.comment1, "a\r\nb");
    EXPECT_EQ(field.comment2, "a\r\nb");
    EXPECT_EQ(field.title, "a|b");
    EXPECT_EQ(field.finalized, "a|b");
}

TEST(ReadSetup, SaysWhenTheFileWasNotReadWhole)
{
    EXPECT_TRUE(readSetup(fileWith(94, "*END*")).isWhole);
    EXPECT_TRUE(readSetup(fileWith(95, "*END*")).isWhole) << "a longer file is one of the format, too";
    EXPECT_TRUE(readSetup(fileWith(100, "*END*")).isWhole) << "101 lines after the start marker";
    EXPECT_FALSE(readSetup(fileWith(101, "*END*")).isWhole) << "the defaults, without trouble";
    EXPECT_FALSE(readSetup(crlf({"*start*", "Duke", "*END*"})).isWhole) << "the defaults, with trouble";
    EXPECT_TRUE(readSetup("").isWhole) << "nothing is lost with nothing";
    EXPECT_TRUE(readSetup("*START*\r\n").isWhole);
}

TEST(ReadSetup, TakesTheBeginningOfACommentThatIsFarTooLong)
{
    Field field = numberedField();
    field.comment1 = std::string(32'000, 'a');
    field.comment2 = std::string(32'000, 'b');
    EXPECT_EQ(readSetup(setupFile(field)).value, field);
    EXPECT_TRUE(readSetup(setupFile(field)).isWhole);
    const Field expected = field;
    field.comment1 += 'c';
    EXPECT_EQ(readSetup(setupFile(field)).value, expected);
    EXPECT_FALSE(readSetup(setupFile(field)).isWhole);
    field = expected;
    field.comment2 += 'c';
    EXPECT_EQ(readSetup(setupFile(field)).value, expected);
    EXPECT_FALSE(readSetup(setupFile(field)).isWhole);
}

TEST(ReadField, IsWholeWhereThereIsNoFileAndNotWhereItCannotBeRead)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(readField(scratch.folder()).isWhole);
    fs::create_directory(scratch.path() / "POOLSTART.THS");
    EXPECT_FALSE(readField(scratch.folder()).isWhole);
}

TEST(ReadField, TakesAFileOfUpToAMegabyte)
{
    const ScratchFolder scratch;
    std::string bytes = fileWith(94, "*END*");
    bytes.insert(9, std::string((1u << 20) - bytes.size(), 'x')); // before the first team, after "*START*\r\n"
    scratch.put("POOLSTART.THS", bytes);
    EXPECT_EQ(readField(scratch.folder()).value.title, "line 64");
    scratch.put("POOLSTART.THS", bytes + "x");
    expectDefaultsWithoutTrouble(readField(scratch.folder()));
    EXPECT_FALSE(readField(scratch.folder()).isWhole);
}

TEST(ReadField, GivesDefaultsWithoutTroubleWhenThereIsNoFile)
{
    const ScratchFolder scratch;
    expectDefaultsWithoutTrouble(readField(scratch.folder()));
    EXPECT_TRUE(fs::is_empty(scratch.path())) << "reading writes nothing";
}

TEST(ReadField, GivesDefaultsWithoutTroubleWhenTheFileCannotBeRead)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "POOLSTART.THS");
    expectDefaultsWithoutTrouble(readField(scratch.folder()));
}

TEST(ReadField, FindsTheFileInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("PoolStart.ths", crlf({"*START*", "Duke", "*END*"}));
    const ReadField read = readField(scratch.folder());
    EXPECT_FALSE(read.trouble);
    EXPECT_EQ(read.value.teams[TeamRow{0}], "Duke");
}

TEST(ReadField, KeepsWhatWasThereBeforeToo)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", crlf({"*START*", "Duke", "*END*"}));
    EXPECT_EQ(readField(scratch.folder(), filledWith("before")).value.title, "before");
}

TEST(ReadField, SaysThatTheFileIsDamaged)
{
    const ScratchFolder scratch;
    scratch.put("POOLSTART.THS", "Duke\r\n");
    expectDefaultsWithTrouble(readField(scratch.folder()));
}

TEST(SetupFile, HasNinetySixLines)
{
    std::string expected = "*START*\r\n";
    for (int i = 0; i <= 93; ++i)
        expected += "line " + std::to_string(i) + "\r\n";
    expected += "*END*\r\n";
    EXPECT_EQ(setupFile(numberedField()), expected);
    EXPECT_EQ(std::count(expected.begin(), expected.end(), '\n'), 96);
}

TEST(SetupFile, PutsATwoLineCommentOnOneLine)
{
    Field field = defaultField();
    field.comment1 = "a\r\nb";
    EXPECT_NE(setupFile(field).find("\r\na|b\r\n"), std::string::npos);
    EXPECT_EQ(readSetup(setupFile(field)).value, field);
}

TEST(SetupFile, IsReadBackAsItWas)
{
    Field field = numberedField();
    field.teams[TeamRow{7}] = "\xC9t\xE9\x81 <b>&\"/ ";
    field.teams[TeamRow{8}] = "";
    field.payoffs = PayoffTexts{{" 1", "two", "", "4.5", "99999", "-3 "}};
    const Read<Field> read = readSetup(setupFile(field), filledWith("before"));
    EXPECT_EQ(read.value, field);
    EXPECT_FALSE(read.trouble);
}

} // namespace
} // namespace tallyhoop
