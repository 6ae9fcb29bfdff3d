// tests/intake/entry_table_test.cpp - entries from spreadsheets, and for them.
#include "intake/entry_table.h"

#include "base/lines.h"
#include "base/windows1252.h"
#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::field2000;
using test::replaced;
using test::upperEntry;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<HandedIn> readTable(std::string_view bytes)
{
    return readEntryTable(bytes, KnownTeams{field2000()}, {"POOL.CSV", {}, 1, {}});
}

std::string onlyRefusal(std::string_view bytes)
{
    const std::vector<HandedIn> read = readTable(bytes);
    return read.size() == 1 && read[0].refusals.size() == 1 ? read[0].refusals[0] : "none, or several";
}

/// @returns the picks in the order of the board, each in quotation marks
std::string picksOf(const Bracket& picks, char separator = ',')
{
    std::string cells;
    for (const int first : {16, 47, 78, 109, 124})
        for (int place = first; place < (first == 124 ? 127 : first + 15); ++place)
            cells += std::string{separator} + '"' + picks.at(Position{place}) + '"';
    return cells;
}

TEST(EntryTable, MayHaveNoHeader)
{
    const std::vector<HandedIn> read = readTable("Ann Smith,as,142" + picksOf(test::upperTeamsWin()) + "\r\n");
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry());
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].origin.number, 1);
}

TEST(EntryTable, MayBeSeparatedBySemicolonsAndInWindows1252)
{
    const std::vector<HandedIn> read = readTable("Zo\xE9;zo;142" + picksOf(test::upperTeamsWin(), ';'));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry("Zo\xE9", "zo"));
    EXPECT_EQ(readTable("\xEF\xBB\xBFZo\xC3\xA9;zo;142" + picksOf(test::upperTeamsWin(), ';'))[0].entry,
              upperEntry("Zo\xE9", "zo"));
}

TEST(EntryTable, HasItsColumnsInAnyOrderByTheirTitles)
{
    std::string header = "E-Mail,INITIALS";
    std::string row = "ann@example.org,as";
    const Bracket picks = test::upperTeamsWin();
    for (int game = 63; game >= 1; --game) {
        header += ",\"Game " + std::to_string(game) + " (whatever)\"";
        row += ",\"" + picks.at(positionOf(Game{game - 1})) + "\"";
    }
    const std::vector<HandedIn> read = readTable(header + ",Total,Name\r\n" + row + ",142,Ann Smith\r\n\r\n,,\r\n");
    ASSERT_EQ(read.size(), 1u) << "empty rows are passed over";
    EXPECT_EQ(read[0].entry, upperEntry());
    EXPECT_EQ(read[0].email, "ann@example.org");
    EXPECT_EQ(read[0].origin.number, 2) << "its row";
}

TEST(EntryTable, TakesSixtyThreeOtherTitlesForTheBoardsOrder)
{
    std::string header = "Name,Initials,Total";
    for (int game = 0; game < 63; ++game)
        header += ",G" + std::to_string(game);
    const std::vector<HandedIn> read = readTable(header + "\nAnn Smith,as,142" + picksOf(test::upperTeamsWin()));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry());
}

TEST(EntryTable, TakesPicksAsPeopleWriteThem)
{
    std::string picks = picksOf(test::upperTeamsWin());
    picks = replaced(picks, "\"Duke\"", "\" duke \"");
    picks = replaced(picks, "St. John's", "St. John\xE2\x80\x99s");
    EXPECT_EQ(readTable("Ann Smith,as,142" + picks)[0].entry, upperEntry());
}

TEST(EntryTable, KeepsUnknownTeamsAndLeavesMissingCellsOpen)
{
    const std::vector<HandedIn> read =
        readTable("Ann Smith,as,142,Wisconson,Wisconsin\nBob,b,99" + picksOf(test::upperTeamsWin()));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].entry.picks.at(Position{16}), "Wisconson");
    EXPECT_EQ(read[0].entry.picks.at(Position{17}), "Wisconsin");
    EXPECT_TRUE(read[0].entry.picks.isEmpty(Position{18}));
}

TEST(EntryTable, IsRefusedWhenItsHeaderLacksAColumn)
{
    EXPECT_EQ(onlyRefusal("Name,Initials,Game 1\nAnn,as,Arizona\n"),
              "The header of the table lacks \"Total\", 62 of the 63 games.");
    EXPECT_EQ(onlyRefusal("\"Name,Initials"), "A quotation mark in row 1 is not closed.");
    EXPECT_EQ(onlyRefusal("Name,Initials,Total\nAnn,as,142\n"), "The header of the table lacks all of the 63 games.");
    EXPECT_EQ(onlyRefusal(""), "The table has no entries.");
}

TEST(EntryTable, MayHaveATitleAboveItsHeaderOrHaveLostIt)
{
    Entry entry = upperEntry();
    entry.fileName = "Own.THC";
    const std::string table = entryTable({{entry}}, field2000());
    const std::vector<HandedIn> titled = readTable("\xEF\xBB\xBFOffice Pool\r\n\r\n" + table.substr(3));
    ASSERT_EQ(titled.size(), 1u);
    EXPECT_EQ(titled[0].origin.number, 4) << "the row in the file";
    const std::vector<HandedIn> headless = readTable(table.substr(table.find("\r\n") + 2));
    ASSERT_EQ(headless.size(), 1u);
    for (const HandedIn& read : {titled[0], headless[0]}) {
        EXPECT_EQ(read.entry, upperEntry());
        EXPECT_EQ(read.fileName, "Own.THC");
        EXPECT_THAT(read.refusals, IsEmpty());
    }
}

TEST(EntryTable, IsReadWithTheSemicolonsThatASpreadsheetPutsIn)
{
    std::string header = "Name;Initials;Total";
    for (int game = 1; game <= kGames; ++game)
        header += ";Game " + std::to_string(game) + " (West, round 1, game 1)";
    const std::vector<HandedIn> read =
        readTable(header + "\r\nAnn Smith;as;142" + picksOf(test::upperTeamsWin(), ';') + "\r\n");
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry());
}

TEST(EntryTable, IsNoneWhenItIsAnotherList)
{
    std::string players;
    for (int player = 0; player < 300; ++player)
        players += "\"SMITH,JS\",\"SMITH_JS.THC\",\"js@example.org\",\"555\"\r\n";
    EXPECT_EQ(onlyRefusal(players),
              "This is not a table of entries: it has no header with \"Initials\", and no row has "
              "66 columns.");
}

TEST(EntryTable, TakesBlanksAroundACellForAnAccident)
{
    const std::string row = "\xC2\xA0 Ann  Smith ,\tas\xC2\xA0, 142 " + picksOf(test::upperTeamsWin());
    EXPECT_EQ(readTable(row)[0].entry, upperEntry());
    EXPECT_EQ(readTable("\xC2\xA0Name , Initials,Total\xC2\xA0" + picksOf(test::upperTeamsWin()) + "\n" + row)[0].entry,
              upperEntry());
}

TEST(EntryTable, WritesBlanksThatAreDataWithAnApostrophe)
{
    const std::vector<std::string> names{"Ann ",  " Ann", "Ann  Smith", "Ann\xA0Smith",
                                         "' Ann", "''  ", "'t Hooft",   "= 1 "};
    std::vector<Entry> entries;
    for (const std::string& name : names)
        entries.push_back(upperEntry(name));
    const std::string table = entryTable(entries, field2000());
    EXPECT_THAT(table, testing::HasSubstr("\n\"'Ann \","));
    EXPECT_THAT(table, testing::HasSubstr("\n't Hooft,")) << "only where it is needed";
    std::vector<std::string> again;
    for (const HandedIn& handedIn : readTable(table))
        again.push_back(handedIn.entry.name);
    EXPECT_EQ(again, names);
}

TEST(EntryTable, RefusesALetterThatFilesCannotHold)
{
    const std::string picks = replaced(picksOf(test::upperTeamsWin()), "Duke", "Duk\xC4\x99");
    const std::vector<HandedIn> read = readTable("Zbyszek \xC5\x81,\xC5\x81,142" + picks);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(
        read[0].refusals,
        ElementsAre("The name has a letter that the program's files cannot hold, at place 9: \"Zbyszek ?\".",
                    "The text of the initials has a letter that the program's files cannot hold, at place 1: \"?\".",
                    "A team has a letter that the program's files cannot hold, at place 4: \"Duk?\"."))
        << "each team once, however often it was picked";
}

TEST(EntryTable, MayNameTheSelectionOfARow)
{
    std::string header = "File,Name,Initials,Total";
    for (int game = 1; game <= 63; ++game)
        header += ",Game " + std::to_string(game);
    const std::string rest = ",Ann Smith,as,142" + picksOf(test::upperTeamsWin());
    const std::vector<HandedIn> read = readTable(header + "\n Ann.THC " + rest + "\n" + rest);
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].fileName, "Ann.THC");
    EXPECT_EQ(read[1].fileName, "") << "to be made from name and initials";
}

TEST(EntryTable, RefusesARowWithTooManyColumns)
{
    EXPECT_EQ(onlyRefusal("Ann Smith,as,142" + picksOf(test::upperTeamsWin()) + ",A.THC,Duke"),
              "The row has 68 columns; there should be 67.");
    EXPECT_THAT(readTable("Ann Smith,as,142" + picksOf(test::upperTeamsWin()) + ",,")[0].refusals, IsEmpty())
        << "empty cells at the end of a row are the spreadsheet's";
}

TEST(EntryTable, IsWrittenWithAHeaderThatPeopleUnderstand)
{
    const std::vector<Entry> entries{upperEntry()};
    const std::vector<std::string> lines = linesOf(entryTable(entries, field2000()));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(lines[0].starts_with("\xEF\xBB\xBFName,Initials,Total,\"Game 1 (West, round 1, game 1)\","));
    EXPECT_TRUE(lines[0].ends_with(",Game 61 (semifinal 1),Game 62 (semifinal 2),Game 63 (final),File"));
    EXPECT_TRUE(lines[1].starts_with("Ann Smith,as,142,Arizona,Wisconsin,Texas,LSU,")) << lines[1];
    EXPECT_TRUE(lines[1].ends_with(",Arizona,Duke,Duke,"));
}

TEST(EntryTable, SurvivesTheWayThroughASpreadsheet)
{
    Entry strange = upperEntry("=HYPERLINK(\"x\");,'", "-a", "+100");
    strange.picks.clear(kChampion);
    strange.picks.clear(Position{47});
    std::string everyByte; // that a name can hold
    for (int byte = 0x20; byte < 0x100; ++byte)
        everyByte.push_back(static_cast<char>(byte));
    Entry renamed = upperEntry("Ann  Smith ");
    renamed.fileName = "My  own\xA0name\xE9.thc";
    const std::vector<Entry> entries{upperEntry(), strange, upperEntry("'=x", "'@", " 99 "), upperEntry(everyByte),
                                     renamed};
    const std::string table = entryTable(entries, field2000());
    EXPECT_THAT(table, testing::HasSubstr("\"'=HYPERLINK(\"\"x\"\");,'\",'-a,'+100"));
    std::vector<Entry> again;
    for (const HandedIn& handedIn : readTable(table)) {
        again.push_back(handedIn.entry);
        again.back().fileName = handedIn.fileName;
    }
    EXPECT_EQ(again, entries);
}

} // namespace
} // namespace tallyhoop
