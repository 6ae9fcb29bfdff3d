// tests/screens/outlook/outlook_tables_test.cpp - who is chosen, how the tables are marked and sorted, and where a
// press on a game goes.
#include "screens/outlook/outlook_screen.h"

#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "pool/outlook/final_pool.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Before the semi-finals: "Team 1" meets "Team 17", and "Team 35" meets "Team 49". Everybody has picked "Team 1" and
/// "Team 35" to win them; Ann "Team 1" as the champion, Bob and Cleo "Team 35". Of the 8 outcomes Ann is first alone in
/// the 2 with her champion, Bob and Cleo together in 2, and all three in 4: she has (2 + 4/3) / 8 = 41.7 % of first
/// place, the others (2/2 + 4/3) / 8 = 29.2 % each.
struct OutlookTablesTest : testing::Test {
    OutlookTablesTest()
    {
        for (const Position position : finalGames())
            opened.pool.results->picks.clear(position);
        open();
    }

    /// Once more with another pool.
    void open()
    {
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        screen = std::make_unique<OutlookScreen>(folder, opened, platform.services, screens, std::move(fake));
        screen->load();
        screen->showState();
    }

    void workItOut()
    {
        for (int slice = 0; slice < 30; ++slice)
            background->doSlice();
        screen->showState();
    }

    /// Takes 500 samples.
    void forecast(const Bracket& results)
    {
        opened.pool.results->picks = results;
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        screen = std::make_unique<OutlookScreen>(folder, opened, platform.services, screens, std::move(fake));
        screen->load();
        background->doSlice(); // what is certain
        screen->showState();
        background->doSlice();
        screen->showState();
    }

    void pressHeading(OutlookColumn heading)
    {
        screen->grdPlayers.columnPressed(static_cast<std::size_t>(heading));
        screen->grdPlayers.columnReleased(static_cast<std::size_t>(heading));
        screen->showState();
    }

    /// As Qt tells it when an arrow key goes to another row.
    void reach(ui::Grid& grid, std::size_t row)
    {
        grid.current = ui::GridCell{row, 0};
        grid.rowReached(row);
        screen->showState();
    }

    void suppose(Position position)
    {
        screen->pressPosition(position);
        workItOut();
    }

    std::string nameInRow(std::size_t row) const { return screen->grdPlayers.rows.at(row).at(1); }
    std::string nameInCurrentRow() const { return nameInRow(screen->grdPlayers.current.value().row); }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    OpenedPool opened{.pool = finalPool()};
    FakeBackground* background = nullptr;
    std::unique_ptr<OutlookScreen> screen;
};

TEST_F(OutlookTablesTest, WhoLeadsIsChosenUntilThePersonDoesSomething)
{
    workItOut();
    EXPECT_EQ(nameInCurrentRow(), "X, Ann");
    EXPECT_THAT(screen->lblPlayer.text, HasSubstr("Ann"));
    EXPECT_EQ(screen->lblRoad.text, "The road of Ann");
    suppose(regionWinner(1));
    EXPECT_EQ(nameInRow(0), "X, Bob") << "Ann cannot win any more";
    EXPECT_EQ(nameInCurrentRow(), "X, Ann") << "who is chosen stays chosen";
}

TEST_F(OutlookTablesTest, TheChosenRowIsThePlayersWhereverItGoes)
{
    workItOut();
    reach(screen->grdPlayers, 2);
    EXPECT_EQ(nameInCurrentRow(), "X, Cleo");
    EXPECT_THAT(screen->lblPlayer.text, HasSubstr("Cleo"));
    pressHeading(OutlookColumn::Player);
    pressHeading(OutlookColumn::Player);
    EXPECT_EQ(screen->grdPlayers.current, (ui::GridCell{0, 0})) << "from Z to A";
    EXPECT_EQ(nameInCurrentRow(), "X, Cleo");
    pressHeading(OutlookColumn::Share);
    suppose(regionWinner(1));
    EXPECT_EQ(nameInCurrentRow(), "X, Cleo");
    EXPECT_EQ(screen->grdPlayers.current->row, 1u);
}

TEST_F(OutlookTablesTest, TheSortedColumnIsMarkedWithItsDirection)
{
    workItOut();
    const auto sortedBy = [](OutlookColumn column, bool ascending) {
        return ui::GridSort{static_cast<std::size_t>(column), ascending};
    };
    EXPECT_EQ(screen->grdPlayers.sorted, sortedBy(OutlookColumn::Share, false));
    pressHeading(OutlookColumn::Share);
    EXPECT_EQ(screen->grdPlayers.sorted, sortedBy(OutlookColumn::Share, true));
    EXPECT_THAT(screen->news().text, HasSubstr("Sorted by Share, from the smallest."));
    pressHeading(OutlookColumn::Player);
    EXPECT_EQ(screen->grdPlayers.sorted, sortedBy(OutlookColumn::Player, true));
    EXPECT_THAT(screen->news().text, HasSubstr("Sorted by Player, from A to Z."));
    pressHeading(OutlookColumn::Verdict);
    EXPECT_EQ(screen->grdPlayers.sorted, sortedBy(OutlookColumn::Verdict, true));
    EXPECT_THAT(screen->news().text, HasSubstr("Sorted by Verdict, from Clinched to Out."));
    pressHeading(OutlookColumn::Now);
    EXPECT_EQ(screen->grdPlayers.sorted, sortedBy(OutlookColumn::Now, true));
}

TEST_F(OutlookTablesTest, OneColumnOfEachTableTakesTheRoomThatIsLeft)
{
    const auto growing = [](const ui::Grid& grid) {
        return std::ranges::count(grid.columns, true, &ui::GridColumn::grows);
    };
    EXPECT_EQ(growing(screen->grdPlayers), 1);
    EXPECT_EQ(growing(screen->grdGames), 1);
}

TEST_F(OutlookTablesTest, WhoIsOutIsMuted)
{
    workItOut();
    EXPECT_THAT(screen->grdPlayers.muted, ElementsAre(false, false, false));
    suppose(regionWinner(2)); // "Team 35" wins its semi-final
    suppose(regionWinner(1)); // "Team 17" the other
    suppose(kSemifinalB);
    EXPECT_EQ(nameInRow(2), "X, Ann");
    EXPECT_THAT(screen->grdPlayers.muted, ElementsAre(false, false, true));
}

TEST_F(OutlookTablesTest, TheBarsAreAsLongAsTheChancesToBeFirst)
{
    workItOut();
    // First alone or together: Ann in 2 + 4 of 8 outcomes, Bob and Cleo in 2 + 4 as well.
    EXPECT_EQ(screen->grdPlayers.bars->column, static_cast<std::size_t>(OutlookColumn::First));
    EXPECT_THAT(screen->grdPlayers.bars->parts, ElementsAre(1, 1, 1));
    suppose(regionWinner(0)); // "Team 1" wins its semi-final
    // Of 4 outcomes Ann is first alone in 2 and with the others in 1; Bob and Cleo in 1 more.
    EXPECT_THAT(screen->grdPlayers.bars->parts, ElementsAre(1, testing::DoubleNear(2 / 3., 1e-9), testing::_));
}

TEST_F(OutlookTablesTest, GamesThatCanBePlayedNextComeFirst)
{
    workItOut();
    // The shares of all three differ by 33.3 + 2 * 16.7 between the two ways of the first semi-final, by
    // 16.7 + 2 * 8.3 in the second one, and by 50 + 2 * 25 in the final.
    ASSERT_EQ(screen->grdGames.rows.size(), 3u);
    EXPECT_THAT(screen->grdGames.rows[0], ElementsAre("Team 1 - Team 17", "Team 1", "66.7", "next"));
    EXPECT_THAT(screen->grdGames.rows[1], ElementsAre("Team 35 - Team 49", "Team 49", "33.3", "next"));
    EXPECT_THAT(screen->grdGames.rows[2], ElementsAre(testing::_, testing::_, "100.0", "later"));
}

TEST_F(OutlookTablesTest, AnEmptyListOfGamesSaysThatNoneIsOpen)
{
    screen->cmdHigherSeeds.click();
    workItOut();
    EXPECT_THAT(screen->grdGames.rows, IsEmpty());
    EXPECT_EQ(screen->grdGames.emptyNote, "No game is open.");
}

TEST_F(OutlookTablesTest, AnEmptyListOfGamesSaysThatNothingIsCountedYetOrAnyMore)
{
    opened.pool.results->picks = startingField();
    open();
    EXPECT_EQ(screen->grdGames.emptyNote, "Nothing is counted yet.");
    screen->cmdStop.click();
    screen->showState();
    EXPECT_EQ(screen->grdGames.emptyNote, "Stopped before anything was counted.") << "while the last slice ends";
    background->doSlice();
    screen->showState();
    EXPECT_THAT(screen->grdGames.rows, IsEmpty());
    EXPECT_EQ(screen->grdGames.emptyNote, "Stopped before anything was counted.");
}

TEST_F(OutlookTablesTest, AnEmptyListOfGamesSaysThatThereAreNoPayoffs)
{
    opened.pool.field.payoffs = PayoffTexts{{"99999", "", "", "", "", ""}};
    open();
    EXPECT_EQ(screen->grdGames.emptyNote, "There is no outlook without payoffs.");
}

TEST_F(OutlookTablesTest, AnEmptyListOfGamesSaysThatNoneMatters)
{
    for (Entry& entry : opened.pool.entries)
        entry.picks = beforeTheFinal(); // all alike, whatever comes
    opened.pool.results->picks = beforeTheFinal();
    open();
    EXPECT_THAT(screen->grdGames.rows, IsEmpty());
    EXPECT_EQ(screen->grdGames.emptyNote, "No open game makes a difference.");
}

TEST_F(OutlookTablesTest, AForecastsGamesHaveTheirErrorInTheExplanation)
{
    // Given: only the winners of the regions, and how they came there. Everybody has picked all the 44 other games
    // alike, so that each of 500 samples has what the counted semi-finals and final make.
    Bracket results = startingField();
    for (int region = 0; region < kRegions; ++region)
        results.put(regionWinner(region), beforeTheFinal().at(regionWinner(region)));
    forecast(results);

    // Ann has 7/12 of first place when Team 1 wins, else 1/4; Bob and Cleo have 5/24 and 3/8 each. There are 250
    // samples for each side: sqrt((35/144 + 3/16) / 249) = 0.0416 for Ann, and sqrt((95/576 + 15/64) / 249) = 0.0400
    // for the others. The swings are 33.3, -16.7 and -16.7, and 4.158 + sqrt(2) * 4.005 = 9.822.
    ASSERT_EQ(screen->grdGames.rows.size(), 3u) << "those that make no difference are not listed";
    EXPECT_THAT(screen->grdGames.rows[0], ElementsAre("Team 1 - Team 17", "Team 1", "66.7", "next"));
    EXPECT_THAT(screen->grdGames.explanation, testing::StartsWith("Swing: "));
    reach(screen->grdGames, 0);
    EXPECT_THAT(screen->grdGames.explanation, testing::StartsWith("Swing 66.7 \xB1"
                                                                  "9.83: a forecast"));
}

TEST_F(OutlookTablesTest, ADifferenceWithinTheErrorOfAForecastDoesNotMatter)
{
    // Given: nothing is played. Ann has a third of first place, and 1/64 of the outcomes more or less: in 500 samples
    // no game makes a difference that could be told from chance.
    forecast(startingField());
    EXPECT_THAT(screen->grdGames.rows, IsEmpty());
    EXPECT_EQ(screen->grdGames.emptyNote, "No difference is larger than the error of the forecast.");
    const ui::Label& champions = screen->lblSwing[kSemifinalA];
    EXPECT_EQ(champions.text, "0.0");
    EXPECT_EQ(champions.spokenName, "does not matter");
}

TEST_F(OutlookTablesTest, NobodyIsChosenBeforeThereAreShares)
{
    opened.pool.results->picks = startingField();
    open();
    background->doSlice(); // what is certain: nothing yet to sort by
    screen->showState();
    EXPECT_EQ(screen->grdPlayers.rows.size(), 3u);
    EXPECT_FALSE(screen->grdPlayers.current);
    EXPECT_EQ(screen->lblPlayer.text, "Nobody is chosen");
    reach(screen->grdPlayers, 2);
    workItOut();
    EXPECT_EQ(nameInCurrentRow(), "X, Cleo");
}

TEST_F(OutlookTablesTest, WhoHasNoNameHasThatOfTheFile)
{
    for (Entry& entry : opened.pool.entries)
        entry.name = entry.initials = "";
    open();
    EXPECT_EQ(nameInRow(0), "Ann_X.THC");
    EXPECT_EQ(screen->lblPlayer.text, "Ann_X.THC: Alive");
    EXPECT_EQ(screen->lblRoad.text, "The road of Ann_X.THC");
    screen->cmdShowWay.click();
    EXPECT_EQ(screen->news().text, "This is one way in which Ann_X.THC is first.");
    screen->cmdSaveReport.click();
    EXPECT_THAT(scratch.get("OUTLOOK.TXT"), HasSubstr("Bob_X.THC"));
    screen->cmdCopy.click();
    EXPECT_THAT(platform.clipboard.text, HasSubstr("\tCleo_X.THC\t"));
    screen->cmdPreview.click();
    const std::vector<ui::Drawing>& pages = platform.printer.previewedDrawings.at(0).drawings;
    EXPECT_EQ(std::ranges::count(pages.at(0).captions, "Bob_X.THC", &ui::Caption::text), 1);
}

TEST_F(OutlookTablesTest, EachPlaceSaysWhatAClickDoesThere)
{
    const auto says = [this](Position position) { return screen->lblRegion[position].explanation; };
    EXPECT_THAT(says(kSemifinalA), HasSubstr("An open game."));
    EXPECT_THAT(says(regionWinner(0)), HasSubstr("once more to take it back"));
    const Position team = positionOf(TeamRow{0});
    EXPECT_THAT(says(team), HasSubstr("This team has won. Click to suppose that the game is still open"));
    EXPECT_THAT(says(positionOf(TeamRow{1})), HasSubstr("This team has lost. Click to suppose that it wins instead"));
    suppose(regionWinner(0));
    EXPECT_EQ(says(regionWinner(0)), "Supposed to win its game. Click to take it back.");
    suppose(regionWinner(2));
    suppose(kSemifinalB);
    EXPECT_THAT(says(kChampion), HasSubstr("The champion."));
    // And so it is.
    suppose(team);
    EXPECT_EQ(screen->lblRegion[*next(team)].text, "");
    suppose(positionOf(TeamRow{1}));
    EXPECT_EQ(screen->lblRegion[*next(team)].text, "Team 2");
}

TEST_F(OutlookTablesTest, AGameOfTheListIsMarkedOnTheBoard)
{
    workItOut();
    reach(screen->grdGames, 1);
    EXPECT_TRUE(screen->isMarked(kSemifinalB));
    EXPECT_TRUE(screen->isMarked(regionWinner(2)));
    EXPECT_TRUE(screen->isMarked(regionWinner(3)));
    EXPECT_FALSE(screen->isMarked(kSemifinalA));
    EXPECT_FALSE(screen->isMarked(kChampion));
    EXPECT_EQ(screen->focused, &screen->grdPlayers) << "only a press goes there";
    suppose(regionWinner(0)); // the list gets shorter
    EXPECT_EQ(screen->grdGames.rows.at(screen->grdGames.current->row).at(0), "Team 35 - Team 49");
    suppose(regionWinner(2));
    EXPECT_FALSE(screen->isMarked(kSemifinalB)) << "it is decided";
}

TEST_F(OutlookTablesTest, APressOnAGameGoesToTheTeamToRootFor)
{
    workItOut();
    screen->grdGames.cellPressed(1, 0);
    EXPECT_EQ(screen->focused, &screen->lblRegion[regionWinner(3)]) << "Team 49: Ann is better off without Team 35";
    EXPECT_TRUE(screen->lblRegion[regionWinner(3)].tabStop);
    screen->grdGames.cellPressed(0, 0);
    EXPECT_EQ(screen->focused, &screen->lblRegion[regionWinner(0)]);
    screen->grdGames.cellPressed(2, 0);
    EXPECT_EQ(screen->focused, &screen->lblRegion[kChampion]) << "its teams are not known";
}

TEST_F(OutlookTablesTest, APressOnAnUndecidedPlaceChangesNothing)
{
    workItOut();
    suppose(kSemifinalA);
    screen->takeBackPosition(kChampion);
    screen->showState();
    EXPECT_FALSE(screen->cmdAsEntered.enabled);
    EXPECT_FALSE(screen->cmdUndo.enabled);
}

TEST_F(OutlookTablesTest, TheRoadIsAPictureAndWords)
{
    EXPECT_EQ(screen->picRoad.spokenName, "X, Ann: not known yet");
    const unsigned before = screen->picRoad.revision;
    workItOut();
    EXPECT_GT(screen->picRoad.revision, before);
    EXPECT_THAT(screen->picRoad.spokenName, HasSubstr("now 41.7 %"));
    const ui::Drawing drawing = screen->picRoad.draw(400, 200, ui::PictureColours{.accent = {1, 2, 3}});
    const auto isName = [](const ui::Caption& caption) { return caption.text == "X, Ann"; };
    const auto name = std::ranges::find_if(drawing.captions, isName);
    ASSERT_NE(name, drawing.captions.end());
    EXPECT_EQ(name->colour, (ui::Colour{1, 2, 3})) << "of who is chosen";
    const unsigned shown = screen->picRoad.revision;
    screen->showState();
    EXPECT_EQ(screen->picRoad.revision, shown) << "nothing is new";
    reach(screen->grdPlayers, 1);
    EXPECT_GT(screen->picRoad.revision, shown) << "another player";
}

TEST_F(OutlookTablesTest, TheTabKeyGoesFromTheBarToTheBoardTheTablesAndTheButtons)
{
    EXPECT_LT(screen->cmdUndo.tabIndex, screen->optChances[0].tabIndex);
    EXPECT_LT(screen->optChances[2].tabIndex, screen->lblRegion[Position{0}].tabIndex);
    EXPECT_LT(screen->lblRegion[kChampion].tabIndex, screen->grdPlayers.tabIndex);
    EXPECT_LT(screen->grdPlayers.tabIndex, screen->grdGames.tabIndex);
    EXPECT_LT(screen->grdGames.tabIndex, screen->cmdShowWay.tabIndex);
    EXPECT_LT(screen->cmdShowWay.tabIndex, screen->cmdExit.tabIndex);
    EXPECT_EQ(screen->focused, &screen->grdPlayers) << "where the answers are";
}

} // namespace
} // namespace tallyhoop::test
