// tests/reports/outlook_words_test.cpp - what every output says of the chances, of what is supposed, and of a number.
#include "reports/outlook_words.h"

#include "pool/moves.h"
#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

OutlookBasis forecastOf(ChanceKind chances) { return {chances, 48, ChanceSource::Forecast, 200'000, 2000, 0.114}; }

TEST(OutlookBasisInWords, AreThoseOfTheChancesAndOfTheCount)
{
    EXPECT_THAT(basisInWords({ChanceKind::Alike, 1}),
                ElementsAre("Chances: all outcomes alike", "Counted: all 2 outcomes of 1 open game"));
    EXPECT_THAT(basisInWords({ChanceKind::BySeed, 31}),
                ElementsAre("Chances: by seed, the better seed wins more often",
                            "Counted: all 2147483648 outcomes of 31 open games"));
    EXPECT_EQ(basisInWords({ChanceKind::AsPicked, 31}).front(),
              "Chances: as this pool picked, the team with more picks wins more often");
    EXPECT_THAT(basisInWords({ChanceKind::Alike, 0}), ElementsAre("No game is open: these are the final places"));
    EXPECT_THAT(basisInWords({.isSupposed = true}), ElementsAre("No game is open: these are the places if it ends so"));
    EXPECT_THAT(basisInWords({ChanceKind::Alike, 20, ChanceSource::None}),
                ElementsAre("Chances: all outcomes alike",
                            "Nothing is counted yet of 20 open games: only what is proven is known"));
}

TEST(OutlookBasisInWords, SayThatItIsAForecastItsSeedAndItsError)
{
    EXPECT_THAT(basisInWords(forecastOf(ChanceKind::BySeed)),
                ElementsAre("Chances: by seed, the better seed wins more often",
                            "Forecast: 200000 samples of 48 open games, seed 2000",
                            "Standard error of the share: at most 0.12 percentage points"));
}

TEST(OutlookBasisInWords, CallAllOutcomesAlikeWhatTheyAre)
{
    for (const OutlookBasis& basis : {OutlookBasis{ChanceKind::Alike, 7}, forecastOf(ChanceKind::Alike)}) {
        EXPECT_EQ(basisInWords(basis).front(), "Chances: all outcomes alike");
        for (const std::string& line : basisInWords(basis))
            EXPECT_LE(line.size(), 75u);
    }
}

TEST(OutlookBasis, HasTheLargestErrorOfAForecast)
{
    OutlookFigures figures;
    figures.source = ChanceSource::Forecast;
    figures.samples = 500;
    figures.errors = {0.01, 0.03, 0.02};
    const OutlookBasis basis = basisOf(ChanceKind::AsPicked, 63, figures);
    EXPECT_EQ(basis.chances, ChanceKind::AsPicked);
    EXPECT_EQ(basis.openGames, 63u);
    EXPECT_EQ(basis.source, ChanceSource::Forecast);
    EXPECT_EQ(basis.samples, 500u);
    EXPECT_EQ(basis.seed, 2000u);
    EXPECT_DOUBLE_EQ(basis.error, 3);
}

TEST(OutlookWhatIf, SaysNothingOfTheResultsAsEntered)
{
    const Bracket entered = fourPlayersResults().picks;
    EXPECT_THAT(whatIfInWords(entered, entered), IsEmpty());
}

TEST(OutlookWhatIf, NamesTheSupposedWinners)
{
    const Bracket entered = fourPlayersResults().picks;
    const Bracket one = advanced(entered, regionWinner(kSouth));
    EXPECT_THAT(whatIfInWords(entered, one),
                ElementsAre("What if: 1 supposed winner; these are not the results as entered",
                            "Supposed: SALT LAKE (round 5)"));
    EXPECT_THAT(whatIfInWords(entered, advanced(one, kSemifinalB)),
                ElementsAre("What if: 2 supposed winners; these are not the results as entered",
                            "Supposed: SALT LAKE (round 5), SALT LAKE (round 6)"));
}

TEST(OutlookWhatIf, NamesWhatWasTakenBack)
{
    // Row 15 of the South, which is not the region's winner, has won two games.
    const Bracket entered = fourPlayersResults().picks;
    const Position roundOne = *next(firstRoundPosition(kSouth, 14));
    EXPECT_THAT(whatIfInWords(entered, cleared(entered, roundOne)),
                ElementsAre("What if: 0 supposed winners, 1 taken back; these are not the results as entered",
                            "Taken back: S15 (round 1)"));
    EXPECT_THAT(
        whatIfInWords(entered, advanced(entered, firstRoundPosition(kSouth, 15))),
        ElementsAre("What if: 1 supposed winner; these are not the results as entered", "Supposed: S16 (round 1)"))
        << "another winner than the one entered";
}

TEST(OutlookWhatIf, NamesUpToTwelveOnLinesThatFit)
{
    const Bracket results = fourPlayersResults().picks;
    Bracket entered = results;
    for (const Position winner : gamesOfRegion(kWest))
        entered.clear(winner);
    Bracket supposed = entered;
    const std::span<const Position> games = gamesOfRegion(kWest);
    for (const Position winner : games.first(12))
        supposed.put(winner, results.at(winner));

    // Round 1: CEDAR RAPIDS, W03, W05, W07, W09, W11, W13, W15; round 2: CEDAR RAPIDS, W05, W09, W13.
    EXPECT_THAT(whatIfInWords(entered, supposed),
                ElementsAre("What if: 12 supposed winners; these are not the results as entered",
                            "Supposed: CEDAR RAPIDS (round 1), W03 (round 1), W05 (round 1),",
                            "  W07 (round 1), W09 (round 1), W11 (round 1), W13 (round 1),",
                            "  W15 (round 1), CEDAR RAPIDS (round 2), W05 (round 2), W09 (round 2),",
                            "  W13 (round 2)"));
    supposed.put(games[12], results.at(games[12]));
    EXPECT_THAT(whatIfInWords(entered, supposed), SizeIs(1)) << "thirteen are only counted";
}

TEST(OutlookVerdictInWords, IsOneWord)
{
    EXPECT_EQ(verdictInWords(Prospect::Clinched), "Clinched");
    EXPECT_EQ(verdictInWords(Prospect::Alive), "Alive");
    EXPECT_EQ(verdictInWords(Prospect::Out), "Out");
    EXPECT_EQ(verdictInWords(Prospect::Open), "Open");
}

TEST(OutlookPlaceInWords, IsTwoPlacesWhereItIsNotKnown)
{
    EXPECT_EQ(placeInWords({2, 2}), "2");
    EXPECT_EQ(placeInWords({2, 5}), "2-5");
}

TEST(OutlookPercentInWords, NeverMakesNothingOrEverythingOfWhatIsNot)
{
    EXPECT_EQ(percentInWords(0), "0.0");
    EXPECT_EQ(percentInWords(0.04), "<0.1");
    EXPECT_EQ(percentInWords(0.06), "0.1");
    EXPECT_EQ(percentInWords(6.25), "6.2") << "halves to even";
    EXPECT_EQ(percentInWords(99.94), "99.9");
    EXPECT_EQ(percentInWords(99.96), ">99.9");
    EXPECT_EQ(percentInWords(100), "100.0");
    EXPECT_EQ(percentInWords(100 - 1e-13), "100.0") << "a rounded sum of all chances";
}

TEST(OutlookPercentAsNumber, HasTheDecimalsThatItTakes)
{
    EXPECT_EQ(percentAsNumber(0), "0.0");
    EXPECT_EQ(percentAsNumber(48.4), "48.4");
    EXPECT_EQ(percentAsNumber(0.04), "0.04");
    EXPECT_EQ(percentAsNumber(0.0007), "0.001") << "the first decimal that is not 0, rounded";
    EXPECT_EQ(percentAsNumber(99.96), "99.96");
    EXPECT_EQ(percentAsNumber(99.9996), "99.9996");
    EXPECT_EQ(percentAsNumber(100), "100.0");
}

TEST(OutlookErrorInWords, IsNeverLessThanItIs)
{
    EXPECT_EQ(errorInWords(0), "0.00");
    EXPECT_EQ(errorInWords(0.26), "0.26");
    EXPECT_EQ(errorInWords(0.261), "0.27");
    EXPECT_EQ(errorInWords(0.0001), "0.01") << "an error is never shown as none";
    EXPECT_EQ(errorInWords(0.29), "0.29") << "29.000000000000004 hundredths, as computers multiply";
}

TEST(OutlookErrorInWords, ComesAfterItsFigure)
{
    EXPECT_EQ(withError("34.4 %", 0.26), "34.4 % \xB1"
                                         "0.26");
    EXPECT_EQ(withError("34.4 %", 0), "34.4 %") << "exact";
}

TEST(OutlookChangeInWords, HasItsSign)
{
    EXPECT_EQ(changeInWords(4.06), "+4.1");
    EXPECT_EQ(changeInWords(-0.26), "-0.3");
    EXPECT_EQ(changeInWords(-0.04), "0.0");
}

} // namespace
} // namespace tallyhoop::test
