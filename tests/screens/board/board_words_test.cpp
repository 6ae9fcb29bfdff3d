// tests/screens/board/board_words_test.cpp - what is said of the places of a bracket, and explained there.
#include "screens/board/board_words.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

/// The default field, "TEAM1" and so on, and a bracket to be changed.
struct BoardWords : testing::Test {
    Field field = defaultField();
    Bracket bracket = startingBracket(field);
    Verdicts verdicts;

    std::string spoken(int position, const Verdicts* marks = nullptr) const
    {
        return spokenPlace({field, bracket, marks}, Position{position});
    }

    std::string explained(int position, const Verdicts* marks = nullptr) const
    {
        return explanationOf({field, bracket, marks}, Position{position});
    }
};

TEST_F(BoardWords, ARowOfTheFieldIsRegionRowSeedAndTeam)
{
    EXPECT_EQ(spoken(0), "West, first round, row 1, seed 1: TEAM1");
    EXPECT_EQ(spoken(15), "West, first round, row 16, seed 15: TEAM16");
    EXPECT_EQ(spoken(31), "Midwest, first round, row 1, seed 1: TEAM17");
    EXPECT_EQ(spoken(93 + 2), "South, first round, row 3, seed 8: TEAM51");
}

TEST_F(BoardWords, AWinnerIsRegionRoundGameAndTeam)
{
    bracket.put(Position{62 + 16 + 7}, "Duke");
    EXPECT_EQ(spoken(62 + 16 + 7), "East, winner of first round, game 8: Duke");
    EXPECT_EQ(spoken(16), "West, winner of first round, game 1: no team");
    EXPECT_EQ(spoken(27), "West, winner of second round, game 4: no team");
    EXPECT_EQ(spoken(29), "West, winner of regional semi-final, game 2: no team");
}

TEST_F(BoardWords, TheOnlyGameOfItsColumnHasNoNumber)
{
    EXPECT_EQ(spoken(123), "South, winner of regional final: no team");
    EXPECT_EQ(spoken(124), "winner of semi-final, game 1: no team");
    EXPECT_EQ(spoken(125), "winner of semi-final, game 2: no team");
    EXPECT_EQ(spoken(126), "winner of final: no team");
}

TEST_F(BoardWords, AMarkIsSaidBeforeTheTeam)
{
    bracket.put(Position{16}, "TEAM1");
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{17}] = Verdict::Bad;
    verdicts[Position{18}] = Verdict::Possible;
    verdicts[Position{126}] = Verdict::Bad;
    verdicts[Position{0}] = Verdict::Good;
    EXPECT_EQ(spoken(16, &verdicts), "West, winner of first round, game 1, = right pick: TEAM1");
    EXPECT_EQ(spoken(17, &verdicts), "West, winner of first round, game 2, X wrong pick: no team");
    EXPECT_EQ(spoken(18, &verdicts), "West, winner of first round, game 3: no team");
    EXPECT_EQ(spoken(126, &verdicts), "winner of final, X wrong pick: no team");
    EXPECT_EQ(spoken(0, &verdicts), "West, first round, row 1, seed 1: TEAM1") << "a row of the field is no pick";
}

TEST_F(BoardWords, ARegionKeepsItsTitleUnlessThatEndsInRegion)
{
    field.regionTitles = {"Region", "The North", "Regional East", " Region"};
    EXPECT_EQ(spokenSeed(field, TeamRow{0}), "Seed of Region, row 1");
    EXPECT_EQ(spokenSeed(field, TeamRow{16}), "Seed of The North, row 1");
    EXPECT_EQ(spokenSeed(field, TeamRow{32 + 5}), "Seed of Regional East, row 6");
    EXPECT_EQ(spokenSeed(field, TeamRow{63}), "Seed of , row 16");
}

TEST_F(BoardWords, ASeedIsSaidWithoutItsBlanks)
{
    field.seeds[0] = "  1 a ";
    field.seeds[1] = "   ";
    EXPECT_EQ(spoken(0), "West, first round, row 1, seed 1 a: TEAM1");
    EXPECT_EQ(spoken(1), "West, first round, row 2, seed : TEAM2");
}

TEST_F(BoardWords, AMarkerIsSaidAsItIsSeenAndWhatItMeans)
{
    EXPECT_EQ(spokenMark(Verdict::Good, MarkedNames::Picks), "= right pick");
    EXPECT_EQ(spokenMark(Verdict::Bad, MarkedNames::Picks), "X wrong pick");
    EXPECT_EQ(spokenMark(Verdict::Good, MarkedNames::Results), "= picked by the player");
    EXPECT_EQ(spokenMark(Verdict::Bad, MarkedNames::Results), "X missed by the player");
    for (const Verdict verdict : {Verdict::None, Verdict::Open, Verdict::Possible})
        for (const MarkedNames whose : {MarkedNames::Picks, MarkedNames::Results})
            EXPECT_EQ(spokenMark(verdict, whose), "");
}

TEST_F(BoardWords, PointsAreThoseOfARound)
{
    EXPECT_EQ(spokenPayoff(1), "Points for a win in the first round");
    EXPECT_EQ(spokenPayoff(2), "Points for a win in the second round");
    EXPECT_EQ(spokenPayoff(3), "Points for a win in the regional semi-final");
    EXPECT_EQ(spokenPayoff(4), "Points for a win in the regional final");
    EXPECT_EQ(spokenPayoff(5), "Points for a win in the semi-final");
    EXPECT_EQ(spokenPayoff(6), "Points for a win in the final");
}

TEST_F(BoardWords, APlaceSaysWhatCanBeDoneThere)
{
    bracket.put(Position{24}, "TEAM1");
    bracket.put(Position{126}, "TEAM1");
    EXPECT_EQ(explained(0), "Click or press Space to send TEAM1 to the next round, or drag it as far as it goes."
                            " 1 and 2 fill in the open games, one after another.");
    EXPECT_EQ(explained(24), "Click or press Space to send TEAM1 on, drag it further; right click or Delete takes it"
                             " away. 1 and 2 fill in the open games, one after another.");
    EXPECT_EQ(explained(126), "TEAM1 wins the tournament. A right click or Delete takes the team away.");
    EXPECT_EQ(explained(25), "No team picked yet: click or drag a team that can get here.");
    bracket.clear(Position{0});
    EXPECT_EQ(explained(0), "No team picked yet: click or drag a team that can get here.");
}

TEST_F(BoardWords, AnOpenGameSaysFirstWhatItsKeysPick)
{
    const std::string others = ", Backspace goes back; or click or drag a team that can get here.";
    EXPECT_EQ(explained(17), "1 picks TEAM3, 2 picks TEAM4" + others);
    bracket.put(Position{17}, "TEAM4");
    const char* const notYet = "No team picked yet: click or drag a team that can get here.";
    EXPECT_EQ(explained(24), notYet) << "only the lower of the two teams is known";
    bracket.put(Position{16}, "TEAM1");
    EXPECT_EQ(explained(24), "1 picks TEAM1, 2 picks TEAM4" + others);
    bracket.clear(Position{17});
    EXPECT_EQ(explained(24), notYet);
}

TEST_F(BoardWords, AMarkedPlaceSaysWhatItIsWorth)
{
    bracket.put(Position{16}, "TEAM1");
    bracket.put(Position{24}, "TEAM1");
    bracket.put(Position{28}, "TEAM1");
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{24}] = Verdict::Bad;
    verdicts[Position{25}] = Verdict::Bad;
    verdicts[Position{28}] = Verdict::Possible;
    verdicts[Position{30}] = Verdict::Open;
    EXPECT_EQ(explained(16, &verdicts), "A right pick: 1 point earned."); // the default payoffs: 1, 2, 4, 8, 12, 16
    EXPECT_EQ(explained(24, &verdicts), "A wrong pick: 2 points lost.");
    EXPECT_EQ(explained(25, &verdicts), "No pick: 2 points lost.");
    EXPECT_EQ(explained(28, &verdicts), "Not decided yet: worth 4 points.");
    EXPECT_EQ(explained(30, &verdicts), "Not decided yet: worth 8 points.");
    EXPECT_EQ(explained(126, &verdicts), "Not decided yet: worth 16 points.");
    EXPECT_EQ(explained(0, &verdicts), "The picks are marked; choose Default Colors to change them again.");
}

TEST_F(BoardWords, AWrongPickSaysWhoWonOrThatTheTeamIsOut)
{
    Bracket results = startingBracket(field);
    results.put(Position{16}, "TEAM2"); // TEAM1 lost its first game
    bracket.put(Position{16}, "TEAM1");
    bracket.put(Position{24}, "TEAM1");
    verdicts.values.fill(Verdict::Bad);
    verdicts[Position{17}] = Verdict::Good;
    const auto explainedWithResults = [&](int position) {
        return explanationOf({field, bracket, &verdicts, false, MarkedNames::Picks, &results}, Position{position});
    };
    EXPECT_EQ(explainedWithResults(16), "A wrong pick: TEAM2 won, 1 point lost.");
    EXPECT_EQ(explainedWithResults(24), "A wrong pick: TEAM1 is out already, 2 points lost.");
    EXPECT_EQ(explainedWithResults(17), "A right pick: 1 point earned.");
    results.put(Position{18}, "TEAM5");
    EXPECT_EQ(explainedWithResults(18), "No pick: TEAM5 won, 1 point lost.");
    EXPECT_EQ(explainedWithResults(19), "No pick: 1 point lost.");
}

TEST_F(BoardWords, MarksOfAListedPlayerAreNotSaidOfTheResults)
{
    bracket.put(Position{16}, "TEAM1"); // who won, not who was picked
    bracket.put(Position{17}, "TEAM3");
    verdicts[Position{16}] = Verdict::Bad;
    verdicts[Position{17}] = Verdict::Good;
    verdicts[Position{18}] = Verdict::Bad;
    verdicts[Position{19}] = Verdict::Possible;
    const BoardPicture listed{field, bracket, &verdicts, false, MarkedNames::Results};
    EXPECT_EQ(spokenPlace(listed, Position{16}), "West, winner of first round, game 1, X missed by the player: TEAM1");
    EXPECT_EQ(explanationOf(listed, Position{16}), "The player in the list of scores did not pick TEAM1.");
    EXPECT_EQ(explanationOf(listed, Position{17}), "The player in the list of scores picked TEAM3.");
    EXPECT_EQ(explanationOf(listed, Position{18}),
              "The player in the list of scores has no team here that can still win.");
    EXPECT_EQ(explanationOf(listed, Position{19}), "This game of the player in the list of scores is not decided yet.");
    EXPECT_EQ(explanationOf(listed, Position{0}), "The marks are those of the player chosen in the list of scores.");
}

TEST_F(BoardWords, CountTheGamesThatHaveAWinner)
{
    EXPECT_EQ(progressOf(bracket, false), "0 of 63 picked") << "the 64 teams of the first round are no picks";
    EXPECT_EQ(withoutPick(bracket), " 63 games have no pick.");
    for (const Position game : gamePositions())
        bracket.put(game, "TEAM1");
    EXPECT_EQ(progressOf(bracket, true), "63 of 63 played");
    EXPECT_EQ(withoutPick(bracket), "");
    bracket.clear(kChampion);
    EXPECT_EQ(progressOf(bracket, false), "62 of 63 picked");
    EXPECT_EQ(withoutPick(bracket), " 1 game has no pick.");
}

TEST_F(BoardWords, PointsAreSaidAsTheOrganiserTypedThem)
{
    field.payoffs = PayoffTexts{{"1 each", "none", "1.5", "8", "12", "16"}};
    verdicts[Position{16}] = verdicts[Position{24}] = verdicts[Position{28}] = Verdict::Good;
    EXPECT_EQ(explained(16, &verdicts), "A right pick: 1 each point earned.");
    EXPECT_EQ(explained(24, &verdicts), "A right pick: none points earned.");
    EXPECT_EQ(explained(28, &verdicts), "A right pick: 1.5 points earned.");
}

} // namespace
} // namespace tallyhoop::test
