// tests/intake/plain_text_test.cpp - characters that look alike, and how a text is encoded.
#include "intake/plain_text.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(Canonical, HasOneCharacterForEachLook)
{
    EXPECT_EQ(canonical("St. John\xE2\x80\x99s"), "St. John's") << "right single quotation mark";
    EXPECT_EQ(canonical("`a\xC2\xB4 \xE2\x80\x98"
                        "b\xE2\x80\x9A \xE2\x80\x9B \xE2\x80\xB2"),
              "'a' 'b' ' '");
    EXPECT_EQ(canonical("\xE2\x80\x9C\xE2\x80\x9D\xE2\x80\x9E\xE2\x80\x9F\xE2\x80\xB3"), "\"\"\"\"\"");
    EXPECT_EQ(canonical("a\xE2\x80\x90\xE2\x80\x91\xE2\x80\x92\xE2\x80\x93\xE2\x80\x94\xE2\x80\x95\xE2\x88\x92z"),
              "a-------z");
    EXPECT_EQ(canonical("wait\xE2\x80\xA6"), "wait...");
}

TEST(Canonical, LeavesOutWhatCannotBeSeen)
{
    EXPECT_EQ(canonical("Ari\xC2\xADzo\xE2\x80\x8Bna\xE2\x80\x8C\xE2\x80\x8D\xE2\x81\xA0\xEF\xBB\xBF"), "Arizona");
}

TEST(Canonical, TakesQuotationForBlanks) { EXPECT_EQ(canonical("> Ohio> St. >>"), "Ohio St."); }

TEST(Canonical, HasSingleBlanksAndNoneAtTheEnds)
{
    EXPECT_EQ(canonical("\t Ohio\xC2\xA0 \xE2\x80\x83\xE3\x80\x80St.\r\n"), "Ohio St.");
}

TEST(Canonical, KeepsCaseAndOtherLetters)
{
    EXPECT_EQ(canonical("Zo\xC3\xA9 \xE2\x82\xAC"), "Zo\xE9 \x80");
    EXPECT_EQ(canonical("\xC5\x81ukasz"), "?ukasz") << "a letter that Windows-1252 lacks";
}

TEST(PlainBlanks, LeaveOtherCharactersAlone)
{
    EXPECT_EQ(withPlainBlanks("  O\xE2\x80\x99Neil,\xC2\xA0\xC2\xA0J\xE2\x80\x8B "), "O\xE2\x80\x99Neil, J");
}

TEST(Utf8Of, FindsOutTheEncoding)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(utf8Of("Zo\xC3\xA9"), "Zo\xC3\xA9");
    EXPECT_EQ(utf8Of("\xEF\xBB\xBFZo\xC3\xA9"), "Zo\xC3\xA9") << "byte order mark";
    EXPECT_EQ(utf8Of("Zo\xE9 \x92"), "Zo\xC3\xA9 \xE2\x80\x99") << "Windows-1252";
    EXPECT_EQ(utf8Of("\xFF\xFEZ\0\xE9\0\x19\x20"sv), "Z\xC3\xA9\xE2\x80\x99") << "UTF-16, low byte first";
    EXPECT_EQ(utf8Of("\xFE\xFF\0Z\0\xE9\x20\x19"sv), "Z\xC3\xA9\xE2\x80\x99") << "UTF-16, high byte first";
    EXPECT_EQ(utf8Of("\xFF\xFEZ\0\x3D\xD8\0\xDE"sv), "Z\xEF\xBF\xBD\xEF\xBF\xBD")
        << "a character beyond 16 bits: must not become something that a file can hold";
}

TEST(QuotedText, IsShortAndOnOneLine)
{
    EXPECT_EQ(quotedText("Duke"), "\"Duke\"");
    EXPECT_EQ(quotedText("a\r\nb"), "\"a  b\"");
    EXPECT_EQ(quotedText(std::string(41, 'x')), '"' + std::string(40, 'x') + "...\"");
    EXPECT_EQ(quotedText(std::string(40, 'x')), '"' + std::string(40, 'x') + '"');
}

TEST(ControlCharacters, AreThoseThatNobodyTypes)
{
    EXPECT_FALSE(hasControlCharacters("Zo\xE9 \x81\xA0"));
    EXPECT_TRUE(hasControlCharacters("a\tb"));
    EXPECT_TRUE(hasControlCharacters("a\x7F"));
    EXPECT_TRUE(hasControlCharacters(std::string_view{"\0", 1}));
}

} // namespace
} // namespace tallyhoop
