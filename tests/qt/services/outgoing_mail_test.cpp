// tests/qt/services/outgoing_mail_test.cpp - a message in the form for clients, and the files that it names.
#include "qt/services/outgoing_mail.h"

#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using Arguments = std::vector<std::string>;

TEST(OutgoingMail, IsUtf8WithoutThePlaceholders)
{
    const OutgoingMail mail = outgoing({.recipients = {"zo\xEB@example.org"},
                                        .subject = "\x80 \x95",
                                        .body = "fa\xE7"
                                                "ade  \r\nx            ", // two blanks of its own, then ten
                                        .placeholders = 10,
                                        .attachments = {{"/pool/RPTOPT1.TXT", 12}}});
    EXPECT_EQ(mail.recipients, Arguments{"zo\xC3\xAB@example.org"});
    EXPECT_EQ(mail.subject, "\xE2\x82\xAC \xE2\x80\xA2"); // the euro sign and the bullet
    EXPECT_EQ(mail.body, "fa\xC3\xA7"
                         "ade  \r\nx  ");
    EXPECT_EQ(mail.files, std::vector<std::filesystem::path>{"/pool/RPTOPT1.TXT"});
}

TEST(OutgoingMail, HasNoControlCharactersInHeaders)
{
    const OutgoingMail mail = outgoing(
        {.recipients = {"a@x.org\r\nBcc: b@x.org"}, .subject = "one\ntwo\x01\x7F", .body = {}, .attachments = {}});
    EXPECT_EQ(mail.recipients, Arguments{"a@x.org  Bcc: b@x.org"});
    EXPECT_EQ(mail.subject, "one two  ");
}

} // namespace
} // namespace tallyhoop::qt
