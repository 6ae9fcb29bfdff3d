// tests/screens/setup/team_name_list_test.cpp - the team names that can be picked, and their changes.
#include "screens/setup/team_name_list.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Names = std::vector<std::string>;

TEST(TeamNameList, IsSortedAndEndsAtTheFirstEmptyName)
{
    const TeamNameList list{Names{"Texas", "akron", "Duke", "", "Iowa"}};
    EXPECT_EQ(list.rows(), (Names{"akron", "Duke", "Texas"}));
    EXPECT_FALSE(list.isChanged());
}

TEST(TeamNameList, SortsAnAddedNameInAndSaysWhere)
{
    TeamNameList list{Names{"Akron", "Texas"}};
    EXPECT_EQ(list.add("Duke"), 1U);
    EXPECT_EQ(list.rows(), (Names{"Akron", "Duke", "Texas"}));
    EXPECT_TRUE(list.isChanged());
}

TEST(TeamNameList, PutsADoubleNextToItsEqualAlsoWhereThatIsOutOfOrder)
{
    TeamNameList list{Names{"Akron", "Duke", "Texas"}};
    list.change(1, "Zebra");
    EXPECT_EQ(list.add("Zebra"), 1U);
    EXPECT_EQ(list.rows(), (Names{"Akron", "Zebra", "Zebra", "Texas"}));
}

TEST(TeamNameList, SaysTheRowOfADoubleHoweverTheListGrows)
{
    TeamNameList list{Names{"Akron", "Duke", "Texas"}};
    for (int times = 0; times < 100; ++times) // several of them make room for more rows elsewhere
        ASSERT_EQ(list.add("Duke"), 1U) << times;
    EXPECT_EQ(list.rows().size(), 103U);
}

TEST(TeamNameList, SortsAListInTheOppositeOrderHoweverLongItIs)
{
    // Sorted in one by one, each name would move all those before it: 20 thousand million moves, minutes instead of
    // a second.
    Names names;
    for (int number = 200'000; number > 0; --number)
        names.push_back("Team " + std::to_string(1'000'000 + number));
    EXPECT_EQ(TeamNameList{names}.rows(), Names(names.rbegin(), names.rend()));
}

TEST(TeamNameList, KeepsNamesThatDifferOnlyInCaseInTheOrderOfTheFile)
{
    EXPECT_EQ((TeamNameList{Names{"duke", "Akron", "DUKE", "Duke"}}).rows(), (Names{"Akron", "duke", "DUKE", "Duke"}));
}

TEST(TeamNameList, AChangedNameKeepsItsRow)
{
    TeamNameList list{Names{"Akron", "Duke"}};
    list.change(0, "Zebra");
    EXPECT_EQ(list.rows(), (Names{"Zebra", "Duke"}));
    EXPECT_TRUE(list.isChanged());
}

TEST(TeamNameList, LosesARemovedName)
{
    TeamNameList list{Names{"Akron", "Duke", "Texas"}};
    list.remove(1);
    EXPECT_EQ(list.rows(), (Names{"Akron", "Texas"}));
    EXPECT_TRUE(list.isChanged());
}

TEST(TeamNameList, CollectsTypedNamesOnceEachAndKeepsThemOutOfTheRows)
{
    TeamNameList list{Names{"Duke"}};
    for (const char* name : {"Utopia", "Arcadia", "Utopia", "utopia"}) // other text, other name
        list.addTyped(name);
    EXPECT_EQ(list.rows(), Names{"Duke"});
    EXPECT_TRUE(list.isChanged());
    const TeamNameList saved = list.withTypedNames();
    EXPECT_EQ(saved.rows(), (Names{"Arcadia", "Duke", "Utopia", "utopia"}));
    EXPECT_FALSE(saved.isChanged());
    EXPECT_EQ(saved.withTypedNames().rows(), saved.rows());
}

TEST(TeamNameList, DoesNotCollectAnEmptyName)
{
    TeamNameList list;
    list.addTyped("");
    EXPECT_FALSE(list.isChanged());
}

TEST(TeamNameList, ForgetsTypedNamesButNotTheRows)
{
    TeamNameList list{Names{"Duke"}};
    list.add("Texas");
    list.addTyped("Utopia");
    list.forgetChanges();
    EXPECT_FALSE(list.isChanged());
    EXPECT_EQ(list.withTypedNames().rows(), (Names{"Duke", "Texas"}));
}

TEST(TeamNameList, FindsANameInItsOwnSpelling)
{
    const TeamNameList list{Names{"Duke", "Iowa St."}};
    EXPECT_EQ(list.spellingOf("iowa ST."), "Iowa St.");
    EXPECT_EQ(list.spellingOf("Iowa"), "");
    EXPECT_TRUE(list.contains("Duke"));
    EXPECT_FALSE(list.contains("duke"));
}

} // namespace
} // namespace tallyhoop
