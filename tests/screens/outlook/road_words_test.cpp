// tests/screens/outlook/road_words_test.cpp - the road in words, for one player and for the leaders.
#include "screens/outlook/road_words.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

RoadPoint pointWith(std::vector<double> shares, std::uint64_t samples = 0)
{
    RoadPoint point;
    point.samples = samples;
    for (const double share : shares)
        point.chances.push_back({.share = share});
    point.errors.resize(shares.size());
    return point;
}

RoadPicture threePlayers()
{
    RoadPicture picture;
    picture.times = {"Start", "Round 1", "Now"};
    picture.names = {"A, Ann", "J, Joe & Co.", "Z, Zo\xEB", "B, Bob"};
    picture.points = {pointWith({0.25, 0.5, 0.0625, 0.1875}, 1000), pointWith({0.5, 0.25, 0.125, 0.125})};
    return picture;
}

TEST(RoadInWords, TellsOnePlayersSharesFromTimeToTime)
{
    RoadPicture picture = threePlayers();
    picture.chosen = 1;
    EXPECT_EQ(roadInWords(picture), "J, Joe & Co.: round 1 50.0 % (forecast), now 25.0 %")
        << "the start is not found yet";
}

TEST(RoadInWords, TellsTheThreeLargestSharesWhereNobodyIsChosen)
{
    EXPECT_EQ(roadInWords(threePlayers()), "The road: now: A, Ann 50.0 %, J, Joe & Co. 25.0 %, Z, Zo\xEB 12.5 %");
}

TEST(RoadInWords, SaysWhenNothingIsKnown)
{
    RoadPicture picture = threePlayers();
    picture.points.clear();
    EXPECT_EQ(roadInWords(picture), "The road: not known yet");
    picture.chosen = 0;
    EXPECT_EQ(roadInWords(picture), "A, Ann: not known yet");
}

TEST(RoadInWords, NeverTakesASmallShareForNone)
{
    RoadPicture picture = threePlayers();
    picture.chosen = 0;
    picture.points = {pointWith({0.0001, 0, 0, 0})};
    EXPECT_EQ(roadInWords(picture), "A, Ann: now <0.1 %");
}

} // namespace
} // namespace tallyhoop::test
