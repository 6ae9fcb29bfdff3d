// tests/screens/board/bracket_panel_test.cpp - the controls of the bracket show a picture, and nothing is left over.
#include "screens/board/bracket_panel.h"

#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct PanelScreen : ui::Screen, BracketPanel {
    PanelScreen() : Screen{"screen", ""}, BracketPanel{this} {}
};

struct BracketPanelTest : testing::Test {
    Field field = defaultField();
    Bracket bracket = startingBracket(field);
    Verdicts verdicts;
    PanelScreen panel;

    void show(const Verdicts* marks = nullptr) { panel.showBracket({field, bracket, marks}, false); }
};

TEST_F(BracketPanelTest, ShowsTitlesPointsAndSeeds)
{
    field.title = "Our pool";
    field.regionTitles = {"North", "East", "South", "West"};
    field.payoffs = PayoffTexts{{"1", "2", "3", "5", "8", "13"}};
    show();
    EXPECT_EQ(panel.lblTitle.text, "Our pool");
    EXPECT_EQ(panel.lblRegionTitle[0].text, "North");
    EXPECT_EQ(panel.lblRegionTitle[3].text, "West");
    const std::array<const char*, 6> points = {"1", "2", "3", "5", "8", "13"};
    for (std::size_t round = 0; round < 6; ++round)
        EXPECT_EQ(panel.lblInfo[round].text, points.at(round));
    for (std::size_t round = 0; round < 4; ++round)
        EXPECT_EQ(panel.lblInfoRight[round].text, points.at(round));
    for (const std::size_t row : {2, 18, 34, 50}) {
        EXPECT_EQ(panel.txtSeed[row].text, " 8");
        EXPECT_TRUE(panel.txtSeed[row].locked);
        EXPECT_FALSE(panel.txtSeed[row].tabStop);
    }
    EXPECT_EQ(panel.txtSeed[50].spokenName, "Seed of West, row 3");
}

TEST_F(BracketPanelTest, NamesRoundsAndTheirPoints)
{
    const std::array<const char*, 10> names = {
        "1st round:", "2nd round:",     "Regional semi:",  "Regional final:", "1st round:",
        "2nd round:", "Regional semi:", "Regional final:", "Semi-final:",     "Final game:"};
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(panel.lblRoundName[i].text, names.at(i));
    EXPECT_EQ(panel.lblInfo[0].explanation, "Points for a win in the first round.");
    EXPECT_EQ(panel.lblInfo[3].explanation, "Points for a win in the regional final.");
    EXPECT_EQ(panel.lblInfoRight[3].explanation, "Points for a win in the regional final.");
    EXPECT_EQ(panel.lblInfo[4].explanation, "Points for a win in the semi-final.");
    EXPECT_EQ(panel.lblInfo[5].explanation, "Points for a win in the final.");
    EXPECT_EQ(panel.lblChampion.text, "CHAMPION");
    EXPECT_EQ(panel.lblDemoMode.text, "Demonstration Mode");
}

TEST_F(BracketPanelTest, KnowsThePointsUnderEachCaption)
{
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(&panel.pointsLabel(i), &panel.lblInfo[i]);
        EXPECT_EQ(&panel.pointsLabel(4 + i), &panel.lblInfoRight[i]);
    }
    EXPECT_EQ(&panel.pointsLabel(8), &panel.lblInfo[4]);
    EXPECT_EQ(&panel.pointsLabel(9), &panel.lblInfo[5]);
}

TEST_F(BracketPanelTest, ShowsATeamOnEachPlaceAndTakesItAwayAgain)
{
    bracket.put(Position{16}, "TEAM2");
    show();
    EXPECT_EQ(panel.lblRegion[0].text, "TEAM1");
    EXPECT_EQ(panel.lblRegion[108].text, "TEAM64");
    EXPECT_EQ(panel.lblRegion[16].text, "TEAM2");
    EXPECT_EQ(panel.lblRegion[16].spokenName, "West, winner of first round, game 1: TEAM2");
    bracket.clear(Position{16});
    show();
    EXPECT_EQ(panel.lblRegion[16].text, "");
    EXPECT_EQ(panel.lblRegion[16].explanation,
              "1 picks TEAM1, 2 picks TEAM2, Backspace goes back; or click or drag a team that can get here.");
    EXPECT_EQ(panel.lblRegion[24].explanation, "No team picked yet: click or drag a team that can get here.");
}

TEST_F(BracketPanelTest, MarksPicksAndTakesTheMarksAwayAgain)
{
    verdicts.values.fill(Verdict::Bad);
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{17}] = Verdict::Possible;
    show(&verdicts);
    EXPECT_EQ(panel.lblRegion[16].colour, (ui::Colour{0, 255, 0}));
    EXPECT_EQ(panel.lblRegion[16].background, (ui::Colour{6, 41, 15}));
    EXPECT_EQ(panel.lblResult[0].text, "=");
    EXPECT_EQ(panel.lblResult[0].colour, (ui::Colour{0, 255, 0}));
    EXPECT_EQ(panel.lblResult[0].background, (ui::Colour{6, 41, 15}));
    EXPECT_EQ(panel.lblResult[0].spokenName, "= right pick");
    EXPECT_EQ(panel.lblResult[0].explanation, "A right pick: 1 point earned.");
    EXPECT_EQ(panel.lblResult[1].text, "");
    EXPECT_EQ(panel.lblResult[62].text, "X");
    EXPECT_EQ(panel.lblRegion[0].colour, (ui::Colour{0, 0, 255})) << "a row of the field is no pick";
    show();
    for (const Position position : allPositions())
        EXPECT_EQ(panel.lblRegion[position].colour, (ui::Colour{0, 0, 255}));
    for (const Position position : gamePositions()) {
        EXPECT_EQ(panel.lblResult[*gameOf(position)].text, "");
        EXPECT_EQ(panel.lblResult[*gameOf(position)].background, (ui::Colour{252, 252, 255}));
    }
}

TEST_F(BracketPanelTest, SaysThatDemoModeIsOn)
{
    show();
    EXPECT_FALSE(panel.lblDemoMode.visible);
    panel.showBracket({field, bracket, nullptr, true}, false);
    EXPECT_TRUE(panel.lblDemoMode.visible);
}

TEST_F(BracketPanelTest, IsDisabledWhileTheListOfScoresIsOpenAndSaysWhy)
{
    panel.showBracket({field, bracket}, true);
    for (const ui::Control* control : panel.controls())
        EXPECT_FALSE(control->enabled) << control->name;
    for (const Position position : allPositions())
        EXPECT_EQ(panel.lblRegion[position].explanation, "The list of scores is open; close it to change the bracket.");
    panel.showBracket({field, bracket, &verdicts, false, MarkedNames::Results}, true);
    EXPECT_EQ(panel.lblRegion[0].explanation, "The marks are those of the player chosen in the list of scores.");
    show();
    for (const ui::Control* control : panel.controls())
        EXPECT_TRUE(control->enabled) << control->name;
}

TEST_F(BracketPanelTest, IsOneStopOfTheTabOrder)
{
    const auto stops = [this] {
        std::vector<int> found;
        for (const Position position : allPositions())
            if (panel.lblRegion[position].tabStop)
                found.push_back(index(position));
        return found;
    };
    EXPECT_EQ(stops(), std::vector{0});
    panel.makeTabStop(Position{126});
    show();
    EXPECT_EQ(stops(), std::vector{126});
}

TEST_F(BracketPanelTest, KnowsThePositionOfATeamsLabelOnly)
{
    EXPECT_EQ(panel.positionOfLabel(panel.lblRegion[126]), Position{126});
    EXPECT_EQ(panel.positionOfLabel(panel.lblRegion[0]), Position{0});
    EXPECT_EQ(panel.positionOfLabel(panel.lblResult[0]), std::nullopt);
    EXPECT_EQ(panel.positionOfLabel(panel.txtSeed[0]), std::nullopt);
}

} // namespace
} // namespace tallyhoop::test
