// tests/intake/entry_refusals_test.cpp - every reason why an entry is not taken.
#include "intake/entry_refusals.h"

#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::replaced;
using test::upperEntry;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> refusals(Entry entry, std::vector<std::string> ofReader = {}, bool isLegible = true)
{
    return refusalsOf({std::move(entry), {}, {}, std::move(ofReader), isLegible}, test::field2000());
}

TEST(EntryRefusals, AreNoneForAGoodEntryCompleteOrNot)
{
    EXPECT_THAT(refusals(upperEntry()), IsEmpty());
    Entry open = upperEntry();
    open.picks.clear(kChampion);
    EXPECT_THAT(refusals(open), IsEmpty());
    EXPECT_THAT(refusals(upperEntry("Smith/Jones & Co: \"best\"", "s/j", "50")), IsEmpty());
    EXPECT_THAT(refusals(upperEntry("O\x92Neil", "O", "250")), IsEmpty());
}

TEST(EntryRefusals, NameWhatIsMissing)
{
    EXPECT_THAT(refusals(upperEntry("", " x", "")),
                ElementsAre("The name is missing.", "The initials are missing.",
                            "The predicted total \"\" is not a number from 50 to 250."));
}

TEST(EntryRefusals, HoldTheTotalToItsBounds)
{
    for (const char* total : {"49", "251", "x", "-100"})
        EXPECT_THAT(refusals(upperEntry("Ann", "A", total)),
                    ElementsAre("The predicted total \"" + std::string{total} + "\" is not a number from 50 to 250."));
    EXPECT_EQ(refusals(upperEntry("Ann", "A", "100\t")).size(), 1u);
    EXPECT_EQ(refusals(upperEntry("Ann", "A", "00000000100")).size(), 1u);
}

TEST(EntryRefusals, NameControlCharactersAndLengths)
{
    EXPECT_THAT(refusals(upperEntry("A\x01nn", "A\x7F")),
                ElementsAre("The name has control characters.", "The initials have control characters."));
    EXPECT_THAT(refusals(upperEntry(std::string(100, 'n'), std::string(20, 'i'))), IsEmpty());
    EXPECT_THAT(refusals(upperEntry(std::string(101, 'n'), std::string(21, 'i'))),
                ElementsAre("The name is longer than 100 characters.", "The initials are longer than 20 characters."));
}

TEST(EntryRefusals, NameWhatLeadsToAnotherFolderOrIsADevice)
{
    for (const char* name : {"../Ann", "a/../../b", "..\\Ann", "/etc/passwd", "\\\\server\\share", "C:\\x"})
        EXPECT_THAT(refusals(upperEntry(name)),
                    ElementsAre("The name \"" + std::string{name} + "\" leads to another folder."));
    EXPECT_THAT(refusals(upperEntry("nul.x")), ElementsAre("The name \"nul.x\" is that of a device."));
    EXPECT_THAT(refusals(upperEntry("CON")), ElementsAre("The name \"CON\" is that of a device."));
    EXPECT_THAT(refusals(upperEntry("Conrad...")), IsEmpty());
}

TEST(EntryRefusals, TakeTheNameOfAFileAsItIsOrNotAtAll)
{
    const auto refusalsOfFile = [](const std::string& fileName) {
        HandedIn entry{upperEntry(), {}, {}, {}};
        entry.fileName = fileName;
        return refusalsOf(entry, test::field2000());
    };
    for (const char* name : {"Ann.THC", "ann.thc", " Ann  S. & Co.Thc", "Zo\xE9.THC"})
        EXPECT_THAT(refusalsOfFile(name), IsEmpty()) << name;
    for (const char* name : {"../Ann.THC", "..\\Ann.THC", "/tmp/Ann.THC", "C:Ann.THC", "..", "NUL.THC", "com1.x.thc",
                             "Ann?.THC", "A|nn.THC", "A\tnn.THC", "POOLSTART.THS", "PLAYERNAMES.CSV", "Ann", "THC"})
        EXPECT_THAT(refusalsOfFile(name),
                    ElementsAre("The file name \"" + replaced(name, "\t", " ") + "\" cannot be that of a selection."));
    EXPECT_THAT(refusalsOfFile(std::string(251, 'a') + ".THC"), IsEmpty());
    EXPECT_EQ(refusalsOfFile(std::string(252, 'a') + ".THC").size(), 1u);
    EXPECT_EQ(refusalsOfFile(std::string(251, '\xE9') + ".THC").size(), 1u) << "two bytes each on the disk";
}

TEST(EntryRefusals, NameUnknownTeamsOnceEach)
{
    Entry entry = upperEntry();
    for (const int place : {92, 125, 126}) // the East's winner, the semi-final, the champion: Duke
        entry.picks.put(Position{place}, "Dook");
    entry.picks.put(Position{16}, "Arizon");
    EXPECT_THAT(refusals(entry),
                ElementsAre("Unknown team: \"Arizon\", picked in 1 game.", "Unknown team: \"Dook\", picked in 3 games.",
                            "\"Arizona\" does not play in this game: West, round 2, game 1."));
}

TEST(EntryRefusals, NameEveryWinnerWhoDidNotPlayThatGame)
{
    Entry entry = upperEntry();
    entry.picks.put(Position{17}, "Duke");  // Wisconsin met Fresno St.
    entry.picks.put(Position{124}, "Duke"); // the semi-final of West and Midwest
    EXPECT_THAT(refusals(entry), ElementsAre("\"Duke\" does not play in this game: West, round 1, game 2.",
                                             "\"Duke\" does not play in this game: semifinal 1."));
    entry = upperEntry();
    entry.picks.clear(Position{125});
    EXPECT_THAT(refusals(entry), ElementsAre("\"Duke\" does not play in this game: final."))
        << "the champion did not win the semi-final";
}

TEST(EntryRefusals, NameAnotherFieldInOneSentence)
{
    Entry entry = upperEntry();
    entry.picks.put(Position{1}, "Jackson");
    entry.picks.put(Position{3}, "Fresno");
    entry.picks.put(Position{17}, "Fresno");
    entry.picks.put(Position{24}, "Fresno");
    entry.picks.put(Position{28}, "Arizona");
    EXPECT_THAT(refusals(entry), ElementsAre("It is for another field: 2 of 64 teams differ, and \"Jackson\" is where "
                                             "this field has \"Jackson St.\".",
                                             "\"Arizona\" does not play in this game: West, round 3, game 1."));
}

TEST(EntryRefusals, NameAnotherFieldOnceWhenItsTeamsAreUnknown)
{
    Entry entry = upperEntry();
    for (int place = 16; place < 24; ++place)
        entry.picks.put(Position{place}, "Team " + std::to_string(place));
    EXPECT_EQ(refusals(entry).size(), 8u + 4u) << "eight unknown teams, and four of the second round who did not win";
    entry.picks.put(kChampion, "Team 99");
    EXPECT_THAT(refusals(entry),
                ElementsAre("It is for another field: 9 of its teams are not in this one, such as \"Team 16\"."));
    entry.name = "";
    EXPECT_EQ(refusals(entry).size(), 2u) << "the other reasons are said as well";
}

TEST(EntryRefusals, BeginWithThoseOfTheReader)
{
    EXPECT_THAT(refusals(upperEntry("", "A"), {"Mangled."}), ElementsAre("Mangled.", "The name is missing."));
    EXPECT_THAT(refusals({}, {"The file has fewer than 131 lines."}, false),
                ElementsAre("The file has fewer than 131 lines."))
        << "the rest follows from it";
}

} // namespace
} // namespace tallyhoop
