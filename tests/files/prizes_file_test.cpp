// tests/files/prizes_file_test.cpp - the file of fees and prizes: written, read, and damaged.
#include "files/prizes_file.h"

#include "fakes/scratch_folder.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using test::crlf;
using test::ScratchFolder;
using testing::ElementsAre;
using testing::IsEmpty;

const Prizes kUsual{{Money{1000}, Percent{500}, {Percent{6000}, Percent{4000}, Money{1000}}, TieRule::NotOver},
                    {"Adams_AB.THC", "=1+1, \"Li\".THC"}};

/// @returns the trouble's words; empty when there is none
std::string troubleWith(std::string_view bytes)
{
    const Read<Prizes> read = prizesOf(bytes);
    return read.trouble ? read.trouble->message : std::string{};
}

TEST(PrizesFile, IsATable)
{
    EXPECT_EQ(prizesFile(kUsual),
              crlf({"Item,Which,Value", "Entry fee,,10.00", "Kept back,,5 %", "Ties,,Not over", "Prize,1,60 %",
                    "Prize,2,40 %", "Prize,3,10.00", "Paid,Adams_AB.THC,Yes", "Paid,\"'=1+1, \"\"Li\"\".THC\",Yes"}));
}

TEST(PrizesFile, IsReadAsItWasWritten)
{
    const Read<Prizes> read = prizesOf(prizesFile(kUsual));
    EXPECT_FALSE(read.trouble);
    EXPECT_EQ(read.value, kUsual);
    for (const TieRule rule : {TieRule::Nearest, TieRule::NotOver, TieRule::Share})
        EXPECT_EQ(prizesOf(prizesFile({{.ties = rule}, {}})).value.table.ties, rule);
}

TEST(PrizesFile, KeepsEveryByteOfAName)
{
    Prizes prizes;
    std::string name;
    for (int byte = 1; byte < 0x100; ++byte)
        name.push_back(static_cast<char>(byte));
    prizes.paid = {"a" + name + ".THC", " blank.THC", "blank.THC "};
    EXPECT_EQ(prizesOf(prizesFile(prizes)).value, prizes);
}

TEST(PrizesFile, IsReadAsASpreadsheetMaySaveIt)
{
    const std::string bytes = "\xEF\xBB\xBF" + crlf({"item;which;value;", "", ";;;", "ENTRY FEE;;10,5", "prize;2;50%",
                                                     "Paid;J\xC3\xB6rg_J.THC;yes"});
    const Read<Prizes> read = prizesOf(bytes);
    EXPECT_FALSE(read.trouble) << read.trouble->message;
    EXPECT_EQ(read.value.table.entryFee, Money{1050});
    EXPECT_THAT(read.value.table.prizes, ElementsAre(Prize{Money{}}, Prize{Percent{5000}}));
    EXPECT_THAT(read.value.paid, ElementsAre("J\xF6rg_J.THC"));
}

TEST(PrizesFile, NamesTheFirstRowThatIsNotUnderstood)
{
    // Given: two damaged rows. Then: the first is named, and the others count.
    const std::string bytes = crlf({"Item,Which,Value", "Entry fee,,a lot", "Prize,first,60 %", "Prize,2,40 %"});
    EXPECT_EQ(troubleWith(bytes), "PRIZES.CSV: Row 2 is not understood:\r\nEntry fee, , a lot");
    EXPECT_EQ(prizesOf(bytes).value.table.prizes.size(), 2u);
}

TEST(PrizesFile, HasAllItsFaultsInTheOrderOfTheRows)
{
    const std::string bytes = crlf({"Item,Which,Value", "Fee,,10.00", "Prize,1,60 %", "Prize,2,all", "Prize,3,41 %"});
    std::vector<std::string> words;
    for (const Failure& fault : prizesFaults(bytes))
        words.push_back(fault.message);
    EXPECT_THAT(words,
                ElementsAre("PRIZES.CSV: Row 2 is not understood:\r\nFee, , 10.00",
                            "PRIZES.CSV: Row 4 is not understood:\r\nPrize, 2, all",
                            "PRIZES.CSV: The shares of the prizes come to 101 %: together they can be 100 % at most."));
    EXPECT_THAT(prizesFaults(prizesFile(kUsual)), IsEmpty());
}

TEST(PrizesFile, TakesNoForAPlayerWhoHasNotPaid)
{
    const Read<Prizes> read = prizesOf(crlf({"Paid,Adams_AB.THC,No", "Paid,Baker_C.THC,yes", "Paid,Clark_D.THC,NO"}));
    EXPECT_FALSE(read.trouble);
    EXPECT_THAT(read.value.paid, ElementsAre("Baker_C.THC"));
}

TEST(PrizesFile, UnderstandsNoOtherRows)
{
    for (const char* row : {"Fee,,10.00", "Entry fee,,-10.00", "Kept back,,101 %", "Ties,,Coin", "Prize,0,1.00",
                            "Prize,101,1.00", "Prize,-1,1.00", "Prize,1x,1.00", "Prize,,1.00", "Prize,1,", "Paid,,Yes",
                            "Paid,Adams_AB.THC,Maybe", "Paid,Adams_AB.THC", "Paid,,No", ",Adams_AB.THC,Yes", ",,10.00"})
        EXPECT_NE(troubleWith(crlf({row})), "") << row;
    EXPECT_EQ(troubleWith(crlf({"Prize,100,1.00"})), "");
}

TEST(PrizesFile, SaysEverythingOnce)
{
    for (const char* row : {"Entry fee,,10.00", "Kept back,,10.00", "Ties,,Share", "Prize,1,10.00"}) {
        EXPECT_EQ(troubleWith(crlf({row})), "");
        EXPECT_NE(troubleWith(crlf({row, row})), "") << row;
    }
}

TEST(PrizesFile, CannotShareMoreThanEverything)
{
    EXPECT_EQ(troubleWith(crlf({"Prize,1,60 %", "Prize,2,41 %"})),
              "PRIZES.CSV: The shares of the prizes come to 101 %: together they can be 100 % at most.");
}

TEST(PrizesFile, SaysWhatIsWrongWithItsQuotationMarks)
{
    EXPECT_EQ(troubleWith("Item,Which,Value\r\n\"Entry fee,,10.00"),
              "PRIZES.CSV: It cannot be read. A quotation mark in row 2 is not closed.");
}

TEST(ReadPrizes, AreNoneWithoutAFile)
{
    const ScratchFolder scratch;
    const Read<Prizes> read = readPrizes(scratch.folder());
    EXPECT_FALSE(read.trouble);
    EXPECT_EQ(read.value, Prizes{});
    EXPECT_THAT(prizesOf("").value.table.prizes, IsEmpty());
    EXPECT_EQ(troubleWith(""), "");
}

TEST(ReadPrizes, FindTheFileInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("Prizes.csv", prizesFile(kUsual));
    EXPECT_EQ(readPrizes(scratch.folder()).value, kUsual);
}

TEST(ReadPrizes, SayWhyTheFileCannotBeRead)
{
    const ScratchFolder scratch;
    std::filesystem::create_directory(scratch.path() / "PRIZES.CSV");
    const Read<Prizes> read = readPrizes(scratch.folder());
    ASSERT_TRUE(read.trouble);
    EXPECT_EQ(read.trouble->message.substr(0, 31), "PRIZES.CSV: It cannot be read. ");
}

} // namespace
} // namespace tallyhoop
