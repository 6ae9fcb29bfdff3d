// tests/screens/import/entry_words_test.cpp - what is said of an entry, whatever was handed in.
#include "screens/import/entry_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

ReviewRow complete()
{
    ReviewRow row;
    row.handedIn.entry.name = "Ann Smith";
    row.handedIn.entry.initials = "as";
    row.handedIn.entry.finalPoints = "142";
    row.handedIn.origin = {"mail.eml", "ann@example.org", 2, {}};
    row.fileName = "Ann Smith_as.THC";
    row.picks = 63;
    row.words = "New.";
    return row;
}

ReviewRow refused(std::vector<std::string> reasons)
{
    ReviewRow row;
    row.handedIn = refusedWhole({"letter.txt", {}, 1, {}}, reasons.front());
    row.reasons = std::move(reasons);
    row.words = "Refused: " + row.reasons.front();
    row.effect = Effect::Refused;
    return row;
}

TEST(EntryWords, ACellForEachColumn)
{
    EXPECT_THAT(entryCells(complete(), 4, false), ElementsAre("not ticked", "5", "Ann Smith", "as", "Ann Smith_as.THC",
                                                              "63 of 63", "142", "ann@example.org", "New."));
    EXPECT_EQ(entryColumns().size(), entryCells(complete(), 4, false).size());
}

TEST(EntryWords, TheSenderIsTheMailsOrElseTheAddressGivenOrElseTheFile)
{
    const auto sender = [](const ReviewRow& row) {
        return entryCells(row, 0, false).at(static_cast<std::size_t>(EntryColumn::Sender));
    };
    ReviewRow row = complete();
    row.handedIn.email = "as@example.com";
    EXPECT_EQ(sender(row), "ann@example.org") << "anybody can give any address";
    row.handedIn.origin.sender.clear();
    EXPECT_EQ(sender(row), "as@example.com") << "not from a mail";
    row.handedIn.email.clear();
    EXPECT_EQ(sender(row), "mail.eml");
    row.handedIn.origin.file.clear();
    EXPECT_EQ(sender(row), "pasted");
}

TEST(EntryWords, WhatIsNoEntryHasNeitherBoxNorPicks)
{
    EXPECT_THAT(entryCells(refused({"There is no entry in this text."}), 0, false),
                ElementsAre("", "1", "", "", "", "", "", "letter.txt", "Refused: There is no entry in this text."));
    EXPECT_EQ(entryHeading(refused({"No."}), 0), "Row 1: letter.txt");
}

TEST(EntryWords, DetailsHaveEveryReason)
{
    EXPECT_EQ(entryDetails(refused({"One.", "Two.", "Three."}), false),
              "Refused:\r\n- One.\r\n- Two.\r\n- Three.\r\nletter.txt, entry 1.");
}

TEST(EntryWords, DetailsSayAllThatIsKnown)
{
    ReviewRow row = complete();
    row.handedIn.email = "as@example.com";
    EXPECT_EQ(entryDetails(row, true),
              "New.\r\nIt is open on the board with changes that are not saved.\r\n"
              "Name: Ann Smith, initials: as, total: 142, picks: 63 of 63.\r\nE-mail: as@example.com.\r\n"
              "File: Ann Smith_as.THC.\r\nmail.eml, entry 2, from ann@example.org.");
}

TEST(EntryWords, WhateverWasHandedInIsOneLineOfModerateLength)
{
    ReviewRow row = complete();
    const std::string hostile = "<b>\r\n\t\x01" + std::string(100'000, 'x');
    row.handedIn.entry.name = row.handedIn.entry.initials = row.handedIn.entry.finalPoints = hostile;
    row.handedIn.origin.sender = row.handedIn.origin.file = hostile;
    row.words = hostile;
    EXPECT_THAT(entryCells(row, 0, true), Each(AllOf(SizeIs(testing::Le(203u)), Not(testing::HasSubstr("\n")))));
    EXPECT_EQ(entryCells(row, 0, false).at(2).substr(0, 8), "<b>    x");
    EXPECT_LT(entryHeading(row, 0).size(), 250u);
    EXPECT_LT(entryDetails(row, false).size(), 101'500u);
}

TEST(EntryWords, EveryColumnIsExplained)
{
    for (std::size_t column = 0; column < entryColumns().size(); ++column)
        EXPECT_FALSE(explanationOf(static_cast<EntryColumn>(column)).empty()) << column;
}

} // namespace
} // namespace tallyhoop::test
