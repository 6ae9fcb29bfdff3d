// tests/pool/prizes/final_places_test.cpp - places with their ties, and shared prizes.
#include "pool/prizes/final_places.h"

#include "pool/prizes/some_scores.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

FinalPlace at(std::size_t place, std::size_t player) { return {player, place, 1, false}; }
FinalPlace shared(std::size_t place, std::size_t by, std::size_t player) { return {player, place, by, false}; }
FinalPlace last(FinalPlace place)
{
    place.isLast = true;
    return place;
}

/// Four with 90 points who predict 150, 170, 160 and nothing, and one with 80.
const std::vector<PlayerScore> kScores{scoreOf(90, 150), scoreOf(90, 170), scoreOf(80, 160), scoreOf(90, 160),
                                       scoreOf(90, 0)};

TEST(FinalPlaces, GoByPointsAlone)
{
    const std::vector<PlayerScore> scores{scoreOf(10, 0), scoreOf(30, 0), scoreOf(20, 0)};
    EXPECT_THAT(finalPlaces(scores, TieRule::Nearest, 150), ElementsAre(at(1, 1), at(2, 2), last(at(3, 0))));
}

TEST(FinalPlaces, GoByTheNearestPrediction)
{
    // 161: off by 11, 9, 1; the one without a prediction comes after those who have one.
    EXPECT_THAT(finalPlaces(kScores, TieRule::Nearest, 161),
                ElementsAre(at(1, 3), at(2, 1), at(3, 0), at(4, 4), last(at(5, 2))));
}

TEST(FinalPlaces, AreSharedByPredictionsEquallyNear)
{
    // 160: off by 10 and 10.
    EXPECT_THAT(finalPlaces(kScores, TieRule::Nearest, 160),
                ElementsAre(at(1, 3), shared(2, 2, 0), shared(2, 2, 1), at(4, 4), last(at(5, 2))));
}

TEST(FinalPlaces, GoByTheNearestPredictionThatIsNotOver)
{
    // 165: 160 and 150 are not over, 170 is, though it is nearer than 150.
    EXPECT_THAT(finalPlaces(kScores, TieRule::NotOver, 165),
                ElementsAre(at(1, 3), at(2, 0), at(3, 1), at(4, 4), last(at(5, 2))));
    // A prediction that is right is not over.
    EXPECT_EQ(finalPlaces(kScores, TieRule::NotOver, 170)[0], at(1, 1));
    // All three are over: the nearest of them is ahead.
    EXPECT_THAT(finalPlaces(kScores, TieRule::NotOver, 149),
                ElementsAre(at(1, 0), at(2, 3), at(3, 1), at(4, 4), last(at(5, 2))));
}

TEST(FinalPlaces, AreSharedByEqualPointsWithoutATotalOrARule)
{
    const auto allShared =
        ElementsAre(shared(1, 4, 0), shared(1, 4, 1), shared(1, 4, 3), shared(1, 4, 4), last(at(5, 2)));
    EXPECT_THAT(finalPlaces(kScores, TieRule::Nearest, {}), allShared);
    EXPECT_THAT(finalPlaces(kScores, TieRule::Share, 160), allShared);
}

TEST(FinalPlaces, MarkEveryoneWhoIsLast)
{
    const std::vector<PlayerScore> scores{scoreOf(10, 0), scoreOf(30, 0), scoreOf(10, 0)};
    EXPECT_THAT(finalPlaces(scores, TieRule::Share, {}),
                ElementsAre(at(1, 1), last(shared(2, 2, 0)), last(shared(2, 2, 2))));
}

TEST(FinalPlaces, HaveNoLastWhenNobodyIsAhead)
{
    EXPECT_THAT(finalPlaces({}, TieRule::Nearest, 150), IsEmpty());
    const std::vector<PlayerScore> scores{scoreOf(10, 0), scoreOf(10, 0)};
    EXPECT_THAT(finalPlaces(scores, TieRule::Nearest, 150), ElementsAre(shared(1, 2, 0), shared(1, 2, 1)));
}

TEST(Payouts, GoToThePlaces)
{
    const std::vector<FinalPlace> places{at(1, 1), at(2, 2), at(3, 0)};
    EXPECT_THAT(payouts(places, std::vector{Money{50}, Money{20}}), ElementsAre(Money{50}, Money{20}, Money{}));
    EXPECT_THAT(payouts(places, {}), ElementsAre(Money{}, Money{}, Money{}));
}

TEST(Payouts, AreSharedByWhoSharesThePlaces)
{
    // Places 2 to 4 are shared by three: they share 0.20, 0.11 and nothing, 31 cents: 11, 10 and 10.
    const std::vector<FinalPlace> places{at(1, 9), shared(2, 3, 7), shared(2, 3, 3), shared(2, 3, 8), at(5, 1)};
    EXPECT_THAT(payouts(places, std::vector{Money{50}, Money{20}, Money{11}}),
                ElementsAre(Money{50}, Money{11}, Money{10}, Money{10}, Money{}));
    // 32 cents leave two odd ones, for the first two in the list.
    EXPECT_THAT(payouts(places, std::vector{Money{50}, Money{20}, Money{12}}),
                ElementsAre(Money{50}, Money{11}, Money{11}, Money{10}, Money{}));
}

} // namespace
} // namespace tallyhoop::test
