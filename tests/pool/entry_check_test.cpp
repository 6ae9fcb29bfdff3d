// tests/pool/entry_check_test.cpp - what keeps a player's entry, and the results, from being saved.
#include "pool/entry_check.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

Entry entryOf(const char* initials, const char* name, const char* finalPoints)
{
    return {{}, initials, name, finalPoints, {}};
}

TEST(EntryFault, IsNoneWhenTheTextsAreThereWhateverThePicks)
{
    EXPECT_EQ(entryFault(entryOf("JS", "Smith", "150"), EntryKind::Player), std::nullopt);
    EXPECT_EQ(entryFault(entryOf("A", "FinalResults", ""), EntryKind::Results), std::nullopt);
}

TEST(EntryFault, NamesTheFirstOfSeveral)
{
    EXPECT_EQ(entryFault(entryOf("", "", ""), EntryKind::Player), EntryFault::Initials);
    EXPECT_EQ(entryFault(entryOf("JS", "", ""), EntryKind::Player), EntryFault::Name);
    EXPECT_EQ(entryFault(entryOf("JS", "Smith", ""), EntryKind::Player), EntryFault::FinalPoints);
}

TEST(EntryFault, TakesATextThatBeginsWithABlankAsBlank)
{
    EXPECT_EQ(entryFault(entryOf(" JS", "Smith", "150"), EntryKind::Player), EntryFault::Initials);
    EXPECT_EQ(entryFault(entryOf("JS", " Smith", "150"), EntryKind::Player), EntryFault::Name);
    EXPECT_EQ(entryFault(entryOf("JS ", "S mith", "150"), EntryKind::Player), std::nullopt);
}

TEST(EntryFault, WantsAPredictionBetween50And250OfAPlayer)
{
    for (const char* points : {"", "abc", "0", "49", "49.9", "250.1", "251", "-60", "99999999"})
        EXPECT_EQ(entryFault(entryOf("JS", "Smith", points), EntryKind::Player), EntryFault::FinalPoints) << points;
    for (const char* points : {"50", "250", "100.5", " 60 or so"})
        EXPECT_EQ(entryFault(entryOf("JS", "Smith", points), EntryKind::Player), std::nullopt) << points;
}

TEST(EntryFault, TakesResultsWithoutATotalButNotAboveTheUpperBound)
{
    for (const char* points : {"", "0", "49", "250", "-1"})
        EXPECT_EQ(entryFault(entryOf("A", "FinalResults", points), EntryKind::Results), std::nullopt) << points;
    EXPECT_EQ(entryFault(entryOf("A", "FinalResults", "251"), EntryKind::Results), EntryFault::FinalPoints);
    EXPECT_EQ(entryFault(entryOf("", "FinalResults", "251"), EntryKind::Results), EntryFault::Initials);
}

} // namespace
} // namespace tallyhoop
