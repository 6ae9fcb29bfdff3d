// tests/intake/storable_test.cpp - what the program's files can hold, and what they cannot.
#include "intake/storable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Storable, IsWhatWindows1252Has)
{
    std::vector<std::string> refusals;
    EXPECT_EQ(storable("Zo\xC3\xA9 \xE2\x82\xAC \xE2\x80\x9C?\xE2\x80\x9D \xC2\xA0", "The name", refusals),
              "Zo\xE9 \x80 \x93?\x94 \xA0");
    EXPECT_THAT(refusals, IsEmpty());
}

TEST(Storable, IsNotAnotherLetterNorABrokenOne)
{
    std::vector<std::string> refusals;
    EXPECT_EQ(storable("Zo\xC3\xA9?\xC5\x81\xC5\x81", "The name", refusals), "Zo\xE9???");
    EXPECT_EQ(storable("Zo\xC3\xA9?\xC5\x81\xC5\x82", "The name", refusals), "Zo\xE9???")
        << "the same words: said once";
    storable("a\xC3", "It", refusals);
    EXPECT_THAT(refusals, ElementsAre("The name has a letter that the program's files cannot hold, at place 5: "
                                      "\"Zo\xE9???\".",
                                      "It has a letter that the program's files cannot hold, at place 2: \"a?\"."));
}

} // namespace
} // namespace tallyhoop
