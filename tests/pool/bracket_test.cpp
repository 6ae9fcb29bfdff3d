// tests/pool/bracket_test.cpp - who is where, whatever the numbers of the names.
#include "pool/bracket.h"

#include "pool/sample_brackets.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using Texts = ByPosition<std::string>;

ByPosition<std::string_view> viewsOf(const Texts& texts)
{
    ByPosition<std::string_view> views;
    for (const Position position : allPositions())
        views[position] = texts[position];
    return views;
}

Texts textsOf(const Bracket& bracket)
{
    Texts texts;
    for (const Position position : allPositions())
        texts[position] = bracket.at(position);
    return texts;
}

/// As many names as a bracket has room for.
Texts differentEverywhere()
{
    Texts texts;
    for (const Position position : allPositions())
        texts[position] = "name " + std::to_string(index(position));
    return texts;
}

TEST(Bracket, IsEmptyToBeginWith)
{
    const Bracket bracket;
    for (const Position position : allPositions()) {
        EXPECT_TRUE(bracket.isEmpty(position));
        EXPECT_EQ(bracket.at(position), "");
    }
}

TEST(Bracket, TakesTeamsByName)
{
    Bracket bracket;
    bracket.put(Position{0}, "Duke");
    bracket.put(kChampion, "UCLA");
    EXPECT_EQ(bracket.at(Position{0}), "Duke");
    EXPECT_EQ(bracket.at(kChampion), "UCLA");
    EXPECT_FALSE(bracket.isEmpty(kChampion));
    EXPECT_TRUE(bracket.isEmpty(Position{1}));
}

TEST(Bracket, HasNoTeamWhereAnEmptyNameIsPut)
{
    Bracket bracket = test::everyUpperTeamWins();
    bracket.put(Position{16}, "");
    bracket.clear(Position{17});
    EXPECT_TRUE(bracket.isEmpty(Position{16}));
    EXPECT_TRUE(bracket.isEmpty(Position{17}));
    EXPECT_EQ(bracket.at(Position{18}), "Team 5");
}

TEST(Bracket, CopiesATeamFromPlaceToPlaceAndAnEmptyPlaceToo)
{
    Bracket bracket = test::startingField();
    bracket.copy(Position{1}, Position{16});
    EXPECT_EQ(bracket.at(Position{16}), "Team 2");
    bracket.copy(Position{17}, Position{16});
    EXPECT_TRUE(bracket.isEmpty(Position{16}));
}

TEST(Bracket, TakesANameOfItsOwn)
{
    Bracket bracket = test::startingField();
    bracket.put(kChampion, bracket.at(Position{31}));
    EXPECT_EQ(bracket.at(kChampion), "Team 17");
    EXPECT_EQ(bracket.at(Position{31}), "Team 17");
}

TEST(Bracket, TakesAnUnknownNameWithoutChangingItsCopies)
{
    const Bracket original = test::everyUpperTeamWins();
    Bracket changed = original;
    changed.put(Position{16}, "Nobody knows");
    EXPECT_EQ(original, test::everyUpperTeamWins());
    EXPECT_EQ(original.at(Position{16}), "Team 1");
    Texts expected = textsOf(original);
    expected[Position{16}] = "Nobody knows";
    EXPECT_EQ(textsOf(changed), expected);
}

TEST(Bracket, HoldsADifferentNameOnEveryPlace)
{
    const Texts names = differentEverywhere();
    EXPECT_EQ(textsOf(Bracket::of(viewsOf(names))), names);

    Bracket oneByOne;
    for (const Position position : allPositions())
        oneByOne.put(position, names[position]);
    EXPECT_EQ(textsOf(oneByOne), names);
}

TEST(Bracket, TakesOneMoreNameForOneOfAHundredAndTwentySeven)
{
    Texts names = differentEverywhere();
    Bracket bracket = Bracket::of(viewsOf(names));
    for (int round = 0; round < 300; ++round) { // more names than there are numbers
        const Position position{round % kPositions};
        names[position] = "another " + std::to_string(round);
        bracket.put(position, names[position]);
        ASSERT_LE(bracket.names().size(), TeamNames::kMost) << "round " << round;
    }
    EXPECT_EQ(textsOf(bracket), names);
}

TEST(Bracket, MayHoldAnyBytes)
{
    const std::string strange("\0\r\x81|\xFF", 5);
    Bracket bracket;
    bracket.put(Position{5}, strange);
    EXPECT_EQ(bracket.at(Position{5}), strange);
    bracket.put(Position{6}, strange.substr(0, 4));
    EXPECT_NE(bracket.at(Position{6}), bracket.at(Position{5}));
}

TEST(BracketEquality, GoesByNamesWhateverTheirNumbers)
{
    Bracket left;
    left.put(Position{0}, "Duke");
    left.put(Position{1}, "UCLA");
    Bracket right;
    right.put(Position{1}, "UCLA");
    right.put(Position{0}, "Duke");
    EXPECT_NE(left.numbers(), right.numbers()) << "otherwise this test shows nothing";
    EXPECT_EQ(left, right);
    right.put(Position{1}, "ucla");
    EXPECT_NE(left, right);
}

TEST(BracketEquality, IsNotDeceivedByEqualNumbersOfDifferentTables)
{
    Bracket left;
    left.put(Position{0}, "Duke");
    Bracket right;
    right.put(Position{0}, "UCLA");
    EXPECT_EQ(left.numbers(), right.numbers()) << "otherwise this test shows nothing";
    EXPECT_NE(left, right);
}

TEST(BracketEquality, ForgetsNamesThatHaveLeft)
{
    Bracket bracket;
    bracket.put(Position{0}, "Duke");
    bracket.clear(Position{0});
    EXPECT_EQ(bracket, Bracket{});
}

TEST(BracketEquality, NoticesOnePlaceInBracketsOfOneTable)
{
    const Bracket bracket = test::everyUpperTeamWins();
    Bracket other = bracket;
    EXPECT_EQ(other, bracket);
    other.clear(kChampion);
    EXPECT_NE(other, bracket);
}

TEST(BracketOf, SharesTheTableOfABracketThatKnowsAllItsNames)
{
    const Bracket like = test::everyUpperTeamWins();
    const Texts texts = textsOf(test::everyLowerTeamWins());
    const Bracket bracket = Bracket::of(viewsOf(texts), like);
    EXPECT_EQ(&bracket.names(), &like.names());
    EXPECT_EQ(textsOf(bracket), texts);
    EXPECT_EQ(bracket.numbers()[kChampion], like.numbers()[Position{108}]) << "Team 64";
}

TEST(BracketOf, FindsNamesWhereverTheOtherBracketHasThem)
{
    const Bracket like = test::startingField();
    Texts texts = textsOf(like);
    std::swap(texts[Position{0}], texts[Position{93}]);
    texts[Position{16}] = "Team 40"; // neither of the two that meet
    texts[kChampion] = "Team 2";
    const Bracket bracket = Bracket::of(viewsOf(texts), like);
    EXPECT_EQ(&bracket.names(), &like.names());
    EXPECT_EQ(textsOf(bracket), texts);
}

TEST(BracketOf, MakesATableOfItsOwnForANameThatTheOtherLacks)
{
    const Bracket like = test::everyUpperTeamWins();
    Texts texts = textsOf(like);
    texts[kChampion] = "Somebody else"; // the last place: everything before it was known
    const Bracket bracket = Bracket::of(viewsOf(texts), like);
    EXPECT_NE(&bracket.names(), &like.names());
    EXPECT_EQ(textsOf(bracket), texts);
    EXPECT_EQ(textsOf(like), textsOf(test::everyUpperTeamWins()));
}

TEST(BracketOf, LeavesEmptyPlacesEmptyWhateverTheOtherHasThere)
{
    const Bracket like = test::everyUpperTeamWins();
    EXPECT_EQ(Bracket::of(ByPosition<std::string_view>{}, like), Bracket{});
}

TEST(BracketOf, DistinguishesNamesThatDifferInABlankOrInCase)
{
    const Bracket like = test::startingField();
    Texts texts = textsOf(like);
    texts[Position{16}] = "Team 1 ";
    texts[Position{17}] = "TEAM 3";
    EXPECT_EQ(textsOf(Bracket::of(viewsOf(texts), like)), texts);
}

TEST(NumbersIn, AreTheBracketsOwnInItsOwnTable)
{
    const Bracket bracket = test::everyUpperTeamWins();
    EXPECT_EQ(numbersIn(bracket.names(), bracket), bracket.numbers());
}

TEST(NumbersIn, AreTheOthersForNamesThatItKnows)
{
    TeamNames names;
    names.add("UCLA");
    names.add("Duke");
    Bracket bracket;
    bracket.put(Position{0}, "Duke");
    bracket.put(Position{1}, "UCLA");
    bracket.put(Position{16}, "UCLA");
    const ByPosition<TeamNumber> numbers = numbersIn(names, bracket);
    EXPECT_EQ(numbers[Position{0}], 2);
    EXPECT_EQ(numbers[Position{1}], 1);
    EXPECT_EQ(numbers[Position{16}], 1);
    EXPECT_EQ(numbers[Position{17}], kNoTeam);
}

TEST(NumbersIn, AreAboveAllOthersForUnknownNamesAndTheSameWhereverTheyAre)
{
    TeamNames names;
    names.add("Duke");
    const Bracket bracket = Bracket::of(viewsOf(differentEverywhere()));
    Bracket twice = bracket;
    twice.copy(Position{0}, kChampion);
    const ByPosition<TeamNumber> numbers = numbersIn(names, twice);
    EXPECT_GT(numbers[Position{0}], TeamNames::kMost);
    EXPECT_EQ(numbers[kChampion], numbers[Position{0}]);
    for (const Position position : allPositions())
        for (const Position other : allPositions())
            EXPECT_EQ(numbers[position] == numbers[other], twice.at(position) == twice.at(other))
                << index(position) << " and " << index(other);
}

} // namespace
} // namespace tallyhoop
