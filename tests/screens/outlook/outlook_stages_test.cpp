// tests/screens/outlook/outlook_stages_test.cpp - a forecast first, counted figures later: what is shown and compared.
#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "pool/outlook/duel_pool.h"
#include "screens/outlook/outlook_screen.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct OutlookStagesTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    FakeBackground* background = nullptr;
    std::unique_ptr<OutlookScreen> screen;

    void open(Pool pool = duelPool())
    {
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        screen = std::make_unique<OutlookScreen>(folder, OpenedPool{.pool = std::move(pool)}, platform.services,
                                                 screens, std::move(fake));
        screen->load();
        screen->showState();
    }

    void doSlice()
    {
        background->doSlice();
        screen->showState();
    }

    /// Up to the chances; once there is a road, they should long be there.
    void countAll()
    {
        while (screen->lblOutcomes.text.find("counted") == std::string::npos && screen->roadPicture().points.empty())
            doSlice();
    }

    void press(Position position)
    {
        screen->pressPosition(position);
        screen->showState();
    }

    std::string cell(const std::string& player, OutlookColumn column) const
    {
        for (const auto& row : screen->grdPlayers.rows)
            if (row.at(static_cast<std::size_t>(OutlookColumn::Player)) == player)
                return row.at(static_cast<std::size_t>(column));
        return "nobody";
    }
};

TEST_F(OutlookStagesTest, ShowsAForecastUntilEveryOutcomeIsCounted)
{
    open();
    EXPECT_EQ(screen->lblOutcomes.text, "Working: 0 %.");
    doSlice();
    // The root of 1/2 * 1/2 / 499 is 0.02238; the first of twenty slices of the first of four parts is done.
    EXPECT_EQ(screen->lblOutcomes.text,
              "All alike: forecast from 500 samples, seed 2000; standard error at most 2.24. Working: 1 %.");
    EXPECT_THAT(cell("X, Ann", OutlookColumn::Share), EndsWith(" % \xB1"
                                                               "2.24"));
    EXPECT_EQ(screen->lblSwing[screen->grdPlayers.rows.at(0).at(1) == "X, Ann" ? kUpperOfDuel : kLowerOfDuel].text,
              "+100.0")
        << "for the leader, who is chosen";
    countAll();
    EXPECT_EQ(screen->lblOutcomes.text, "All alike: 65536 outcomes left, every one counted. "
                                        "The verdicts and places are being worked out.");
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Share), "50.0 %");
    EXPECT_EQ(cell("X, Bob", OutlookColumn::Share), "50.0 %");
}

TEST_F(OutlookStagesTest, SaysThatOnlyTheRoadIsMissing)
{
    open();
    countAll();
    while (screen->lblOutcomes.text.find("verdicts") != std::string::npos)
        doSlice();
    EXPECT_EQ(screen->lblOutcomes.text,
              "All alike: 65536 outcomes left, every one counted. The road is being worked out.");
    EXPECT_TRUE(screen->cmdStop.enabled);
    screen->cmdStop.click();
    doSlice();
    EXPECT_EQ(screen->lblOutcomes.text, "All alike: 65536 outcomes left, every one counted.");
    EXPECT_FALSE(screen->cmdStop.enabled);
}

TEST_F(OutlookStagesTest, SaysNothingMoreOnceTheRoadIsKnown)
{
    Pool nobody = duelPool();
    nobody.entries.clear(); // then there is not much to do
    open(nobody);
    background->doAll();
    screen->showState();
    EXPECT_EQ(screen->lblOutcomes.text, "All alike: 65536 outcomes left, every one counted.");
}

TEST_F(OutlookStagesTest, ShowsWhatIsCountedAtOnceWhenASuppositionIsTakenBack)
{
    open();
    countAll();
    const std::string counted = screen->lblOutcomes.text;
    press(kUpperOfDuel);
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Share), "100.0 %");
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Change), "+50.0") << "from 50 % to 100 %";
    screen->cmdUndo.click();
    screen->showState();
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Share), "50.0 %");
    EXPECT_EQ(screen->lblOutcomes.text, counted);
}

TEST_F(OutlookStagesTest, KeepsTheVerdictsWhenTheChancesChange)
{
    open();
    while (screen->isWorking() && cell("X, Ann", OutlookColumn::Verdict) == "Open")
        doSlice();
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Verdict), "Alive");
    countAll();
    for (const std::size_t kind : {1u, 0u}) {
        selectOption(screen->optChances, kind);
        screen->optChances[kind].changed();
        screen->showState();
        EXPECT_EQ(cell("X, Ann", OutlookColumn::Verdict), "Alive");
        EXPECT_EQ(cell("X, Bob", OutlookColumn::Verdict), "Alive");
    }
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Share), "50.0 %") << "back on All Alike";
}

TEST_F(OutlookStagesTest, ComparesWithWhatIsCountedAndNotWithALaterForecast)
{
    open();
    press(kUpperOfDuel);
    while (screen->roadPicture().points.empty()) // by the results as entered
        doSlice();
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Change), "+50.0") << "from 50 % to 100 %";
    press(kUpperOfDuel); // takes it back: now the same is forecast
    doSlice();
    ASSERT_THAT(screen->lblOutcomes.text, HasSubstr("forecast from 500 samples"));
    ASSERT_THAT(cell("X, Ann", OutlookColumn::Share), Not(StartsWith("50.0"))) << "else it makes no difference";
    press(kUpperOfDuel);
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Change), "+50.0");
    EXPECT_EQ(cell("X, Bob", OutlookColumn::Change), "-50.0");
}

TEST_F(OutlookStagesTest, ComparesWithAForecastUntilTheResultsAsEnteredAreCounted)
{
    open();
    doSlice();
    press(kUpperOfDuel);
    const std::string before = cell("X, Ann", OutlookColumn::Change);
    EXPECT_THAT(before, StartsWith("+"));
    EXPECT_NE(before, "+50.0");
    while (screen->roadPicture().points.empty())
        doSlice();
    EXPECT_EQ(cell("X, Ann", OutlookColumn::Change), "+50.0");
}

} // namespace
} // namespace tallyhoop::test
