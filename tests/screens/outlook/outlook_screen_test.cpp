// tests/screens/outlook/outlook_screen_test.cpp - what is shown of the outlook, and what a person can suppose.
#include "screens/outlook/outlook_screen.h"

#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/outlook/final_pool.h"

#include <gmock/gmock.h>
#include <new>
#include <stdexcept>

namespace tallyhoop::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

struct OutlookScreenTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    OpenedPool opened{.pool = finalPool()};
    Pool& pool = opened.pool;
    FakeBackground* background = nullptr;
    std::unique_ptr<OutlookScreen> screen;

    void openBeforeAnyWork()
    {
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        screen = std::make_unique<OutlookScreen>(folder, opened, platform.services, screens, std::move(fake));
        screen->load();
        screen->showState();
    }

    void open()
    {
        openBeforeAnyWork();
        workItOut();
    }

    /// Does as much as it takes to know all about one open game, and little of the road.
    void workItOut()
    {
        for (int slice = 0; slice < 30; ++slice)
            background->doSlice();
        screen->showState();
    }

    std::vector<std::string> column(OutlookColumn column) const
    {
        std::vector<std::string> cells;
        for (const auto& row : screen->grdPlayers.rows)
            cells.push_back(row.at(static_cast<std::size_t>(column)));
        return cells;
    }

    void choose(const std::string& name, OutlookColumn pressed = OutlookColumn::Player)
    {
        const std::vector<std::string> names = column(OutlookColumn::Player);
        const auto row = static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
        screen->grdPlayers.cellPressed(row, static_cast<std::size_t>(pressed));
        screen->showState();
    }

    void suppose(Position position)
    {
        screen->pressPosition(position);
        workItOut();
    }

    void pressHeading(OutlookColumn heading)
    {
        screen->grdPlayers.columnPressed(static_cast<std::size_t>(heading));
        screen->grdPlayers.columnReleased(static_cast<std::size_t>(heading));
        screen->showState();
    }
};

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

TEST_F(OutlookScreenTest, StopsWhenItIsAskedTo)
{
    pool.results->picks = startingField();
    openBeforeAnyWork();
    EXPECT_EQ(screen->lblOutcomes.text, "Working: 0 %.");
    background->doSlice(); // what is certain
    screen->showState();
    background->doSlice();
    screen->showState();
    EXPECT_THAT(screen->lblOutcomes.text,
                StartsWith("All alike: forecast from 500 samples, seed 2000; standard error at most "));
    EXPECT_TRUE(screen->cmdStop.enabled);
    screen->cmdStop.click();
    screen->showState();
    EXPECT_THAT(screen->lblOutcomes.text, HasSubstr("Stopped. All alike: forecast from 500 samples"));
    EXPECT_FALSE(screen->cmdStop.enabled);
    EXPECT_EQ(screen->news().text, "Stopped: what is known by now stays.");
    EXPECT_FALSE(background->doSlice()) << "the one that was running";
    screen->showState();
    EXPECT_FALSE(screen->isWorking());
    EXPECT_THAT(screen->lblOutcomes.text, HasSubstr("Stopped. All alike: forecast from 1000 samples"));
    EXPECT_THAT(column(OutlookColumn::Share), Each(HasSubstr("%")));
}

TEST_F(OutlookScreenTest, GoesOnAfterAStopWhenSomethingIsSupposed)
{
    pool.results->picks = startingField();
    openBeforeAnyWork();
    screen->cmdStop.click();
    background->doSlice();
    screen->showState();
    screen->pressPosition(Position{0});
    screen->showState();
    EXPECT_TRUE(screen->cmdStop.enabled);
    EXPECT_EQ(screen->lblOutcomes.text, "Working: 0 %.");
    EXPECT_TRUE(background->doSlice());
}

TEST_F(OutlookScreenTest, SaysThatItHasStoppedWhereNothingWorks)
{
    pool.results->picks = startingField();
    auto fake = std::make_unique<FakeBackground>();
    fake->isThere = false;
    screen = std::make_unique<OutlookScreen>(folder, opened, platform.services, screens, std::move(fake));
    screen->load();
    screen->showState();
    EXPECT_EQ(screen->lblOutcomes.text, "Stopped. Nothing is counted yet: only what is proven is known.");
    EXPECT_FALSE(screen->cmdStop.enabled);
}

TEST_F(OutlookScreenTest, SaysWhyItHasStoppedAndKeepsWhatIsKnown)
{
    pool.results->picks = startingField();
    openBeforeAnyWork();
    background->doSlice(); // what is certain
    screen->showState();
    background->doSlice(); // 500 samples
    screen->showState();
    const std::vector<std::string> shares = column(OutlookColumn::Share);
    background->fail(std::make_exception_ptr(std::bad_alloc{}));
    screen->showState();
    EXPECT_THAT(screen->lblOutcomes.text,
                StartsWith("Stopped: there is not enough memory. All alike: forecast from 500 samples"));
    EXPECT_EQ(column(OutlookColumn::Share), shares);
    EXPECT_FALSE(screen->isWorking());
    EXPECT_FALSE(screen->cmdStop.enabled);
    screen->pressPosition(Position{0});
    screen->showState();
    EXPECT_EQ(screen->lblOutcomes.text, "Working: 0 %.") << "it begins anew";
}

TEST_F(OutlookScreenTest, TellsTheReasonOfAnyOtherTrouble)
{
    openBeforeAnyWork();
    background->fail(std::make_exception_ptr(std::runtime_error{"this went wrong"}));
    screen->showState();
    EXPECT_EQ(screen->lblOutcomes.text, "Stopped: this went wrong. All alike: 2 outcomes left, every one counted.");
    openBeforeAnyWork();
    background->fail(std::make_exception_ptr(1));
    screen->showState();
    EXPECT_THAT(screen->lblOutcomes.text, StartsWith("Stopped: no reason is known. "));
}

TEST_F(OutlookScreenTest, ComparesWithTheResultsAsEnteredByChancesThatAreChosenLater)
{
    open();
    suppose(kSemifinalB);
    selectOption(screen->optChances, 1);
    screen->optChances[1].changed();
    workItOut();
    // By seed 75 %, 12.5 % and 12.5 % as entered; 0 %, 50 % and 50 % with this champion.
    EXPECT_THAT(column(OutlookColumn::Player), ElementsAre("X, Bob", "X, Cleo", "X, Ann"));
    EXPECT_THAT(column(OutlookColumn::Change), ElementsAre("+37.5", "+37.5", "-75.0"));
}

TEST_F(OutlookScreenTest, ShowsAsMuchOfTheRoadAsIsKnown)
{
    openBeforeAnyWork();
    EXPECT_THAT(screen->roadPicture().points, IsEmpty());
    workItOut();
    RoadPicture road = screen->roadPicture();
    ASSERT_THAT(road.points, SizeIs(testing::Ge(2u)));
    EXPECT_DOUBLE_EQ(road.points.back().chances.at(0).share, 0.5);
    EXPECT_TRUE(road.points.back().isNow);
    EXPECT_EQ(road.points[road.points.size() - 2].round, 4);
    selectOption(screen->optChances, 1);
    screen->optChances[1].changed();
    screen->showState();
    EXPECT_THAT(screen->roadPicture().points, IsEmpty()) << "by other chances";
    EXPECT_THAT(screen->roadPicture().chances, StartsWith("by seed, "));
    selectOption(screen->optChances, 0);
    screen->optChances[0].changed();
    screen->showState();
    EXPECT_THAT(screen->roadPicture().points, SizeIs(road.points.size())) << "it is not lost";
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
    for (const ui::Command* const output :
         {&screen->cmdSaveReport, &screen->cmdSavePdf, &screen->cmdPrint, &screen->cmdPreview, &screen->cmdCopy})
        EXPECT_FALSE(output->enabled) << output->name;
    EXPECT_EQ(screen->lblOutcomes.text, pool.field.payoffs.points().failure().message);
}

TEST_F(OutlookScreenTest, SaysHowManyPlayersAreMissing)
{
    pool.trouble.push_back(Failure{"Smith_JS.THC cannot be read"});
    opened.missing = 1;
    open();
    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Smith_JS.THC"));
    EXPECT_EQ(screen->lblOutcomes.text, "All alike: 2 outcomes left, every one counted. The road is being worked out. "
                                        "1 player is missing: the selection cannot be read.");
}

TEST_F(OutlookScreenTest, SaysThatItUsesTheSavedResultsWhileTheBoardHoldsOthers)
{
    opened.unsavedResults = true;
    open();
    EXPECT_EQ(screen->lblWhatIf.text, "The results as saved");
    EXPECT_EQ(screen->status, "The outlook uses the saved results; those on the board are not saved");
    suppose(kSemifinalB);
    EXPECT_EQ(screen->lblWhatIf.text, "What if: nothing here is saved");
    EXPECT_THAT(screen->status, HasSubstr("the saved results"));
}

TEST_F(OutlookScreenTest, SaysAsLongAsItIsOpenThatTheResultsAreDamaged)
{
    opened.areResultsDamaged = true;
    opened.unsavedResults = true;
    open();
    EXPECT_EQ(screen->lblWhatIf.text, "The results that can be read");
    EXPECT_THAT(screen->lblOutcomes.text, HasSubstr(" The results file is damaged: some winners may be missing."));
    suppose(kSemifinalB);
    EXPECT_EQ(screen->lblWhatIf.text, "What if: nothing here is saved");
    EXPECT_THAT(screen->lblOutcomes.text, HasSubstr("The results file is damaged: some winners may be missing."));
}

TEST_F(OutlookScreenTest, IsLeftAgainWhenThePersonCancelsTheReading)
{
    opened.isCancelled = true;
    pool.trouble.push_back(Failure{"Smith_JS.THC cannot be read"});
    openBeforeAnyWork();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Outlook));
    EXPECT_THAT(screens.loads, ElementsAre(ScreenKind::Board));
    EXPECT_THAT(screens.news, ElementsAre("The outlook was cancelled: not every selection was read."));
    EXPECT_THAT(platform.dialogs.shown, IsEmpty());
    EXPECT_EQ(background->begun, 0);
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
