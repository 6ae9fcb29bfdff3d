// tests/reports/pick_table_test.cpp - picks counted by team and by player, in the order of the reports.
#include "reports/pick_table.h"

#include "reports/four_players.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// @param game of which somebody has picked the team
Entry picker(const std::string& name, const std::string& team, Position game = kChampion)
{
    Entry entry;
    entry.name = name;
    entry.initials = "X";
    entry.picks.put(game, team);
    return entry;
}

/// @returns the rows that the packed picks of the reports make, as long as no name holds a comma
std::vector<PickRow> packedRows(std::span<const Entry> entries, bool isByPlayer)
{
    std::vector<PickRow> rows;
    for (const std::string& entry : pickEntries(entries)) {
        const Pick pick = *parsePickEntry(entry);
        const std::string label = isByPlayer ? pick.playerLabel : "";
        if (rows.empty() || rows.back().team != pick.team || rows.back().playerLabel != label)
            rows.push_back({pick.team, label});
        ++rows.back().counts.at(pick.category);
    }
    return rows;
}

TEST(PickTable, CountsPlayersByTeamAndRound)
{
    const std::vector<Entry> entries{picker("Ann", "DUKE"), picker("Bob", "DUKE"), picker("Cleo", "DUKE", kSemifinalA)};
    EXPECT_THAT(pickRows(entries), ElementsAre(PickRow{"DUKE", "", {0, 0, 0, 0, 0, 1, 2}}));
    EXPECT_THAT(pickRowsByPlayer(entries), ElementsAre(PickRow{"DUKE", "Ann_X", {0, 0, 0, 0, 0, 0, 1}},
                                                       PickRow{"DUKE", "Bob_X", {0, 0, 0, 0, 0, 0, 1}},
                                                       PickRow{"DUKE", "Cleo_X", {0, 0, 0, 0, 0, 1, 0}}));
    EXPECT_THAT(pickRows({}), IsEmpty());
}

TEST(PickTable, HasTheRowsOfTheReportsInTheirOrder)
{
    // Given: names that begin with each other, or differ in case alone, and two players of one label.
    std::vector<Entry> entries = fourPlayers();
    for (const auto& [name, team] : {std::pair{"ann", "Duke St"},
                                     {"Ann", "Duke"},
                                     {"Ann B", "DUKE"},
                                     {"Bob", "Duke"},
                                     {"Ann", "Duke"},
                                     {"Adams", "Duke+"}})
        entries.push_back(picker(name, team));
    // Round by round the two are mixed: the packed rows of "zoe" and "Zoe" differ in nothing but the round.
    for (const char* name : {"zoe", "Zoe"}) {
        entries.push_back(picker(name, "Duke"));
        entries.back().picks.put(kSemifinalA, "Duke");
    }
    EXPECT_EQ(pickRows(entries), packedRows(entries, false));
    EXPECT_EQ(pickRowsByPlayer(entries), packedRows(entries, true));
}

TEST(PickTable, TakesPlayersWhoDifferOnlyInCaseForTwo)
{
    const std::vector<Entry> entries{picker("ann", "DUKE"), picker("Ann", "DUKE")};
    EXPECT_THAT(pickRowsByPlayer(entries), ElementsAre(PickRow{"DUKE", "ann_X", {0, 0, 0, 0, 0, 0, 1}},
                                                       PickRow{"DUKE", "Ann_X", {0, 0, 0, 0, 0, 0, 1}}));
}

TEST(PickTable, HasARowForEachNameWithCommas)
{
    // Packed, the picks of "A" and "A,A" would be mixed.
    const std::vector<Entry> entries{picker("B", "A"), picker("x", "A,A"), picker("A", "A"), picker(",x", ",")};
    EXPECT_THAT(pickRows(entries),
                ElementsAre(PickRow{",", "", {0, 0, 0, 0, 0, 0, 1}}, PickRow{"A", "", {0, 0, 0, 0, 0, 0, 2}},
                            PickRow{"A,A", "", {0, 0, 0, 0, 0, 0, 1}}));
    EXPECT_THAT(pickRowsByPlayer(entries),
                ElementsAre(PickRow{",", ",x_X", {0, 0, 0, 0, 0, 0, 1}}, PickRow{"A", "A_X", {0, 0, 0, 0, 0, 0, 1}},
                            PickRow{"A", "B_X", {0, 0, 0, 0, 0, 0, 1}}, PickRow{"A,A", "x_X", {0, 0, 0, 0, 0, 0, 1}}));
}

TEST(PickTable, KeepsTheRoundsOfAPlayerTogetherWhateverTheNames)
{
    Entry first = picker("x", "DUKE", kSemifinalA);
    first.picks.put(kChampion, "DUKE");
    first.initials.clear();
    Entry second = first;
    second.initials = ",5"; // packed, "DUKE,x_,5,5" would come between "DUKE,x_,5" and "DUKE,x_,6"
    EXPECT_THAT(
        pickRowsByPlayer(std::vector{first, second}),
        ElementsAre(PickRow{"DUKE", "x_", {0, 0, 0, 0, 0, 1, 1}}, PickRow{"DUKE", "x_,5", {0, 0, 0, 0, 0, 1, 1}}));
}

} // namespace
} // namespace tallyhoop::test
