// tests/pool/prizes/tied_pairs_test.cpp - at which total two tied players change places.
#include "pool/prizes/tied_pairs.h"

#include "pool/prizes/some_scores.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<TiedPair> pairsOf(const std::vector<PlayerScore>& scores, TieRule rule)
{
    return tiedPairs(scores, finalPlaces(scores, rule, {}), rule);
}

TEST(TiedPairs, ByTheNearestPredictionFlipInTheMiddle)
{
    // Between 150 and 180 the middle is 165: as near to both. Between 150 and 181 it is 165.5.
    EXPECT_THAT(pairsOf({scoreOf(90, 180), scoreOf(90, 150)}, TieRule::Nearest),
                ElementsAre(TiedPair{1, 1, 0, TieEnd::ByTotal, 164, 166}));
    EXPECT_THAT(pairsOf({scoreOf(90, 150), scoreOf(90, 181)}, TieRule::Nearest),
                ElementsAre(TiedPair{1, 0, 1, TieEnd::ByTotal, 165, 166}));
}

TEST(TiedPairs, WithoutGoingOverFlipAtTheHigherPrediction)
{
    EXPECT_THAT(pairsOf({scoreOf(90, 150), scoreOf(90, 180)}, TieRule::NotOver),
                ElementsAre(TiedPair{1, 0, 1, TieEnd::ByTotal, 179, 180}));
}

TEST(TiedPairs, MayNeverFlip)
{
    EXPECT_THAT(pairsOf({scoreOf(90, 150), scoreOf(90, 150)}, TieRule::Nearest),
                ElementsAre(TiedPair{1, 0, 1, TieEnd::AlwaysTied}));
    EXPECT_THAT(pairsOf({scoreOf(90, 0), scoreOf(90, -3)}, TieRule::Nearest),
                ElementsAre(TiedPair{1, 1, 0, TieEnd::AlwaysTied}));
    EXPECT_THAT(pairsOf({scoreOf(90, 0), scoreOf(90, 150)}, TieRule::Nearest),
                ElementsAre(TiedPair{1, 1, 0, TieEnd::LowerAlways}));
}

TEST(TiedPairs, AreAllThoseOfEachPlace)
{
    const std::vector<PlayerScore> scores{scoreOf(80, 100), scoreOf(90, 150), scoreOf(80, 120),
                                          scoreOf(90, 180), scoreOf(90, 160), scoreOf(70, 100)};
    EXPECT_THAT(pairsOf(scores, TieRule::NotOver),
                ElementsAre(TiedPair{1, 1, 4, TieEnd::ByTotal, 159, 160}, TiedPair{1, 1, 3, TieEnd::ByTotal, 179, 180},
                            TiedPair{1, 4, 3, TieEnd::ByTotal, 179, 180},
                            TiedPair{4, 0, 2, TieEnd::ByTotal, 119, 120}));
    EXPECT_THAT(pairsOf(scores, TieRule::Share), IsEmpty());
}

TEST(TiedPairs, OfACrowdAreThoseOfNeighbours)
{
    // Given: 25 players make 25 * 24 / 2 pairs; of 26 those count that are next to each other and differ.
    std::vector<PlayerScore> scores;
    for (int i = 0; i < 25; ++i)
        scores.push_back(scoreOf(90, 100 + 10 * i));
    EXPECT_EQ(pairsOf(scores, TieRule::Nearest).size(), 300u);
    scores.push_back(scoreOf(90, 100));
    const std::vector<TiedPair> pairs = pairsOf(scores, TieRule::Nearest);
    ASSERT_EQ(pairs.size(), 24u);
    EXPECT_EQ(pairs[0], (TiedPair{1, 25, 1, TieEnd::ByTotal, 104, 106}));
    EXPECT_EQ(pairs[23], (TiedPair{1, 23, 24, TieEnd::ByTotal, 334, 336}));
}

} // namespace
} // namespace tallyhoop::test
