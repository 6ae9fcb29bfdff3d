// tests/intake/entry_text_test.cpp - the text of the entry form, as it was sent and as it arrives.
#include "intake/entry_text.h"

#include "intake/field_2000.h"
#include "intake/plain_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::exampleText;
using test::formText;
using test::replaced;
using test::upperEntry;
using test::withEachLine;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::vector<HandedIn> readText(std::string_view text, const std::string& sender = {})
{
    return readEntryTexts(text, KnownTeams{test::field2000()}, {"MAIL.EML", sender, 1, {}});
}

/// Every way in which a mail may be changed and still be read gives the same entry.
void expectExample(std::string_view text)
{
    const std::vector<HandedIn> read = readText(text);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].entry.name, "Zo\xE9 O\x92Neil");
    EXPECT_EQ(read[0].entry.initials, "zo") << "as typed";
    EXPECT_EQ(read[0].entry.finalPoints, "142");
    EXPECT_EQ(read[0].email, "zoe@example.org");
    EXPECT_EQ(read[0].entry.picks, test::upperTeamsWin());
}

/// @returns the only refusal of a changed example
std::string refusalOf(std::string_view what, std::string_view by)
{
    const std::vector<HandedIn> read = readText(replaced(exampleText(), what, by));
    if (read.size() != 1 || read[0].refusals.size() != 1)
        return "none, or several";
    return read[0].refusals[0];
}

TEST(EntryText, IsReadAsItWasSent)
{
    expectExample(exampleText());
    expectExample(replaced(exampleText(), "\n", "\r\n"));
}

TEST(EntryText, MayBeQuotedOverAndOver)
{
    expectExample(withEachLine("> ", exampleText()));
    expectExample(withEachLine("> > ", exampleText()));
    expectExample(withEachLine(">>\t> ", exampleText()));
    expectExample(withEachLine("\xC2\xA0> ", exampleText()));
    expectExample(withEachLine("| ", exampleText()));
    expectExample(withEachLine("> | ", exampleText()));
}

TEST(EntryText, MayBeWrappedAtAnyBlank)
{
    expectExample(replaced(exampleText(), " ", "\n"));
    expectExample(replaced(exampleText(), " ", "\n> "));
    expectExample(replaced(exampleText(), ", ", ",\n\n> "));
    expectExample(replaced(exampleText(), " ", " \n")); // format=flowed
}

TEST(EntryText, MayHaveLostItsLineEnds)
{
    expectExample(replaced(exampleText(), "\n", " "));
    expectExample(replaced(exampleText(), "\n", "\xC2\xA0"));
    expectExample(replaced(exampleText(), "\n", " > "));
}

TEST(EntryText, MayHaveOtherCharactersOfTheSameLook)
{
    expectExample(replaced(exampleText(), "St. John's", "St. John\xE2\x80\x99s"));
    expectExample(replaced(exampleText(), " ", "\xC2\xA0"));
    expectExample(replaced(exampleText(), "Arizona", "Ari\xE2\x80\x8Bzona"));
}

TEST(EntryText, TakesKeysAndTheCheckValueInAnyCase)
{
    expectExample(replaced(replaced(exampleText(), "Round", "ROUND"), "Check: 6623D64A", "check : 6623d64a"));
}

TEST(EntryText, FindsTheAddressInWhatMailProgramsMakeOfIt)
{
    expectExample(replaced(exampleText(), "zoe@example.org", "zoe@example.org <mailto:zoe@example.org>"));
    expectExample(replaced(exampleText(), "zoe@example.org", "[zoe@example.org](mailto:zoe@example.org)"));
}

TEST(EntryText, IgnoresWhatIsAroundIt)
{
    expectExample("Hi Bob,\nhere is mine: good luck!\n\n" + exampleText() +
                  "-- \nZo\xC3\xA9\nSent from my telephone\n");
    expectExample(replaced(exampleText(), "2000 Office Pool", "another pool"));
}

TEST(EntryText, MayComeInNumbers)
{
    const std::vector<HandedIn> read =
        readText(formText(upperEntry("Ann", "a")) + "\n\n" + withEachLine("> ", formText(upperEntry("Bob", "b"))));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].entry.name, "Ann");
    EXPECT_EQ(read[0].origin.number, 1);
    EXPECT_EQ(read[1].entry.name, "Bob");
    EXPECT_EQ(read[1].origin.number, 2);
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_THAT(read[1].refusals, IsEmpty());
}

TEST(EntryText, IsNoneWithoutItsFirstKey)
{
    EXPECT_THAT(readText("Name: Ann\nInitials: A\n"), IsEmpty());
    EXPECT_THAT(readText(""), IsEmpty());
    EXPECT_THAT(readText("my Tallyhoop bracket is great"), IsEmpty()) << "no colon";
}

TEST(EntryText, TakesNoNameForAKey)
{
    const std::string sent = formText(upperEntry("Bob Initials: X", "Total:"));

    const std::vector<HandedIn> read = readText(
        replaced(replaced(sent, "Bob Initials: X", "Bob Initials:: X"), "Initials: Total:", "Initials: Total::"));

    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].entry.name, "Bob Initials: X");
    EXPECT_EQ(read[0].entry.initials, "Total:");
}

TEST(EntryText, TakesNoTeamForAKeyOrForQuotation)
{
    Field field = test::field2000();
    field.teams[TeamRow{0}] = "Check: A>";
    const KnownTeams teams{field};
    std::string sent = formText(upperEntry("Ann", "a"));
    for (const auto* team : {"Arizona, ", "Arizona\n"})
        sent = replaced(sent, team, "Check:: A>" + std::string{team}.substr(7));

    const std::vector<HandedIn> read = readEntryTexts(sent, teams, {"MAIL.EML", "", 1, {}});

    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry.picks.at(Position{16}), "Check: A>");
    EXPECT_EQ(read[0].entry.picks.at(Position{30}), "Check: A>");
    EXPECT_EQ(read[0].refusals.size(), 1u) << "only the check value, which is that of Arizona";
}

TEST(EntryText, MayLeaveGamesOpen)
{
    Entry entry = upperEntry();
    entry.picks.clear(Position{17}); // Wisconsin's first game
    entry.picks.clear(Position{126});
    const std::vector<HandedIn> read = readText(formText(entry));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].entry.picks, entry.picks);
}

TEST(EntryText, IsMangledWhenAPickWasChanged)
{
    EXPECT_EQ(refusalOf("Champion: Duke", "Champion: Arizona"),
              "Mangled: the check value at its end does not match, so something was changed on the way.");
    EXPECT_THAT(refusalOf("Total: 142", "Total: 143"), HasSubstr("check value"));
    EXPECT_THAT(refusalOf("Zo\xC3\xA9", "Zoe"), HasSubstr("check value"));
    EXPECT_THAT(refusalOf("6623D64A", "6623D64B"), HasSubstr("check value"));
}

TEST(EntryText, IsRefusedForALetterThatFilesCannotHold)
{
    EXPECT_EQ(refusalOf("Champion: Duke\n", "Champion: Du\xC5\x82ke\n"), "none, or several") << "and the check value";
    Entry entry = upperEntry("?ukasz", "?");
    entry.picks.put(kChampion, "?");
    const std::string text =
        replaced(replaced(formText(entry), "?ukasz", "\xC5\x81ukasz"), ": ?", ": \xF0\x9F\x98\x80");
    const std::vector<HandedIn> read = readText(text);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(
        read[0].refusals,
        ElementsAre("The name has a letter that the program's files cannot hold, at place 1: \"?ukasz\".",
                    "The text of the initials has a letter that the program's files cannot hold, at place 1: \"?\".",
                    "A team has a letter that the program's files cannot hold, at place 1: \"?\"."));
}

TEST(EntryText, TakesEveryLetterThatFilesCanHold)
{
    const Entry entry = upperEntry("\x80\xF1\xDF\x92\x8A\xFF?", "\xE9");
    const std::vector<HandedIn> read = readText(formText(entry));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].entry, entry);
}

TEST(EntryText, IsMangledWhenAKeyIsMissing)
{
    EXPECT_EQ(refusalOf("Initials: zo\n", ""), "Mangled: \"Initials:\" is missing after \"Name:\".");
    EXPECT_EQ(refusalOf("Champion: Duke\n", ""), "Mangled: \"Champion:\" is missing after \"Semifinals:\".");
    EXPECT_EQ(refusalOf("Check: 6623D64A\n", ""), "Mangled: \"Check:\" is missing after \"Champion:\".");
    EXPECT_EQ(refusalOf("6623D64A", "6623D64"), "Mangled: the check value at its end is missing.");
    EXPECT_FALSE(readText(replaced(exampleText(), "Total:", "Totl:"))[0].isLegible);
}

TEST(EntryText, IsMangledWhenAListHasTooFewOrTooMany)
{
    EXPECT_EQ(refusalOf("Arizona, Texas, Purdue", "Arizona, Purdue"),
              "Mangled: Region 1, round 2 has 3 teams instead of 4.");
    EXPECT_EQ(refusalOf("Semifinals: Arizona, Duke", "Semifinals: Arizona"),
              "Mangled: The line of the semifinals has 1 team instead of 2.");
    EXPECT_EQ(refusalOf("Round 3: Stanford, Miami,, FL", "Round 3: Stanford, Miami, FL"),
              "Mangled: Region 4, round 3 has 3 teams instead of 2.");
}

TEST(EntryText, NamesEveryListThatIsMangled)
{
    const std::vector<HandedIn> read = readText(
        replaced(replaced(exampleText(), "Duke, Indiana\n", "Duke\n"), "Champion: Duke", "Champion: Duke, Duke"));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, ElementsAre("Mangled: Region 3, round 3 has 1 team instead of 2.",
                                              "Mangled: The line of the champion has 2 teams instead of 1."));
}

TEST(EntryText, KeepsATeamThatTheFieldLacks)
{
    Entry entry = upperEntry();
    entry.picks.put(kChampion, "Wisconson");
    const std::vector<HandedIn> read = readText(formText(entry));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry.picks.at(kChampion), "Wisconson");
}

TEST(EntryText, BelongsToItsSenderWhenItHasNoAddressItself)
{
    EXPECT_EQ(readText(formText(upperEntry(), ""), "sender@example.org")[0].email, "sender@example.org");
    EXPECT_EQ(readText(formText(upperEntry()), "sender@example.org")[0].email, "ann@example.org");
    EXPECT_EQ(readText(formText(upperEntry(), ""), "sender@example.org")[0].origin.sender, "sender@example.org");
}

TEST(EntryText, BelongsToItsFirstWriterWhenItWasForwardedOrQuoted)
{
    const std::string entry = formText(upperEntry(), "");
    const std::string forwarded = "-------- Forwarded Message --------\n"
                                  "Subject: Bracket of Ann Smith (as)\n"
                                  "From: Ann Smith <ann@home.example>\n"
                                  "To: boss@example.org\n\n";
    EXPECT_EQ(readText(forwarded + entry, "boss@example.org")[0].email, "ann@home.example");
    EXPECT_EQ(
        readText("On Monday, Ann <ann@home.example> wrote:\n" + withEachLine("> ", entry), "boss@example.org")[0].email,
        "ann@home.example");
    EXPECT_EQ(readText(withEachLine("> ", entry), "boss@example.org")[0].email, "")
        << "quoted by somebody: better none than the wrong one";
}

} // namespace
} // namespace tallyhoop
