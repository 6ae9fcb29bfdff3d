// tests/screens/board/selection_changes_test.cpp - how two versions of a selection differ, in words.
#include "screens/board/selection_changes.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SelectionChanges : testing::Test {
    Field field = defaultField();
    Entry here{startingBracket(field), "JS", "Smith", "150", {}};
    Entry theirs = here;

    std::vector<std::string> changes() const { return selectionChanges(field, here, theirs); }
};

TEST_F(SelectionChanges, AreNoneBetweenEqualSelectionsWhateverTheirFiles)
{
    theirs.fileName = "Smith_JS.THC";
    EXPECT_THAT(changes(), IsEmpty());
}

TEST_F(SelectionChanges, BeginWithThePlayer)
{
    theirs.initials = "J";
    theirs.name = "Smithers";
    theirs.finalPoints = "";
    EXPECT_THAT(changes(), ElementsAre("Initials: here JS, in the file J", "Name: here Smith, in the file Smithers",
                                       "Final points: here 150, in the file nothing"));
}

// Region 1 has the positions 0 to 30: 16 teams, then 8, 4, 2 winners and one.
TEST_F(SelectionChanges, NameThePlacesWithOtherTeams)
{
    here.picks.put(Position{16}, "TEAM1");
    theirs.picks.put(Position{16}, "TEAM2");
    here.picks.put(Position{26}, "TEAM9");
    theirs.picks.put(kChampion, "TEAM2");
    theirs.picks.put(Position{3}, "Duke");
    EXPECT_THAT(changes(), ElementsAre("West, first round, row 4, seed 9: here TEAM4, in the file Duke",
                                       "West, winner of first round, game 1: here TEAM1, in the file TEAM2",
                                       "West, winner of second round, game 3: here TEAM9, in the file no team",
                                       "winner of final: here no team, in the file TEAM2"));
}

} // namespace
} // namespace tallyhoop::test
