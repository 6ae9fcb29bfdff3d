// tests/qt/services/mailboxes_test.cpp - recipients as people type them.
#include "qt/services/mailboxes.h"

#include <gtest/gtest.h>

namespace tallyhoop::qt {

void PrintTo(const Mailbox& mailbox, std::ostream* out) { *out << mailbox.name << " <" << mailbox.address << ">"; }

namespace {

using Mailboxes = std::vector<Mailbox>;

TEST(Mailboxes, AreAddressesOrNames)
{
    EXPECT_EQ(mailboxesOf(" a@x.org "), (Mailboxes{{"", "a@x.org"}}));
    EXPECT_EQ(mailboxesOf("Smith, J"), (Mailboxes{{"Smith, J", ""}}));
    EXPECT_EQ(mailboxesOf("\"Smith, J\""), (Mailboxes{{"Smith, J", ""}}));
    EXPECT_EQ(mailboxesOf("   "), Mailboxes{});
    EXPECT_EQ(mailboxesOf(""), Mailboxes{});
}

TEST(Mailboxes, MayHaveBoth)
{
    EXPECT_EQ(mailboxesOf("Ann Lee <ann@x.org>"), (Mailboxes{{"Ann Lee", "ann@x.org"}}));
    EXPECT_EQ(mailboxesOf("\"Smith, \\\"JJ\\\"\" < js@x.org >"), (Mailboxes{{"Smith, \"JJ\"", "js@x.org"}}));
    EXPECT_EQ(mailboxesOf("\"a\\\", b\" <x@x.org>"), (Mailboxes{{"a\", b", "x@x.org"}}));
    EXPECT_EQ(mailboxesOf("<js@x.org>"), (Mailboxes{{"", "js@x.org"}}));
}

TEST(Mailboxes, MayBeSeveral)
{
    EXPECT_EQ(mailboxesOf("a@x.org, b@x.org;\"C, D; E\" <c@x.org>,"),
              (Mailboxes{{"", "a@x.org"}, {"", "b@x.org"}, {"C, D; E", "c@x.org"}}));
    EXPECT_EQ(mailboxesOf("Ann, b@x.org"), (Mailboxes{{"Ann", ""}, {"", "b@x.org"}}));
}

TEST(Mailboxes, TakeWhatIsBrokenAsItIs)
{
    EXPECT_EQ(mailboxesOf("a@x.org>"), (Mailboxes{{"", "a@x.org>"}}));
    EXPECT_EQ(mailboxesOf("\"a, b@x.org"), (Mailboxes{{"", "\"a, b@x.org"}}));
    EXPECT_EQ(mailboxesOf("\""), (Mailboxes{{"\"", ""}}));
    EXPECT_EQ(mailboxesOf("<>@"), (Mailboxes{{"", "<>@"}}));
}

} // namespace
} // namespace tallyhoop::qt
