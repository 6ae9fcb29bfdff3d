// tests/files/player_names_file_test.cpp - the players' records.
#include "files/player_names_file.h"

#include "base/text.h"
#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::crlf;
using test::FakeDialogs;
using test::ScratchFolder;

const PlayerRecord kSmith{"Smith", "SMITH_JS.THC", "js@example.org", "555-0100"};

const std::string kHeader = "\"Name                     \",\"FileName                         \","
                            "\"Email                                      \",\"Phone         \"";
const std::string kSmithLine = "\"Smith                    \",\"SMITH_JS.THC                     \","
                               "\"js@example.org                             \",\"555-0100      \"";

constexpr const char* kTooLong = "**Following Record was too long**";
constexpr const char* kTooShort = "** Following record too short**";
constexpr const char* kBadFormat = "**Formatting of following record incorrect**";

struct Validation {
    ScratchFolder scratch;
    FakeDialogs dialogs;

    bool validate() { return validatePlayerNames(scratch.folder(), dialogs); }
    void expectMessage() const
    {
        const std::string text = "There is a problem found with the file containing your player names.\r\n"
                                 "Possibly someone has edited this file with another program.\r\n"
                                 "\r\n"
                                 "The file: " +
                                 scratch.path().string() +
                                 "/PLAYERNAMES.TXT\r\n"
                                 " is a copy of the original file with the error records identified.\r\n"
                                 "\r\n"
                                 "You can either go back to a backup copy of this file or attempt\r\n"
                                 "to correct the error(s) in this copy and then rename it to\r\n"
                                 "PLAYERNAMES.CSV.\r\n"
                                 "\r\n"
                                 "See the help file for additional instructions";
        EXPECT_EQ(dialogs.shown, (std::vector<ui::Message>{{"** ERROR Found in PLAYERNAMES.CSV file **", text,
                                                            ui::Buttons::Ok, ui::Icon::Critical, "repair"}}));
    }
};

TEST(PlayerRecords, AreExactly126Characters)
{
    EXPECT_EQ(kHeader.size(), 126u);
    EXPECT_EQ(headerLine(), kHeader);
    EXPECT_EQ(recordLine(kSmith), kSmithLine);
}

TEST(PlayerRecords, AreCutToTheirWidths)
{
    const std::string line =
        recordLine({std::string(30, 'n'), std::string(40, 'f'), std::string(50, 'e'), std::string(20, 'p')});
    EXPECT_EQ(line, '"' + std::string(25, 'n') + "\",\"" + std::string(33, 'f') + "\",\"" + std::string(43, 'e') +
                        "\",\"" + std::string(14, 'p') + '"');
    EXPECT_EQ(faultOf(line), RecordFault::None);
}

TEST(PlayerRecords, NeverHoldQuotesOrLineBreaks)
{
    const std::string line = recordLine({"A \"Bo\" B", "a\r\nb", "c\nd", "e\rf"});
    EXPECT_EQ(faultOf(line), RecordFault::None);
    const PlayerRecord record = parseRecord(line);
    EXPECT_EQ(trimTrailingBlanks(record.name), "A 'Bo' B");
    EXPECT_EQ(trimTrailingBlanks(record.fileName), "a b");
    EXPECT_EQ(trimTrailingBlanks(record.email), "c d");
    EXPECT_EQ(trimTrailingBlanks(record.phone), "e f");
}

TEST(PlayerRecords, CountBytesForAccentedLetters)
{
    EXPECT_EQ(recordLine({std::string(25, '\xE9'), "", "", ""}).size(), 126u);
}

TEST(PlayerRecords, AreTakenApartByColumn)
{
    const PlayerRecord record = parseRecord(kSmithLine);
    EXPECT_EQ(record.name, "Smith                    ");
    EXPECT_EQ(record.fileName, "SMITH_JS.THC                     ");
    EXPECT_EQ(record.email, "js@example.org                             ");
    EXPECT_EQ(record.phone, "555-0100      ");
}

TEST(PlayerRecords, OfShortLinesAreEmptyBehindTheEnd)
{
    EXPECT_EQ(parseRecord(""), PlayerRecord{});
    EXPECT_EQ(parseRecord("\"Smith"), (PlayerRecord{"Smith", "", "", ""}));
}

TEST(PlayerRows, Are118CharactersJoinedByBlanks)
{
    const std::string row = playerRow(kSmith);
    EXPECT_EQ(row.size(), 118u);
    EXPECT_EQ(row.substr(0, 26), "Smith                     ");
    EXPECT_EQ(row.substr(26, 12), "SMITH_JS.THC");
    EXPECT_EQ(row.substr(60, 14), "js@example.org");
    EXPECT_EQ(row.substr(104), "555-0100      ");
}

TEST(PlayerRows, CutANameOfThirtyCharactersToItsFirst25)
{
    const std::string row = playerRow({"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234", "", "", ""});
    EXPECT_EQ(row.substr(0, 26), "ABCDEFGHIJKLMNOPQRSTUVWXY ");
}

TEST(PlayerRows, AreTakenApartAgain)
{
    EXPECT_EQ(parsePlayerRow(playerRow(kSmith)), parseRecord(kSmithLine));
    EXPECT_EQ(parsePlayerRow(""), PlayerRecord{});
}

TEST(FaultOf, JudgesTheLengthFirst)
{
    EXPECT_EQ(faultOf(kSmithLine), RecordFault::None);
    EXPECT_EQ(faultOf(kSmithLine.substr(0, 125)), RecordFault::TooShort);
    EXPECT_EQ(faultOf(kSmithLine + "    "), RecordFault::TooLong);
    EXPECT_EQ(faultOf(kSmithLine + " "), RecordFault::TooLong);
    EXPECT_EQ(faultOf(std::string(130, ' ')), RecordFault::TooLong);
    EXPECT_EQ(faultOf(""), RecordFault::TooShort);
}

TEST(FaultOf, WantsEveryQuoteAndComma)
{
    for (const std::size_t column : {1u, 27u, 28u, 29u, 63u, 64u, 65u, 109u, 110u, 111u, 126u}) {
        std::string line = kSmithLine;
        line[column - 1] = ' ';
        EXPECT_EQ(faultOf(line), RecordFault::BadFormat) << "column " << column;
    }
}

TEST(ValidatePlayerNames, AcceptsTheHeaderAloneAndLeavesNoCopy)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader}));
    EXPECT_TRUE(v.validate());
    EXPECT_FALSE(v.scratch.has("PLAYERNAMES.TXT"));
    EXPECT_TRUE(v.dialogs.shown.empty());
}

TEST(ValidatePlayerNames, DeletesTheCopyOfAnEarlierFault)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, kSmithLine}));
    v.scratch.put("PlayerNames.txt", "old");
    EXPECT_TRUE(v.validate());
    EXPECT_FALSE(v.scratch.has("PlayerNames.txt"));
}

TEST(ValidatePlayerNames, AnnotatesARecordOf125Characters)
{
    Validation v;
    const std::string record = kSmithLine.substr(0, 125);
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record, kSmithLine}));
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, record, kSmithLine}));
    v.expectMessage();
}

TEST(ValidatePlayerNames, AnnotatesARecordOf130Characters)
{
    Validation v;
    const std::string record = kSmithLine + "1234";
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record}));
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooLong, record}));
    v.expectMessage();
}

TEST(ValidatePlayerNames, AnnotatesABlankInPlaceOfTheCommaOfColumn64)
{
    Validation v;
    std::string record = kSmithLine;
    record[63] = ' ';
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record}));
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kBadFormat, record}));
    v.expectMessage();
}

TEST(ValidatePlayerNames, CountsAnEmptyLineAsTooShort)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, "", kSmithLine, ""}));
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, "", kSmithLine, kTooShort, ""}));
}

TEST(ValidatePlayerNames, NeverChangesTheFileItself)
{
    Validation v;
    const std::string bytes = kHeader + "\nbad\r" + kSmithLine;
    v.scratch.put("PLAYERNAMES.CSV", bytes);
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.CSV"), bytes);
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, "bad", kSmithLine}));
}

TEST(ValidatePlayerNames, AcceptsAnEmptyFile)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", "");
    EXPECT_TRUE(v.validate());
}

TEST(ValidatePlayerNames, SaysThatAFileCannotBeReadAndLeavesAnOlderCopy)
{
    Validation v;
    fs::create_directory(v.scratch.path() / "PLAYERNAMES.CSV");
    v.scratch.put("PLAYERNAMES.TXT", "half corrected");
    EXPECT_FALSE(v.validate());
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.TXT"), "half corrected");
    v.expectMessage();
}

TEST(ValidatePlayerNames, ReportsFaultsEvenWhenTheCopyCannotBeWritten)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", crlf({"bad"}));
    fs::create_directory(v.scratch.path() / "PLAYERNAMES.TXT");
    EXPECT_FALSE(v.validate());
    v.expectMessage();
}

TEST(CreatePlayerNames, WritesTheHeaderOnly)
{
    Validation v;
    EXPECT_TRUE(createPlayerNames(v.scratch.folder(), v.dialogs));
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.CSV"), kHeader + "\r\n");
    EXPECT_TRUE(v.validate());
}

TEST(CreatePlayerNames, SaysWhereItFailed)
{
    const ScratchFolder scratch;
    FakeDialogs dialogs;
    EXPECT_FALSE(createPlayerNames(DataFolder{scratch.path() / "gone"}, dialogs));
    EXPECT_EQ(dialogs.shown, (std::vector<ui::Message>{
                                 {"** ERROR IN WRITING FILE **",
                                  "There is a problem writing file: " + (scratch.path() / "gone").string() +
                                      "/PLAYERNAMES.CSV\r\n Check for adequate space in the Application Directory",
                                  ui::Buttons::Ok, ui::Icon::Critical}}));
}

TEST(SavePlayerNames, WritesHeaderAndRecordsInOrder)
{
    Validation v;
    v.scratch.put("PLAYERNAMES.CSV", std::string(5000, 'x'));
    KnownFiles known;
    EXPECT_TRUE(
        savePlayerNames(v.scratch.folder(), v.dialogs, known, std::vector<PlayerRecord>{kSmith, PlayerRecord{}}));
    const std::string empty =
        '"' + blanks(25) + "\",\"" + blanks(33) + "\",\"" + blanks(43) + "\",\"" + blanks(14) + '"';
    EXPECT_EQ(v.scratch.get("PLAYERNAMES.CSV"), crlf({kHeader, kSmithLine, empty}));
}

TEST(ReadPlayerNames, SkipsTheHeader)
{
    const ScratchFolder scratch;
    scratch.put("PLAYERNAMES.CSV", crlf({kHeader, kSmithLine}));
    EXPECT_EQ(readPlayerNames(scratch.folder()), std::vector<PlayerRecord>{parseRecord(kSmithLine)});
}

TEST(ReadPlayerNames, IsEmptyWithoutAFile)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(readPlayerNames(scratch.folder()).empty());
    scratch.put("PLAYERNAMES.CSV", "");
    EXPECT_TRUE(readPlayerNames(scratch.folder()).empty());
}

} // namespace
} // namespace tallyhoop
