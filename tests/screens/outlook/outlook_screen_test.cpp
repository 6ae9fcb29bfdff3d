// tests/screens/outlook/outlook_screen_test.cpp - what is shown of the outlook, and what a person can suppose.
#include "screens/outlook/outlook_screen_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

TEST_F(OutlookScreenTest, ShowsWhoCanStillBeFirst)
{
    open();
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Ann", "X, Bob", "X, Cleo"));
    EXPECT_THAT(column(OutlookColumn::Share), ElementsAre("50.0 %", "25.0 %", "25.0 %"));
    EXPECT_EQ(screen->lblOutcomes.text, "All alike: 2 outcomes left, every one counted. The road is being worked out.");
    EXPECT_EQ(screen->lblWhatIf.text, "The results as entered");
    EXPECT_FALSE(screen->cmdAsEntered.enabled);
    EXPECT_TRUE(screen->cmdStop.enabled) << "there is still the road";
}

TEST_F(OutlookScreenTest, CountsFewGamesBeforeItIsSeen)
{
    openBeforeAnyWork();
    EXPECT_THAT(column(OutlookColumn::Share), ElementsAre("50.0 %", "25.0 %", "25.0 %"));
}

TEST_F(OutlookScreenTest, FollowsWhatIsSupposedAndComparesIt)
{
    open();
    suppose(kSemifinalB);
    EXPECT_EQ(screen->lblWhatIf.text, "What if: nothing here is saved");
    EXPECT_EQ(screen->lblWhatIf.background, kSupposedBackground);
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Team 35");
    EXPECT_TRUE(screen->lblRegion[kChampion].background.has_value());
    EXPECT_FALSE(screen->lblRegion[kSemifinalB].background.has_value());
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Bob", "X, Cleo", "X, Ann"));
    EXPECT_THAT(column(OutlookColumn::Share), ElementsAre("50.0 %", "50.0 %", "0.0 %"));
    EXPECT_THAT(column(OutlookColumn::Change), ElementsAre("+25.0", "+25.0", "-50.0"));
    EXPECT_THAT(column(OutlookColumn::Verdict), ElementsAre("Clinched", "Clinched", "Out"));
    EXPECT_THAT(column(OutlookColumn::Points), ElementsAre("168", "168", "152"));
    EXPECT_EQ(screen->lblOutcomes.text,
              "No game is open: these are the places if it ends so. The road is being worked out.");
}

TEST_F(OutlookScreenTest, PutsTheResultsBack)
{
    open();
    suppose(kSemifinalB);
    screen->cmdAsEntered.click();
    EXPECT_EQ(screen->lblRegion[kChampion].text, "");
    EXPECT_THAT(column(OutlookColumn::Change), ElementsAre("", "", ""));
    screen->cmdUndo.click();
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Team 35");
    screen->takeBackPosition(kChampion);
    screen->showState();
    EXPECT_FALSE(screen->cmdAsEntered.enabled);
}

TEST_F(OutlookScreenTest, SaysWhomToRootFor)
{
    open();
    choose("X, Ann");
    EXPECT_EQ(screen->lblSwing[kSemifinalA].text, "+100.0");
    EXPECT_EQ(screen->lblSwing[kSemifinalB].text, "-100.0");
    EXPECT_EQ(screen->lblSwing[kSemifinalB].spokenName, "-100.0 percentage points if it wins");
    EXPECT_THAT(screen->grdGames.rows, ElementsAre(ElementsAre("Team 1 - Team 35", "Team 1", "200.0", "next")));
    EXPECT_EQ(screen->lblPlayer.text, "Ann: Alive");
    EXPECT_EQ(screen->lblProof.text, "First in 1 of 2 outcomes, alone or together with others.");
    choose("X, Bob", OutlookColumn::Verdict);
    EXPECT_EQ(screen->lblSwing[kSemifinalA].text, "-50.0");
    EXPECT_EQ(screen->grdGames.rows.at(0).at(1), "Team 35");
    EXPECT_EQ(screen->news().text, "Alive: first in at least one outcome that is left.");
}

TEST_F(OutlookScreenTest, ShowsAWayToWin)
{
    open();
    choose("X, Cleo");
    screen->cmdShowWay.click();
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Team 35");
    EXPECT_EQ(screen->news().text, "This is one way in which Cleo is first.");
    choose("X, Ann");
    EXPECT_FALSE(screen->cmdShowWay.enabled);
    EXPECT_EQ(screen->lblProof.text, "Every game has a winner, entered or supposed.");
}

TEST_F(OutlookScreenTest, SaysWhenAllIsPlayed)
{
    pool.results->picks.copy(kSemifinalA, kChampion);
    open();
    EXPECT_THAT(screen->lblOutcomes.text, StartsWith("No game is open: these are the final places."));
    EXPECT_EQ(screen->lblPlayer.text, "Ann: Clinched");
    EXPECT_EQ(screen->lblProof.text, "All games are played.");
}

TEST_F(OutlookScreenTest, TakesOtherChances)
{
    open();
    selectOption(screen->optChances, 1);
    screen->optChances[1].changed();
    workItOut();
    EXPECT_THAT(column(OutlookColumn::Share), ElementsAre("75.0 %", "12.5 %", "12.5 %"));
    EXPECT_EQ(screen->lblOutcomes.text, "By seed: 2 outcomes left, every one counted. The road is being worked out.");
    EXPECT_THAT(screen->news().text, HasSubstr("b / (a + b)"));
}

TEST_F(OutlookScreenTest, SortsByAHeadingAndTurnsTheOrderRound)
{
    open();
    pressHeading(OutlookColumn::Player);
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Ann", "X, Bob", "X, Cleo"));
    EXPECT_THAT(screen->news().text, StartsWith("Player: "));
    pressHeading(OutlookColumn::Player);
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Cleo", "X, Bob", "X, Ann"));
    screen->grdPlayers.columnPressed(1);
    screen->grdPlayers.columnReleased(2);
    screen->showState();
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Cleo", "X, Bob", "X, Ann")) << "columns stay";
}

TEST_F(OutlookScreenTest, IsPlayedWithByKeysAlone)
{
    open();
    ui::Label& semifinal = screen->lblRegion[kSemifinalA];
    EXPECT_TRUE(screen->keyPressed(semifinal, {.key = ui::Key::Character, .character = ' '}));
    workItOut();
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Team 1");
    EXPECT_TRUE(screen->keyPressed(screen->lblRegion[kChampion], {.key = ui::Key::Delete}));
    workItOut();
    EXPECT_EQ(screen->lblRegion[kChampion].text, "");
    EXPECT_TRUE(screen->keyPressed(screen->lblRegion[Position{0}], {.key = ui::Key::Down}));
    EXPECT_EQ(screen->focused, &screen->lblRegion[Position{1}]);
    screen->gotFocus(*screen->focused);
    EXPECT_TRUE(screen->lblRegion[Position{1}].tabStop);
    EXPECT_FALSE(screen->lblRegion[Position{0}].tabStop);
    screen->grdPlayers.current = ui::GridCell{0, static_cast<std::size_t>(OutlookColumn::Worst)};
    EXPECT_TRUE(screen->keyPressed(screen->grdPlayers, {.key = ui::Key::Enter, .control = true}));
    screen->showState();
    EXPECT_THAT(column(OutlookColumn::Worst), ElementsAre("2", "2", "3"));
}

TEST_F(OutlookScreenTest, SaysThatThereIsNoOutlookWithoutPayoffs)
{
    pool.field.payoffs = PayoffTexts{{"99999", "", "", "", "", ""}};
    openBeforeAnyWork();
    EXPECT_THAT(screen->grdPlayers.rows, IsEmpty());
    EXPECT_EQ(screen->grdPlayers.emptyNote, pool.field.payoffs.points().failure().message);
    for (const ui::Command* const output : {&screen->cmdSaveReport, &screen->cmdSavePdf, &screen->cmdSaveCsv,
                                            &screen->cmdPrint, &screen->cmdPreview, &screen->cmdCopy})
        EXPECT_FALSE(output->enabled) << output->name;
    EXPECT_EQ(screen->lblOutcomes.text, pool.field.payoffs.points().failure().message);
}

TEST_F(OutlookScreenTest, NamesTheTimesAndThePlayersOfTheRoad)
{
    open();
    RoadPicture road = screen->roadPicture();
    EXPECT_THAT(road.times, ElementsAre("Start", "Round 1", "Round 2", "Round 3", "Round 4", "Now"))
        << "the semifinals are the fifth round, and it is now";
    EXPECT_THAT(road.names, ElementsAre("X, Ann", "X, Bob", "X, Cleo"));
    EXPECT_EQ(road.chances, "all outcomes alike");
    EXPECT_EQ(road.chosen, 0u) << "who leads is chosen until somebody else is";
    suppose(kSemifinalB);
    choose("X, Bob");
    road = screen->roadPicture();
    EXPECT_EQ(road.times.back(), "Now") << "what is supposed has not happened";
    EXPECT_THAT(road.times, SizeIs(6));
    EXPECT_THAT(road.names, ElementsAre("X, Ann", "X, Bob", "X, Cleo")) << "in the order of the pool, not of the table";
    EXPECT_EQ(road.chosen, 1u);
}

TEST_F(OutlookScreenTest, LeavesToTheBoard)
{
    open();
    screen->cmdExit.click();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Outlook));
    EXPECT_EQ(screen->helpTopic(), "outlook");
}

} // namespace
} // namespace tallyhoop::test
