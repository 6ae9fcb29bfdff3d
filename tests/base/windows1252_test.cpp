// tests/base/windows1252_test.cpp - bytes, characters and case.
#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace tallyhoop {
namespace {

std::string allBytes()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    return bytes;
}

TEST(Windows1252, TakesEveryByteToUtf8AndBack) { EXPECT_EQ(fromUtf8(toUtf8(allBytes())), allBytes()); }

TEST(Windows1252, GivesEveryByteItsOwnCharacter)
{
    std::set<char32_t> characters;
    for (int byte = 0; byte < 256; ++byte) {
        const char32_t character = unicodeOf(static_cast<unsigned char>(byte));
        EXPECT_TRUE(characters.insert(character).second) << byte;
        EXPECT_EQ(byteOf(character), static_cast<unsigned char>(byte));
    }
}

TEST(Windows1252, KnowsTheCharactersThatLatin1Lacks)
{
    EXPECT_EQ(unicodeOf(0x80), U'\u20AC'); // euro
    EXPECT_EQ(unicodeOf(0x8A), U'\u0160');
    EXPECT_EQ(unicodeOf(0x93), U'\u201C');
    EXPECT_EQ(unicodeOf(0x97), U'\u2014');
    EXPECT_EQ(unicodeOf(0x99), U'\u2122');
    EXPECT_EQ(unicodeOf(0x9F), U'\u0178');
    EXPECT_EQ(unicodeOf(0xE9), U'\u00E9');
}

TEST(Windows1252, KeepsTheFiveUnassignedBytesAsControls)
{
    for (const unsigned char byte : std::array<unsigned char, 5>{0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(unicodeOf(byte), char32_t{byte});
}

TEST(Windows1252, LacksOtherControlsAndForeignLetters)
{
    EXPECT_EQ(byteOf(0x80), std::nullopt);
    EXPECT_EQ(byteOf(0x9F), std::nullopt);
    EXPECT_EQ(byteOf(0x0100), std::nullopt);
    EXPECT_EQ(byteOf(0x1F3C0), std::nullopt);
}

TEST(Windows1252, WritesUtf8OfOneTwoAndThreeBytes) { EXPECT_EQ(toUtf8("A\xE9\x80"), "A\xC3\xA9\xE2\x82\xAC"); }

TEST(Windows1252, ReplacesWhatItLacksByAQuestionMark)
{
    EXPECT_EQ(fromUtf8("a\xC4\x80z"), "a?z");         // A with macron
    EXPECT_EQ(fromUtf8("a\xF0\x9F\x8F\x80z"), "a?z"); // a basketball
}

TEST(Windows1252, SurvivesBrokenUtf8)
{
    EXPECT_EQ(fromUtf8("a\xE9z"), "a?z");     // a lone Latin-1 byte
    EXPECT_EQ(fromUtf8("a\x80z"), "a?z");     // a continuation without a beginning
    EXPECT_EQ(fromUtf8("a\xE2\x82"), "a?");   // cut short
    EXPECT_EQ(fromUtf8("\xC0\xAF"), "??");    // a slash in disguise stays none
    EXPECT_EQ(fromUtf8("\xE0\x80\xAF"), "?"); // the same, longer
    EXPECT_EQ(fromUtf8("\xFF\xFE"), "??");
}

TEST(Folding, MakesCapitalsSmallAccentedOnesToo)
{
    EXPECT_EQ(folded('A'), 'a');
    EXPECT_EQ(folded('Z'), 'z');
    EXPECT_EQ(folded('['), '[');
    EXPECT_EQ(folded(0xC9), 0xE9);
    EXPECT_EQ(folded(0xDE), 0xFE);
    EXPECT_EQ(folded(0x8A), 0x9A);
    EXPECT_EQ(folded(0x8C), 0x9C);
    EXPECT_EQ(folded(0x8E), 0x9E);
    EXPECT_EQ(folded(0x9F), 0xFF);
}

TEST(Folding, LeavesSymbolsAmongTheLettersAlone)
{
    EXPECT_EQ(folded(0xD7), 0xD7); // times
    EXPECT_EQ(folded(0xF7), 0xF7); // divided by
    EXPECT_EQ(folded(0xDF), 0xDF); // sharp s has no capital
}

TEST(UpperCase, KnowsAccentedLetters)
{
    EXPECT_EQ(upperCase("js\xE9\xFF\x9A\x9C\x9E"), "JS\xC9\x9F\x8A\x8C\x8E");
    EXPECT_EQ(upperCase("1\xDF\xF7\xD7\xB5"), "1\xDF\xF7\xD7\xB5");
}

TEST(CompareFolded, IgnoresCaseAndPutsThePrefixFirst)
{
    EXPECT_EQ(compareFolded("Duke", "dUKE"), 0);
    EXPECT_LT(compareFolded("Duk", "DUKE"), 0);
    EXPECT_GT(compareFolded("Dukes", "DUKE"), 0);
    EXPECT_LT(compareFolded("a", "B"), 0);
    EXPECT_LT(compareFolded("B", "c"), 0);
    EXPECT_EQ(compareFolded("", ""), 0);
}

TEST(CompareFolded, PutsAccentedLettersAfterTheOthers)
{
    EXPECT_LT(compareFolded("z", "\xC9"), 0);
    EXPECT_EQ(compareFolded("\xC9t\xE9", "\xE9T\xC9"), 0);
}

TEST(FoldedLess, SortsAListStably)
{
    std::vector<std::string> names{"duke", "Arizona", "DUKE", "UCLA", "arizona"};
    std::stable_sort(names.begin(), names.end(), FoldedLess{});
    EXPECT_EQ(names, (std::vector<std::string>{"Arizona", "arizona", "duke", "DUKE", "UCLA"}));
}

TEST(StartsWithFolded, LooksAtTheBeginningOnly)
{
    EXPECT_TRUE(startsWithFolded("North Carolina", "NORTH"));
    EXPECT_TRUE(startsWithFolded("North", ""));
    EXPECT_FALSE(startsWithFolded("North", "Northern"));
    EXPECT_FALSE(startsWithFolded("North", "orth"));
}

TEST(EndsWithFolded, LooksAtTheEndOnly)
{
    EXPECT_TRUE(endsWithFolded("Smith_JS.thc", ".THC"));
    EXPECT_FALSE(endsWithFolded("Smith_JS.THC.bak", ".THC"));
    EXPECT_FALSE(endsWithFolded("HC", ".THC"));
}

} // namespace
} // namespace tallyhoop
