// tests/pool/results_test.cpp - results before the first game, and those of a damaged file.
#include "pool/results.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(NewResults, AreTheFieldUnderTheNameOfResults)
{
    const Entry results = newResults(defaultField());
    EXPECT_EQ(results.picks.at(Position{0}), "TEAM1");
    EXPECT_EQ(results.picks.at(Position{108}), "TEAM64"); // last row of region 4
    for (const Position game : gamePositions())
        EXPECT_TRUE(results.picks.isEmpty(game)) << index(game);
    EXPECT_EQ(results.initials, "A");
    EXPECT_EQ(results.name, "FinalResults");
    EXPECT_EQ(results.finalPoints, "");
    EXPECT_EQ(results.fileName, "");
}

TEST(CompletedResults, AreTheSameWhenNothingIsMissing)
{
    Entry results = newResults(defaultField());
    results.picks.put(Position{0}, "Duke"); // another team than the field has
    results.picks.put(kChampion, "Duke");
    results.initials = "JS";
    results.name = "Smith";
    results.finalPoints = "150";
    results.fileName = "TALLYHOOP.THS";
    EXPECT_EQ(completedResults(results, defaultField()), results);
}

TEST(CompletedResults, GetTheFixedNamesForBlankOnes)
{
    Entry results = newResults(defaultField());
    for (const char* blank : {"", " ", " Smith"}) { // one that begins with a blank counts as blank
        results.initials = results.name = blank;
        EXPECT_EQ(completedResults(results, defaultField()).initials, "A") << '"' << blank << '"';
        EXPECT_EQ(completedResults(results, defaultField()).name, "FinalResults") << '"' << blank << '"';
    }
}

TEST(CompletedResults, GetTheFieldsTeamsOnEmptyRowsAndNobodyOnEmptyGames)
{
    Entry results = newResults(defaultField());
    results.picks.clear(Position{1});
    results.picks.clear(Position{62}); // first row of region 3
    results.picks.put(Position{2}, "Duke");
    results.picks.put(Position{16}, "TEAM1");
    const Bracket completed = completedResults(results, defaultField()).picks;
    EXPECT_EQ(completed.at(Position{1}), "TEAM2");
    EXPECT_EQ(completed.at(Position{62}), "TEAM33");
    EXPECT_EQ(completed.at(Position{2}), "Duke");
    EXPECT_EQ(completed.at(Position{16}), "TEAM1");
    EXPECT_TRUE(completed.isEmpty(Position{17}));
    EXPECT_TRUE(completed.isEmpty(kChampion));
}

} // namespace
} // namespace tallyhoop
