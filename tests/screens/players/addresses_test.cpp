// tests/screens/players/addresses_test.cpp - several addresses in one text.
#include "screens/players/addresses.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using Addresses = std::vector<std::string>;

TEST(AddressesIn, AreDividedAtSemicolons)
{
    EXPECT_EQ(addressesIn("a@x.org; b@x.org"), (Addresses{"a@x.org", "b@x.org"}));
    EXPECT_EQ(addressesIn("everybody;a@x.org"), (Addresses{"everybody", "a@x.org"}));
}

TEST(AddressesIn, AreDividedAtACommaAfterAnAddressOnly)
{
    EXPECT_EQ(addressesIn("a@x.org,b@x.org"), (Addresses{"a@x.org", "b@x.org"}));
    EXPECT_EQ(addressesIn("Smith, J <j@x.org>, Brown, B <b@x.org>"),
              (Addresses{"Smith, J <j@x.org>", "Brown, B <b@x.org>"}));
}

TEST(AddressesIn, AreDividedAtACommaBeforeAnAddressOnly)
{
    EXPECT_EQ(addressesIn("j@x.org (Smith, J)"), Addresses{"j@x.org (Smith, J)"});
    EXPECT_EQ(addressesIn("j@x.org, J, Smith, b@x.org"), (Addresses{"j@x.org", "J, Smith, b@x.org"}));
}

TEST(AddressesIn, AreNotDividedInQuotationMarksAndAngleBrackets)
{
    EXPECT_EQ(addressesIn("\"Doe; John\" <j@x.org>"), Addresses{"\"Doe; John\" <j@x.org>"});
    EXPECT_EQ(addressesIn("\"j@x, the first\" <j@x.org>, b@x.org"),
              (Addresses{"\"j@x, the first\" <j@x.org>", "b@x.org"}));
    EXPECT_EQ(addressesIn("<j;k@x.org>;\"B; C\" <b@x.org>"), (Addresses{"<j;k@x.org>", "\"B; C\" <b@x.org>"}));
}

TEST(AddressesIn, AreDividedWhereAQuotationMarkOrBracketHasNoPartner)
{
    EXPECT_EQ(addressesIn("6\" Joe <j@x.org>; b@x.org"), (Addresses{"6\" Joe <j@x.org>", "b@x.org"}));
    EXPECT_EQ(addressesIn("a@x.org <; b@x.org"), (Addresses{"a@x.org <", "b@x.org"}));
}

TEST(AddressesIn, HaveNoOuterBlanksAndAreNeverEmpty)
{
    EXPECT_EQ(addressesIn("  a@x.org  "), Addresses{"a@x.org"});
    EXPECT_EQ(addressesIn("; a@x.org;; ,b@x.org;"), (Addresses{"a@x.org", ",b@x.org"}));
    EXPECT_EQ(addressesIn(" ; "), Addresses{});
    EXPECT_EQ(addressesIn(""), Addresses{});
}

} // namespace
} // namespace tallyhoop::test
