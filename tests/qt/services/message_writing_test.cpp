// tests/qt/services/message_writing_test.cpp - a message without a library, byte for byte.
#include "qt/services/message_writing.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>
#include <vector>

namespace tallyhoop::qt {
namespace {

/// @returns the lines from the one that begins with the first text to before the one that begins with the second
std::string between(const std::string& message, const std::string& first, const std::string& second)
{
    const std::size_t start = message.find("\r\n" + first) + 2;
    return message.substr(start, message.find("\r\n" + second, start) + 2 - start);
}

std::string toHeaderOf(const std::vector<std::string>& recipients)
{
    return between(*writtenMessage({.recipients = recipients, .subject = "s", .body = {}}, {}), "To:", "Subject:");
}

/// @returns the headers of the first attachment, whose bytes are "foo"
std::string headersOfAttachment(const std::string& name)
{
    const std::string message = *writtenMessage({}, std::vector<AttachedText>{{name, "foo"}});
    return message.substr(message.find("--=_", message.find("--=_") + 1));
}

TEST(WrittenMessage, HasTheTextAndAPartForEachFile)
{
    EXPECT_EQ(*writtenMessage({.recipients = {"a@x.org", "Ann Lee <ann@x.org>"}, .subject = "Round 2", .body = "foo"},
                              std::vector<AttachedText>{{"RPTOPT1.TXT", "foobar"}, {"pool.html", ""}}),
              test::crlf({"X-Unsent: 1",
                          "To: a@x.org,",
                          " \"Ann Lee\"",
                          " <ann@x.org>",
                          "Subject: Round 2",
                          "MIME-Version: 1.0",
                          "Content-Type: multipart/mixed; boundary=\"=_part_of_the_message\"",
                          "",
                          "--=_part_of_the_message",
                          "Content-Type: text/plain; charset=utf-8",
                          "Content-Transfer-Encoding: base64",
                          "",
                          "Zm9v",
                          "--=_part_of_the_message",
                          "Content-Type: text/plain; charset=windows-1252;",
                          " name=\"RPTOPT1.TXT\"",
                          "Content-Disposition: attachment;",
                          " filename=\"RPTOPT1.TXT\"",
                          "Content-Transfer-Encoding: base64",
                          "",
                          "Zm9vYmFy",
                          "--=_part_of_the_message",
                          "Content-Type: text/html; charset=utf-8;",
                          " name=\"pool.html\"",
                          "Content-Disposition: attachment;",
                          " filename=\"pool.html\"",
                          "Content-Transfer-Encoding: base64",
                          "",
                          "--=_part_of_the_message--"}));
}

TEST(WrittenMessage, HasNoRecipientsHeaderWithoutRecipients)
{
    EXPECT_EQ(writtenMessage({}, {})->find("To:"), std::string::npos);
}

TEST(WrittenMessage, QuotesOrEncodesNames)
{
    EXPECT_EQ(toHeaderOf({"\"Smith, \\\"JJ\\\"\" <js@x.org>"}), "To: \"Smith, \\\"JJ\\\"\"\r\n <js@x.org>\r\n");
    EXPECT_EQ(toHeaderOf({"\xC3\xBC <u@x.org>"}), "To: =?UTF-8?B?w7w=?=\r\n <u@x.org>\r\n");
    EXPECT_EQ(toHeaderOf({"Smith, J"}), "To: \"Smith, J\"\r\n");
}

TEST(WrittenMessage, LetsNoRecipientReachIntoTheNext)
{
    EXPECT_EQ(toHeaderOf({"a\"b@x.org", "c d@x.org", "(e@x.org", "f@x.org"}),
              "To: \"a\\\"b@x.org\",\r\n \"c d@x.org\",\r\n \"(e@x.org\",\r\n f@x.org\r\n");
}

TEST(WrittenMessage, EncodesASubjectThatIsTooLongForItsLine)
{
    const auto subjectOf = [](const std::string& subject) {
        return between(*writtenMessage({.recipients = {}, .subject = subject, .body = {}}, {}), "Subject:", "MIME-");
    };
    const std::string longest(67, 'x'); // "Subject: " has nine characters
    EXPECT_EQ(subjectOf(longest), "Subject: " + longest + "\r\n");
    EXPECT_TRUE(subjectOf(longest + "x").starts_with("Subject: =?UTF-8?B?"));
    EXPECT_EQ(subjectOf("\xC3\xBC"), "Subject: =?UTF-8?B?w7w=?=\r\n");
}

TEST(WrittenMessage, BreaksLinesAfterFiftySevenBytes)
{
    const std::string message = *writtenMessage({.recipients = {}, .subject = {}, .body = std::string(58, 'f')}, {});
    // 19 times "fff", then one "f".
    std::string line;
    for (int i = 0; i < 19; ++i)
        line += "ZmZm";
    EXPECT_NE(message.find("\r\n\r\n" + line + "\r\nZg==\r\n--"), std::string::npos) << message;
}

TEST(WrittenMessage, NamesFilesBeyondAsciiInPiecesThatKeepEscapesTogether)
{
    // 53 letters leave one place in the first line: an escape of three does not fit.
    const std::string headers = headersOfAttachment(std::string(53, 'n') + "\xC3\xBC.TXT");
    EXPECT_NE(headers.find(";\r\n filename*0*=UTF-8''" + std::string(53, 'n') + ";\r\n filename*1*=%C3%BC.TXT\r\n"),
              std::string::npos)
        << headers;
    EXPECT_NE(headers.find(";\r\n name*0*=UTF-8''" + std::string(53, 'n') + ";\r\n name*1*=%C3%BC.TXT\r\n"),
              std::string::npos)
        << headers;
}

TEST(WrittenMessage, EncodesANameThatLooksEncoded)
{
    EXPECT_NE(headersOfAttachment("=?x?=").find(";\r\n filename*0*=UTF-8''%3D%3Fx%3F%3D\r\n"), std::string::npos);
}

TEST(WrittenMessage, ReadsItsAttachmentsAndIsKeptInTheFolder)
{
    const test::ScratchFolder scratch;
    const std::filesystem::path report = scratch.put("RPTOPT1.TXT", "foobar");
    const OutgoingMail mail{.recipients = {}, .subject = "s", .body = {}, .files = {report}};
    const Result<std::filesystem::path> file = writeMessageFile(mail, writtenMessage, scratch.folder());
    ASSERT_TRUE(file);
    EXPECT_EQ(*file, scratch.path() / "TALLYHOOP.EML");
    const std::string message = scratch.get("TALLYHOOP.EML");
    EXPECT_NE(message.find("filename=\"RPTOPT1.TXT\""), std::string::npos);
    EXPECT_NE(message.find("\r\nZm9vYmFy\r\n"), std::string::npos);
}

} // namespace
} // namespace tallyhoop::qt
