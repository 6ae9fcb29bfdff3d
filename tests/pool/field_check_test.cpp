// tests/pool/field_check_test.cpp - what keeps a field from being final, and seeds from being taken over.
#include "pool/field_check.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

Field withPayoff(int round, const std::string& text)
{
    Field field = defaultField();
    std::array<std::string, kRounds> texts = field.payoffs.texts();
    texts.at(roundIndex(round)) = text;
    field.payoffs = PayoffTexts{texts};
    return field;
}

TEST(FieldFault, IsNothingInACompleteField)
{
    EXPECT_EQ(fieldFault(defaultField()), std::nullopt);
    Field withoutComments = defaultField();
    withoutComments.comment1 = withoutComments.comment2 = "";
    withoutComments.seeds.fill("");
    EXPECT_EQ(fieldFault(withoutComments), std::nullopt);
}

TEST(FieldFault, IsTheFirstBlankTeam)
{
    Field field = defaultField();
    field.teams[TeamRow{40}] = "";
    field.teams[TeamRow{63}] = " Duke"; // begins with a blank, which counts as blank
    EXPECT_EQ(fieldFault(field), FieldFault{BlankTeam{TeamRow{40}}});
    field.teams[TeamRow{40}] = "Iowa";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankTeam{TeamRow{63}}});
}

TEST(FieldFault, IsABlankTitleOfThePoolThenOfARegion)
{
    Field field = defaultField();
    field.title = " ";
    field.regionTitles[3] = "";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankTitle{}});
    field.title = "Pool";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankRegionTitle{3}});
    field.regionTitles[0] = " West";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankRegionTitle{0}});
}

TEST(FieldFault, IsAPayoffOutsideOneToNinetyNine)
{
    for (const char* text : {"0", "100", "", "x5", "-3", "0.9", "99.5"})
        EXPECT_EQ(fieldFault(withPayoff(6, text)), FieldFault{BadPayoff{6}}) << text;
    for (const char* text : {"1", "99", "1.5", "3x", " 7"})
        EXPECT_EQ(fieldFault(withPayoff(6, text)), std::nullopt) << text;
    EXPECT_EQ(fieldFault(withPayoff(1, "0")), FieldFault{BadPayoff{1}});
}

TEST(FieldFault, IsATeamBeforeATitleAndATitleBeforeAPayoff)
{
    Field field = withPayoff(1, "0");
    field.title = "";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankTitle{}});
    field.teams[TeamRow{63}] = "";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankTeam{TeamRow{63}}});
    field = withPayoff(1, "0");
    field.regionTitles[2] = "";
    EXPECT_EQ(fieldFault(field), FieldFault{BlankRegionTitle{2}});
}

const SeedTexts kSeeds{"1", "16", "8", "9", "5", "12", "4", "13", "6", "11", "3", "14", "7", "10", "2", "15"};

SeedTexts withSeed(std::size_t row, const char* seed)
{
    SeedTexts seeds = kSeeds;
    seeds.at(row) = seed;
    return seeds;
}

TEST(WholeSeeds, AreTheNumbersWithoutWhatSurroundsThem)
{
    EXPECT_EQ(wholeSeeds(kSeeds), kSeeds);
    EXPECT_EQ(wholeSeeds(defaultField().seeds), kSeeds); // those have leading blanks
    EXPECT_EQ(wholeSeeds(withSeed(12, " 07 ")), kSeeds);
}

TEST(WholeSeeds, AreNothingUnlessTheyAreOneToSixteenEachOnce)
{
    for (const char* seed : {"5", "0", "17", "", "x", "-1"}) // row 4 has the 5
        EXPECT_EQ(wholeSeeds(withSeed(7, seed)), std::nullopt) << seed;
}

TEST(WholeSeeds, AreNothingWhenANumberIsOutOfRangeBeforeItIsRounded)
{
    // Row 0 has the 1 and row 1 the 16: rounded, these would be what was there, and no number would be there twice.
    EXPECT_EQ(wholeSeeds(withSeed(0, "0.6")), std::nullopt);
    EXPECT_EQ(wholeSeeds(withSeed(1, "16.4")), std::nullopt);
    EXPECT_EQ(wholeSeeds(withSeed(1, "16.0")), kSeeds);
}

TEST(WholeSeeds, RoundFractionsAndHalvesToTheEvenNumber)
{
    EXPECT_EQ(wholeSeeds(withSeed(0, "1.4")), kSeeds);
    EXPECT_EQ(wholeSeeds(withSeed(14, "2.5")), kSeeds);
    EXPECT_EQ(wholeSeeds(withSeed(14, "3.5")), std::nullopt); // row 6 has the 4
    EXPECT_EQ(wholeSeeds(withSeed(14, "1.4")), std::nullopt); // row 0 has the 1
}

TEST(RepeatedTeams, AreComparedWithoutCaseAndOuterBlanks)
{
    Field field = defaultField();
    EXPECT_TRUE(repeatedTeams(field).empty());
    field.teams[TeamRow{60}] = "Iowa";
    field.teams[TeamRow{7}] = "Duke";
    field.teams[TeamRow{9}] = " IOWA ";
    field.teams[TeamRow{20}] = "duke";
    field.teams[TeamRow{63}] = "Duke";
    field.teams[TeamRow{30}] = "Duke St.";
    EXPECT_EQ(repeatedTeams(field), (std::vector<RepeatedTeam>{{"Duke", {TeamRow{7}, TeamRow{20}, TeamRow{63}}},
                                                               {"IOWA", {TeamRow{9}, TeamRow{60}}}}));
}

TEST(RepeatedTeams, AreNotTheBlankRows)
{
    Field field = defaultField();
    field.teams.values.fill(" ");
    field.teams[TeamRow{5}] = "";
    EXPECT_TRUE(repeatedTeams(field).empty());
}

TEST(UnnamedTeams, AreTheRowsWithANameOfTheDefaultWhereverItIs)
{
    Field field = defaultField();
    EXPECT_EQ(unnamedTeams(field).size(), 64U);
    field.teams.values.fill("Duke");
    field.teams[TeamRow{8}] = "team64";
    field.teams[TeamRow{9}] = "TEAM65"; // there are 64
    field.teams[TeamRow{10}] = "TEAM1 Basketball";
    field.teams[TeamRow{11}] = " TEAM1  ";
    EXPECT_EQ(unnamedTeams(field), (std::vector{TeamRow{8}, TeamRow{11}}));
}

} // namespace
} // namespace tallyhoop
