// tests/qt/services/message_encodings_test.cpp - base64, percent encoding, encoded words.
#include "qt/services/message_encodings.h"

#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

// The examples of RFC 4648, chapter 10.
TEST(Base64, FillsUpTheLastFourLetters)
{
    EXPECT_EQ(base64(""), "");
    EXPECT_EQ(base64("f"), "Zg==");
    EXPECT_EQ(base64("fo"), "Zm8=");
    EXPECT_EQ(base64("foo"), "Zm9v");
    EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
}

TEST(Base64, TakesEveryByte)
{
    EXPECT_EQ(base64(std::string{"\xFF\xFF\xFF\0\0\0", 6}), "////AAAA");
    EXPECT_EQ(base64("\xFB\xEF\xBE"), "++++");
}

TEST(PercentEncoded, KeepsLettersDigitsAndFourMarksOnly)
{
    EXPECT_EQ(percentEncoded("aZ09-._~"), "aZ09-._~");
    EXPECT_EQ(percentEncoded(" %,'&+/@\r\n"), "%20%25%2C%27%26%2B%2F%40%0D%0A");
    EXPECT_EQ(percentEncoded("\xC3\xBC/x", "/"), "%C3%BC/x");
}

TEST(PlainHeader, IsWhatNoReaderChanges)
{
    EXPECT_TRUE(isPlainHeader(""));
    EXPECT_TRUE(isPlainHeader("It's  round 2, ~100%"));
    EXPECT_FALSE(isPlainHeader(" x"));
    EXPECT_FALSE(isPlainHeader("x "));
    EXPECT_FALSE(isPlainHeader("a =?"));
    EXPECT_FALSE(isPlainHeader("a\tb"));
    EXPECT_FALSE(isPlainHeader("a\x7F"));
    EXPECT_FALSE(isPlainHeader("\xC3\xBC"));
}

TEST(EncodedWords, HoldWholeCharactersOfAtMostThirtyNineBytes)
{
    EXPECT_EQ(encodedWords(""), "");
    EXPECT_EQ(encodedWords("\xC3\xBC"), "=?UTF-8?B?w7w=?=");
    // 38 bytes, and a character of two that would be bytes 39 and 40: it begins the next word.
    const std::string first(38, 'x');
    EXPECT_EQ(encodedWords(first + "\xC3\xBC"),
              "=?UTF-8?B?eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHg=?=\r\n =?UTF-8?B?w7w=?=");
}

} // namespace
} // namespace tallyhoop::qt
