// tests/intake/mail_parts_test.cpp - mails in the forms that mail programs give them.
#include "intake/mail_readers.h"

#ifndef _WIN32
#include "intake/mail_parts.h"
#endif

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Kind = MailPart::Kind;

class MailParts : public testing::TestWithParam<test::MailReader>
{
protected:
    static std::vector<MailPart> partsOf(std::string_view mail)
    {
        const Result<std::vector<MailPart>> parts = GetParam().takeApart(mail);
        if (parts)
            return *parts;
        ADD_FAILURE() << parts.failure().message;
        return {};
    }

    static std::string failureOf(std::string_view mail)
    {
        const Result<std::vector<MailPart>> parts = GetParam().takeApart(mail);
        return parts ? "none" : parts.failure().message;
    }
};

INSTANTIATE_TEST_SUITE_P(ByEachReader, MailParts, testing::ValuesIn(test::mailReaders()),
                         [](const auto& tested) { return tested.param.name; });

/// Parts in parts, so many times over, a text at the bottom.
std::string nested(int depth)
{
    std::string mail = "From: a@example.org\nMIME-Version: 1.0\n";
    for (int i = 0; i < depth; ++i) {
        const std::string boundary = "b" + std::to_string(i);
        mail += "Content-Type: multipart/mixed; boundary=" + boundary + "\n\n--" + boundary + "\n";
    }
    return mail + "Content-Type: text/plain\n\nbottom\n";
}

TEST_P(MailParts, AreOneTextInAPlainMail)
{
    const auto parts = partsOf("From: \"Smith, Ann\" <ann@example.org>\r\n"
                               "Date: Tue, 10 Mar 2026 08:00:00 +0100\r\n"
                               "Subject: x\r\n\r\nHello\r\nBob\r\n");
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_EQ(parts[0].kind, Kind::Text);
    EXPECT_EQ(parts[0].content, "Hello\r\nBob\r\n");
    EXPECT_EQ(parts[0].sender, "ann@example.org");
    EXPECT_EQ(parts[0].date, 1773126000) << "7 o'clock in UTC, 20,522 days after 1970";
    EXPECT_EQ(parts[0].message, 0);
}

TEST_P(MailParts, AreFoundAfterAByteOrderMark)
{
    const auto parts = partsOf("\xEF\xBB\xBF"
                               "From: ann@example.org\nContent-Transfer-Encoding: base64\n\neA==\n");
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_EQ(parts[0].sender, "ann@example.org");
    EXPECT_EQ(parts[0].content, "x");
}

TEST_P(MailParts, AreDecoded)
{
    EXPECT_EQ(partsOf("Content-Type: text/plain; charset=utf-8\nContent-Transfer-Encoding: quoted-printable\n\n"
                      "Zo=C3=A9 and a long=\n line=3D1\n")[0]
                  .content,
              "Zo\xC3\xA9 and a long line=1\n");
    EXPECT_EQ(
        partsOf("Content-Type: text/plain; charset=utf-8\nContent-Transfer-Encoding: base64\n\nWm/DqQ==\n")[0].content,
        "Zo\xC3\xA9");
}

TEST_P(MailParts, AreInUtf8WhateverTheirCharacterSet)
{
    EXPECT_EQ(partsOf("Content-Type: text/plain; charset=iso-8859-1\n\nZo\xE9 \x92")[0].content,
              "Zo\xC3\xA9 \xE2\x80\x99")
        << "Windows-1252 under a false name";
    EXPECT_EQ(partsOf("Content-Type: text/plain; charset=iso-8859-2\n\n\xA3")[0].content, "\xC5\x81");
    EXPECT_EQ(
        partsOf("Content-Type: text/plain; charset=utf-16le\nContent-Transfer-Encoding: base64\n\nWgDpAA==")[0].content,
        "Z\xC3\xA9");
    EXPECT_EQ(partsOf("Content-Type: text/plain; charset=no-such-set\n\nZo\xE9")[0].content, "Zo\xC3\xA9");
    EXPECT_EQ(partsOf("\nZo\xC3\xA9")[0].content, "Zo\xC3\xA9") << "says nothing";
}

TEST_P(MailParts, AreTextPageAndFiles)
{
    const auto parts = partsOf("From: a@example.org\nContent-Type: multipart/mixed; boundary=out\n\n"
                               "--out\nContent-Type: multipart/alternative; boundary=in\n\n"
                               "--in\nContent-Type: text/plain\n\nplain\n"
                               "--in\nContent-Type: text/html\n\n<p>page\n--in--\n"
                               "--out\nContent-Type: application/octet-stream; name=\"Zo=?utf-8?q?=C3=A9?=_ZO.THC\"\n"
                               "Content-Disposition: attachment; filename*=utf-8''Zo%C3%A9_ZO.THC\n"
                               "Content-Transfer-Encoding: base64\n\nQQ0KQg==\n"
                               "--out\nContent-Type: image/png\n\nx\n--out--\n");
    ASSERT_EQ(parts.size(), 3u) << "a picture without a name is of no use";
    EXPECT_EQ(parts[0].kind, Kind::Text);
    EXPECT_EQ(parts[0].content, "plain");
    EXPECT_EQ(parts[1].kind, Kind::Html);
    EXPECT_EQ(parts[2].kind, Kind::File);
    EXPECT_EQ(parts[2].name, "Zo\xE9_ZO.THC");
    EXPECT_EQ(parts[2].content, "A\r\nB") << "byte for byte";
}

TEST_P(MailParts, AreNamedInEncodedWords)
{
    const auto nameOf = [this](const std::string& name) {
        return partsOf("Content-Type: application/octet-stream\n"
                       "Content-Disposition: attachment; filename=\"" +
                       name + "\"\n\nx")[0]
            .name;
    };
    EXPECT_EQ(nameOf("=?utf-8?q?Zo=C3=A9?= S.THC"), "Zo\xE9 S.THC");
    EXPECT_EQ(nameOf("=?utf-8?b?Wm9v?= =?utf-8?b?w6k=?=.THC"), "Zoo\xE9.THC") << "blanks between words do not count";
    EXPECT_EQ(nameOf("=?utf-8?q?Zo=C3?= =?utf-8?q?=A9?=.THC"), "Zo\xE9.THC") << "a character in two words";
    EXPECT_EQ(nameOf("=?utf-8?q?Zo?= =?iso-8859-1?q?=E9?=.THC"), "Zo\xE9.THC") << "two character sets";
    EXPECT_EQ(nameOf("=?utf-7?q?Zo+AOk-?= S.THC"), "Zo\xE9 S.THC") << "a character set whose bytes look like ASCII";
}

TEST_P(MailParts, OfAForwardedMessageHaveItsSender)
{
    const auto parts = partsOf("From: boss@example.org\nContent-Type: multipart/mixed; boundary=x\n\n"
                               "--x\n\nsee below\n"
                               "--x\nContent-Type: message/rfc822\n\n"
                               "From: ann@example.org\nDate: Thu, 1 Jan 1970 00:01:00 +0000\n\nmine\n--x--\n");
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(parts[0].sender, "boss@example.org");
    EXPECT_FALSE(parts[0].date);
    EXPECT_EQ(parts[1].sender, "ann@example.org");
    EXPECT_EQ(parts[1].date, 60);
    EXPECT_NE(parts[1].message, parts[0].message);
}

TEST_P(MailParts, AreFoundInAMailThatEndsTooEarly)
{
    const auto parts = partsOf("Content-Type: multipart/mixed; boundary=x\n\n--x\n\nfirst\n--x\nContent-Type: te");
    ASSERT_FALSE(parts.empty());
    EXPECT_EQ(parts[0].content, "first");
}

TEST_P(MailParts, AreNoneInWhatIsNoMail)
{
    for (const std::string_view bytes : {std::string_view{}, std::string_view{"\0\1\2", 3}}) {
        const Result<std::vector<MailPart>> parts = GetParam().takeApart(bytes);
        EXPECT_TRUE(!parts || parts->empty() || parts->front().content.size() <= bytes.size());
    }
}

TEST_P(MailParts, AreReadToALimitedDepth)
{
    EXPECT_EQ(partsOf(nested(18)).size(), 1u);
    for (const int depth : {21, 400}) {
        const auto parts = partsOf(nested(depth));
        ASSERT_EQ(parts.size(), 1u);
        EXPECT_EQ(parts[0].kind, Kind::TooDeep) << "said, not passed over";
        EXPECT_EQ(parts[0].content, "");
        EXPECT_EQ(parts[0].sender, "a@example.org");
    }
    std::string messages = "From: a@example.org\n";
    for (int i = 0; i < 20'000; ++i)
        messages += "Content-Type: message/rfc822\n\n";
    const auto parts = partsOf(messages);
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_EQ(parts[0].kind, Kind::TooDeep);
}

TEST_P(MailParts, AreNotTooMany)
{
    const std::string head = "Content-Type: multipart/mixed; boundary=x\n\n";
    std::string parts;
    for (int i = 0; i < 499; ++i)
        parts += "--x\n\n.\n";
    EXPECT_EQ(partsOf(head + parts + "--x--\n").size(), 499u) << "500 with the one that holds them";
    EXPECT_EQ(failureOf(head + parts + "--x\n\n.\n--x--\n"), "The mail has too many parts.");
    std::string bomb = head;
    while (bomb.size() < 1'000'000)
        bomb += "--x\n\n";
    EXPECT_EQ(failureOf(bomb), "The mail has too many parts.");
}

#ifndef _WIN32
TEST(MailPartsOfALibrary, NeedIt)
{
    const Result<std::vector<MailPart>> parts = mailParts("\nx", nullptr);
    ASSERT_FALSE(parts);
    EXPECT_EQ(parts.failure().message, "The library for mail messages, gmime 3, could not be loaded.");
}
#endif

} // namespace
} // namespace tallyhoop
