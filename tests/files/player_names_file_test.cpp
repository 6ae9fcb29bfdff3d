// tests/files/player_names_file_test.cpp - the players' records.
#include "files/player_names_file.h"

#include "base/text.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::crlf;
using test::ScratchFolder;

const PlayerRecord kSmith{"Smith", "SMITH_JS.THC", "js@example.org", "555-0100"};

const std::string kHeader = "\"Name                     \",\"FileName                         \","
                            "\"Email                                      \",\"Phone         \"";
const std::string kSmithLine = "\"Smith                    \",\"SMITH_JS.THC                     \","
                               "\"js@example.org                             \",\"555-0100      \"";

constexpr const char* kTooLong = "**Following Record was too long**";
constexpr const char* kTooShort = "** Following record too short**";
constexpr const char* kBadFormat = "**Formatting of following record incorrect**";

/// A folder with a player list to be checked.
struct Checking {
    ScratchFolder scratch;

    bool isSound() const { return static_cast<bool>(checkPlayerNames(scratch.folder())); }

    /// The list is faulty, and that is what is said about it.
    void expectFault() const
    {
        const Result<Done> checked = checkPlayerNames(scratch.folder());
        ASSERT_FALSE(checked);
        EXPECT_EQ(checked.failure().message,
                  "There is a problem found with the file containing your player names.\r\n"
                  "Possibly someone has edited this file with another program.\r\n"
                  "\r\n"
                  "The file: " +
                      scratch.shownPrefix() +
                      "PLAYERNAMES.TXT\r\n"
                      " is a copy of the original file with the error records identified.\r\n"
                      "\r\n"
                      "You can either go back to a backup copy of this file or attempt\r\n"
                      "to correct the error(s) in this copy and then rename it to\r\n"
                      "PLAYERNAMES.CSV.\r\n"
                      "\r\n"
                      "See the help file for additional instructions");
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

TEST(PlayerRecords, OfShortLinesAreEmptyAfterTheirEnd)
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

TEST(CheckPlayerNames, AcceptsTheHeaderAloneAndLeavesNoCopy)
{
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader}));
    EXPECT_TRUE(c.isSound());
    EXPECT_FALSE(c.scratch.has("PLAYERNAMES.TXT"));
}

TEST(CheckPlayerNames, DeletesTheCopyOfAnEarlierFault)
{
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, kSmithLine}));
    c.scratch.put("PlayerNames.txt", "old");
    EXPECT_TRUE(c.isSound());
    EXPECT_FALSE(c.scratch.has("PlayerNames.txt"));
}

TEST(CheckPlayerNames, AnnotatesARecordOf125Characters)
{
    Checking c;
    const std::string record = kSmithLine.substr(0, 125);
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record, kSmithLine}));
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, record, kSmithLine}));
}

TEST(CheckPlayerNames, AnnotatesARecordOf130Characters)
{
    Checking c;
    const std::string record = kSmithLine + "1234";
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record}));
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooLong, record}));
}

TEST(CheckPlayerNames, AnnotatesABlankInPlaceOfTheCommaOfColumn64)
{
    Checking c;
    std::string record = kSmithLine;
    record[63] = ' ';
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, record}));
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kBadFormat, record}));
}

TEST(CheckPlayerNames, CountsAnEmptyLineAsTooShort)
{
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", crlf({kHeader, "", kSmithLine, ""}));
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, "", kSmithLine, kTooShort, ""}));
}

TEST(CheckPlayerNames, NeverChangesTheFileItself)
{
    Checking c;
    const std::string bytes = kHeader + "\nbad\r" + kSmithLine;
    c.scratch.put("PLAYERNAMES.CSV", bytes);
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.CSV"), bytes);
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), crlf({kHeader, kTooShort, "bad", kSmithLine}));
}

TEST(CheckPlayerNames, AcceptsAnEmptyFile)
{
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", "");
    EXPECT_TRUE(c.isSound());
}

TEST(CheckPlayerNames, FailsForAFileThatCannotBeReadAndLeavesAnOlderCopy)
{
    Checking c;
    fs::create_directory(c.scratch.path() / "PLAYERNAMES.CSV");
    c.scratch.put("PLAYERNAMES.TXT", "half corrected");
    c.expectFault();
    EXPECT_EQ(c.scratch.get("PLAYERNAMES.TXT"), "half corrected");
}

TEST(CheckPlayerNames, ReportsFaultsEvenWhenTheCopyCannotBeWritten)
{
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", crlf({"bad"}));
    fs::create_directory(c.scratch.path() / "PLAYERNAMES.TXT");
    c.expectFault();
}

TEST(CheckPlayerNames, SaysTheSameAboutAMissingFile)
{
    const Checking c;
    c.expectFault();
    EXPECT_FALSE(c.scratch.has("PLAYERNAMES.TXT"));
}

TEST(PlayerNamesFile, OfNobodyIsTheHeader)
{
    EXPECT_EQ(playerNamesFile({}), kHeader + "\r\n");
    Checking c;
    c.scratch.put("PLAYERNAMES.CSV", playerNamesFile({}));
    EXPECT_TRUE(c.isSound());
}

TEST(PlayerNamesFile, IsTheHeaderAndTheRecordsInOrder)
{
    const std::string empty =
        '"' + blanks(25) + "\",\"" + blanks(33) + "\",\"" + blanks(43) + "\",\"" + blanks(14) + '"';
    EXPECT_EQ(playerNamesFile(std::vector<PlayerRecord>{kSmith, PlayerRecord{}}), crlf({kHeader, kSmithLine, empty}));
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
