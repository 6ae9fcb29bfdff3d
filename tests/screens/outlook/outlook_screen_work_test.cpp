// tests/screens/outlook/outlook_screen_work_test.cpp - how the outlook opens, works, stops and goes on.
#include "screens/outlook/outlook_screen_fixture.h"

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

} // namespace
} // namespace tallyhoop::test
