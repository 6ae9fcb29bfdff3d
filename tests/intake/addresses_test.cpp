// tests/intake/addresses_test.cpp - addresses in running text.
#include "intake/addresses.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(Addresses, AreFoundInRunningText)
{
    EXPECT_EQ(firstAddressIn("write to ann.b+pool@mail.example.org."), "ann.b+pool@mail.example.org");
    EXPECT_EQ(firstAddressIn("<a@b.example>,<c@d.example>"), "a@b.example");
    EXPECT_EQ(firstAddressIn("mail@"), "");
    EXPECT_EQ(firstAddressIn("@home, or a@b.example"), "a@b.example") << "the first whole one";
    EXPECT_EQ(firstAddressIn("a @ b"), "");
    EXPECT_EQ(firstAddressIn(""), "");
}

TEST(Addresses, WithLettersOutsideAsciiAreNoneRatherThanAnothers)
{
    EXPECT_EQ(firstAddressIn("jos\xC3\xA9.x@y.example"), "") << "not .x@y.example";
    EXPECT_EQ(firstAddressIn("ann@m\xC3\xBCller.example"), "") << "not ann@m";
    EXPECT_EQ(firstAddressIn("\xE2\x80\x9C"
                             "ann@x.example\xE2\x80\x9D"),
              "ann@x.example")
        << "curly quotation marks";
    EXPECT_EQ(firstAddressIn("From:\xC2\xA0"
                             "ann@x.example\xC2\xA0"),
              "ann@x.example")
        << "blanks that do not break";
}

TEST(Addresses, AreFoundAmongOthersInAnyCase)
{
    EXPECT_TRUE(namesAddress("Ann <ann@x.example>; b@y.example ", "B@Y.example"));
    EXPECT_TRUE(namesAddress("Ann <ann@x.example>; b@y.example ", "ann@x.example"));
    EXPECT_FALSE(namesAddress("joann@x.example", "ann@x.example")) << "only as a whole";
    EXPECT_FALSE(namesAddress("ann@x.example", ""));
    EXPECT_FALSE(namesAddress("", "ann@x.example"));
}

TEST(Addresses, OfWritersAreTheLastOnesNamed)
{
    EXPECT_EQ(lastWriterIn("From: a@x.example To: b@x.example"), "a@x.example");
    EXPECT_EQ(lastWriterIn("From: a@x.example Date: From: c@x.example"), "c@x.example");
    EXPECT_EQ(lastWriterIn("From: nobody To: b@x.example"), "") << "the receiver is not the writer";
    EXPECT_EQ(lastWriterIn("b@x.example said. On Monday Ann <a@x.example> wrote:"), "a@x.example");
    EXPECT_EQ(lastWriterIn("From: a@x.example On Monday c@x.example wrote:"), "c@x.example");
    EXPECT_EQ(lastWriterIn("a@x.example"), "");
}

TEST(Addresses, ForEntriesAreWholeTexts)
{
    EXPECT_TRUE(isAddressForEntries("ann@x.example"));
    EXPECT_FALSE(isAddressForEntries("Ann <ann@x.example>"));
    EXPECT_FALSE(isAddressForEntries(" ann@x.example"));
    EXPECT_FALSE(isAddressForEntries("ann"));
    const std::string host = "@x.example";
    EXPECT_TRUE(isAddressForEntries(std::string(254 - host.size(), 'a') + host));
    EXPECT_FALSE(isAddressForEntries(std::string(255 - host.size(), 'a') + host)) << "no mail server takes it";
}

} // namespace
} // namespace tallyhoop
