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

TEST(AddressesIn, HaveNoOuterBlanksAndAreNeverEmpty)
{
    EXPECT_EQ(addressesIn("  a@x.org  "), Addresses{"a@x.org"});
    EXPECT_EQ(addressesIn("; a@x.org;; ,b@x.org;"), (Addresses{"a@x.org", ",b@x.org"}));
    EXPECT_EQ(addressesIn(" ; "), Addresses{});
    EXPECT_EQ(addressesIn(""), Addresses{});
}

} // namespace
} // namespace tallyhoop::test
