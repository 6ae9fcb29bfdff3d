// tests/screens/import/entry_pile_test.cpp - what becomes of ticks while entries come and go.
#include "screens/import/entry_pile.h"

#include "fakes/scratch_folder.h"
#include "files/player_names_file.h"
#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

struct EntryPileTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    Field field = field2000();
    EntryPile pile{folder, field};

    static HandedIn from(const std::string& name, const std::string& champion = "Duke")
    {
        HandedIn entry{upperEntry(name, "X"), {}, {}, {}, true};
        entry.entry.picks.put(kChampion, champion);
        return entry;
    }

    static HandedIn incomplete(const std::string& name)
    {
        HandedIn entry = from(name);
        entry.entry.picks.clear(kChampion);
        return entry;
    }

    std::vector<std::string> ticked() const
    {
        std::vector<std::string> names;
        for (const ReviewRow& row : pile.review().rows)
            if (row.isTicked)
                names.push_back(row.handedIn.entry.name + " " + row.handedIn.entry.picks.at(kChampion));
        return names;
    }
};

TEST_F(EntryPileTest, KeepsWhatWasDecidedWhenMoreComes)
{
    pile.add({from("Al"), incomplete("Bo"), from("Cy")});
    pile.setTicked(0, false);
    pile.setTicked(1, true);
    pile.add({from("Di")});
    EXPECT_THAT(ticked(), ElementsAre("Bo ", "Cy Duke", "Di Duke"));
}

TEST_F(EntryPileTest, ATickGoesToWhatThePlayerHandedInLater)
{
    pile.add({from("Al"), from("Bo")});
    pile.setTicked(0, false);
    pile.setTicked(0, true);
    pile.add({from("Al", "Arizona")});
    EXPECT_THAT(ticked(), ElementsAre("Bo Duke", "Al Arizona"));
}

TEST_F(EntryPileTest, AnEarlierEntryThatWasChosenStaysChosenWhenOthersComeIn)
{
    pile.add({from("Al"), from("Al", "Arizona")});
    pile.setTicked(0, true);
    pile.add({from("Bo")});
    EXPECT_THAT(ticked(), ElementsAre("Al Duke", "Bo Duke"));
}

TEST_F(EntryPileTest, AChosenEntryThatAnotherChoiceReplacedIsNotChosenAgain)
{
    pile.add({from("Al"), from("Al", "Arizona")});
    pile.setTicked(1, true);
    pile.setTicked(0, true);
    pile.add({from("Bo")});
    EXPECT_THAT(ticked(), ElementsAre("Al Duke", "Bo Duke"));
}

TEST_F(EntryPileTest, TickingAllTakesTheLatestCompleteEntryOfEachPlayer)
{
    pile.add({from("Al"), from("Al", "Arizona"), from("Bo"), incomplete("Bo"), incomplete("Cy")});
    pile.untickAll();
    EXPECT_EQ(pile.ticked(), 0u);
    pile.tickAllComplete();
    EXPECT_THAT(ticked(), ElementsAre("Al Arizona", "Bo Duke"));
    EXPECT_EQ(pile.ticked(), 2u);
}

TEST_F(EntryPileTest, TickingAllLeavesOutWhatIsHereAlready)
{
    scratch.put("Al_X.THC", bytesToWrite(from("Al")));
    const std::vector<PlayerRecord> players{{"Al,X", "AL_X.THC", "", ""}};
    scratch.put("PLAYERNAMES.CSV", playerNamesFile(players));
    pile.add({from("Al"), from("Bo")});
    pile.tickAllComplete();
    EXPECT_THAT(ticked(), ElementsAre("Bo Duke"));
}

TEST_F(EntryPileTest, WhatTickingAllOrUntickingAllDidStaysWhenMoreComes)
{
    pile.add({from("Al"), incomplete("Bo")});
    pile.untickAll();
    pile.add({from("Cy")});
    EXPECT_THAT(ticked(), ElementsAre("Cy Duke"));
    scratch.put("TALLYHOOP.THS", bytesToWrite(from("FinalResults"))); // from now on all of them are late
    pile.add({from("Di")});
    pile.tickAllComplete();
    pile.add({from("Ed")});
    EXPECT_THAT(ticked(), ElementsAre("Al Duke", "Cy Duke", "Di Duke"));
}

TEST_F(EntryPileTest, NothingChangesWhenTheReviewIsStopped)
{
    pile.add({from("Al")});
    int steps = 0;
    EXPECT_FALSE(pile.add({from("Bo"), from("Cy")}, [&] { return ++steps < 2; }));
    EXPECT_EQ(pile.size(), 1u);
    EXPECT_THAT(ticked(), ElementsAre("Al Duke"));
}

TEST_F(EntryPileTest, WhatWasWrittenLeavesAndIsNamed)
{
    pile.add({from("Al"), incomplete("Bo"), from("Cy")});
    const EntryPile::Imported imported = pile.import({});
    EXPECT_THAT(imported.files, ElementsAre(scratch.path() / "Al_X.THC", scratch.path() / "Cy_X.THC"));
    EXPECT_EQ(imported.outcome.created, 2u);
    ASSERT_EQ(pile.size(), 1u);
    EXPECT_EQ(pile.review().rows[0].handedIn.entry.name, "Bo");
    EXPECT_EQ(pile.review().rows[0].effect, Effect::New);
}

TEST_F(EntryPileTest, WhatWasNotTickedIsNotTickedAfterwards)
{
    pile.add({from("Al"), from("Bo")});
    pile.setTicked(1, false);
    pile.import({});
    EXPECT_EQ(pile.ticked(), 0u);
    pile.add({from("Cy")});
    EXPECT_THAT(ticked(), ElementsAre("Cy Duke"));
}

} // namespace
} // namespace tallyhoop::test
