// tests/files/setup_file_test.cpp - reading and writing the starting field.
#include "files/setup_file.h"

#include "base/text.h"
#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::crlf;
using test::FakeDialogs;
using test::ScratchFolder;

const ui::Message kDamaged{"", "Problem with file, will use default values", ui::Buttons::Ok, ui::Icon::Critical};

/// @returns a file of the start marker, this many numbered lines and a last line
std::string fileWith(int numbered, std::string_view last)
{
    std::string bytes = "*START*\r\n";
    for (int i = 0; i < numbered; ++i)
        bytes += "line " + std::to_string(i) + "\r\n";
    return bytes + std::string{last} + "\r\n";
}

SetupLines filledWith(const std::string& text)
{
    SetupLines lines{};
    lines.fill(text);
    return lines;
}

struct Reading {
    ScratchFolder scratch;
    FakeDialogs dialogs;
    modTallyhoop state;

    void read() { ReadStartingField(scratch.folder(), dialogs, state); }
    void expectDefaults() const
    {
        const SetupLines defaults = defaultSetupLines();
        for (std::size_t i = 0; i <= setup_line::kEnd; ++i)
            EXPECT_EQ(state.setupLines[i], defaults[i]) << "entry " << i;
        EXPECT_EQ(state.currentTitle, "2001 NCAA Tournament");
    }
};

TEST(ReadStartingField, GivesDefaultsWithoutAWordWhenThereIsNoFile)
{
    Reading r;
    r.read();
    r.expectDefaults();
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadStartingField, RejectsALowerCaseStartMarkerWithAMessage)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", crlf({"*start*", "Duke", "*END*"}));
    r.read();
    r.expectDefaults();
    EXPECT_EQ(r.dialogs.shown, std::vector<ui::Message>{kDamaged});
}

TEST(ReadStartingField, TakesAShortFileByPositionAndKeepsTheRest)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", crlf({"*START*", "a", "b", "c", "d", "e", "*END*"}));
    r.read();
    EXPECT_TRUE(r.dialogs.shown.empty());
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(r.state.setupLines[i], std::string(1, static_cast<char>('a' + i)));
    EXPECT_EQ(r.state.setupLines[5], "*END*");
    for (std::size_t i = 6; i <= 100; ++i)
        EXPECT_EQ(r.state.setupLines[i], "") << "entry " << i;
    EXPECT_EQ(r.state.currentTitle, "");
}

TEST(ReadStartingField, KeepsWhatEntriesBeyondTheFileHeldBefore)
{
    Reading r;
    r.state.setupLines = filledWith("before");
    r.scratch.put("POOLSTART.THS", crlf({"*START*", "a", "*END*"}));
    r.read();
    EXPECT_EQ(r.state.setupLines[0], "a");
    EXPECT_EQ(r.state.setupLines[1], "*END*");
    EXPECT_EQ(r.state.setupLines[2], "before");
    EXPECT_EQ(r.state.setupLines[100], "before");
    EXPECT_EQ(r.state.currentTitle, "before");
}

TEST(ReadStartingField, GivesDefaultsWithoutAWordForTheStartMarkerAlone)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", "*START*\r\n");
    r.read();
    r.expectDefaults();
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadStartingField, GivesDefaultsWithoutAWordForAnEmptyFile)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", "");
    r.read();
    r.expectDefaults();
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadStartingField, AcceptsOneHundredAndOneLinesBehindTheMarker)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", fileWith(100, "*END*"));
    r.read();
    EXPECT_TRUE(r.dialogs.shown.empty());
    EXPECT_EQ(r.state.setupLines[64], "line 64");
    EXPECT_EQ(r.state.setupLines[99], "line 99");
    EXPECT_EQ(r.state.setupLines[100], "*END*");
    EXPECT_EQ(r.state.currentTitle, "line 64");
}

TEST(ReadStartingField, GivesDefaultsWithoutAWordForMoreLines)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", fileWith(101, "*END*"));
    r.read();
    r.expectDefaults();
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadStartingField, RejectsAFileWithoutEndMarkerWithAMessage)
{
    for (const char* last : {"*end*", "*END* ", " *END*", "", "Duke"}) {
        Reading r;
        r.scratch.put("POOLSTART.THS", fileWith(94, last));
        r.read();
        r.expectDefaults();
        EXPECT_EQ(r.dialogs.shown, std::vector<ui::Message>{kDamaged}) << '"' << last << '"';
    }
}

TEST(ReadStartingField, RejectsABinaryFileWithAMessage)
{
    Reading r;
    r.scratch.put("POOLSTART.THS", std::string(50'000, '\0') + "\xFF\xFE\n\r");
    r.read();
    r.expectDefaults();
    EXPECT_EQ(r.dialogs.shown, std::vector<ui::Message>{kDamaged});
}

TEST(ReadStartingField, GivesDefaultsWithoutAWordWhenTheFileCannotBeRead)
{
    Reading r;
    fs::create_directory(r.scratch.path() / "POOLSTART.THS");
    r.read();
    r.expectDefaults();
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(ReadStartingField, FindsTheFileInAnyCaseAndWithAnyLineEnds)
{
    Reading r;
    r.scratch.put("PoolStart.ths", "*START*\nDuke\rKansas\r\n*END*");
    r.read();
    EXPECT_TRUE(r.dialogs.shown.empty());
    EXPECT_EQ(r.state.setupLines[0], "Duke");
    EXPECT_EQ(r.state.setupLines[1], "Kansas");
}

TEST(ReadStartingField, WritesNothing)
{
    Reading r;
    r.read();
    EXPECT_TRUE(fs::is_empty(r.scratch.path()));
}

/// A setup whose every entry tells its index.
SetupLines numberedSetup()
{
    SetupLines lines{};
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = "entry " + std::to_string(i);
    return lines;
}

TEST(WriteStartingField, WritesNinetySixLines)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    KnownFiles known;
    EXPECT_TRUE(WriteStartingField(scratch.folder(), dialogs, known, numberedSetup()));
    std::string expected = "*START*\r\n";
    for (int i = 0; i <= 93; ++i)
        expected += "entry " + std::to_string(i) + "\r\n";
    expected += "*END*\r\n";
    EXPECT_EQ(scratch.get("POOLSTART.THS"), expected);
    EXPECT_EQ(std::count(expected.begin(), expected.end(), '\n'), 96);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST(WriteStartingField, PutsATwoLineCommentOnOneLine)
{
    Reading r;
    SetupLines lines = defaultSetupLines();
    lines[setup_line::kComment1] = encodeLineBreaks("a\r\nb");
    KnownFiles known;
    EXPECT_TRUE(WriteStartingField(r.scratch.folder(), r.dialogs, known, lines));
    EXPECT_NE(r.scratch.get("POOLSTART.THS").find("\r\na|b\r\n"), std::string::npos);
    r.read();
    EXPECT_EQ(decodeLineBreaks(r.state.setupLines[setup_line::kComment1]), "a\r\nb");
}

TEST(WriteStartingField, IsReadBackAsItWas)
{
    Reading r;
    SetupLines lines = numberedSetup();
    lines[7] = "\xC9t\xE9 <b>&\"/ ";
    lines[8] = "";
    lines[setup_line::kEnd] = "*END*";
    KnownFiles known;
    EXPECT_TRUE(WriteStartingField(r.scratch.folder(), r.dialogs, known, lines));
    r.read();
    for (std::size_t i = 0; i <= setup_line::kEnd; ++i)
        EXPECT_EQ(r.state.setupLines[i], lines[i]);
    EXPECT_EQ(r.state.currentTitle, "entry 64");
    EXPECT_TRUE(r.dialogs.shown.empty());
}

TEST(WriteStartingField, SaysWhereItFailed)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    const DataFolder gone{scratch.path() / "gone"};
    KnownFiles known;
    EXPECT_FALSE(WriteStartingField(gone, dialogs, known, defaultSetupLines()));
    EXPECT_EQ(dialogs.shown,
              (std::vector<ui::Message>{{"** ERROR IN WRITING FILE **",
                                         "There is a problem writing file: " + (scratch.path() / "gone").string() +
                                             "/POOLSTART.THS\r\n Check for adequate space in the Application Directory",
                                         ui::Buttons::Ok, ui::Icon::Critical}}));
}

} // namespace
} // namespace tallyhoop
