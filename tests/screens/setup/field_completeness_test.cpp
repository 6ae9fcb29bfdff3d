// What keeps a field from being final.
#include "screens/setup/field_completeness.h"

#include <gtest/gtest.h>
#include <ostream>

namespace tallyhoop {

void PrintTo(const FieldGap& gap, std::ostream* out) { *out << static_cast<int>(gap.kind) << " at " << gap.index; }

namespace {

Field withPayoff(std::size_t round, const std::string& text)
{
    Field field = defaultField();
    std::array<std::string, kRounds> texts = field.payoffs.texts();
    texts.at(round) = text;
    field.payoffs = PayoffTexts{texts};
    return field;
}

TEST(FirstGap, IsNothingInACompleteField)
{
    EXPECT_EQ(firstGapOf(defaultField()), std::nullopt);
    Field withoutComments = defaultField();
    withoutComments.comment1 = withoutComments.comment2 = "";
    withoutComments.seeds.fill("");
    EXPECT_EQ(firstGapOf(withoutComments), std::nullopt);
}

TEST(FirstGap, IsTheFirstBlankTeam)
{
    Field field = defaultField();
    field.teams[TeamRow{40}] = "";
    field.teams[TeamRow{63}] = " Duke"; // begins with a blank, which counts as blank
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Team, 40}));
    field.teams[TeamRow{40}] = "Iowa";
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Team, 63}));
}

TEST(FirstGap, IsABlankTitleOfThePoolThenOfARegion)
{
    Field field = defaultField();
    field.title = " ";
    field.regionTitles[3] = "";
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Title, 0}));
    field.title = "Pool";
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Title, 4}));
}

TEST(FirstGap, IsAPayoffOutsideOneToNinetyNine)
{
    for (const char* text : {"0", "100", "", "x5", "-3", "0.9", "99.5"})
        EXPECT_EQ(firstGapOf(withPayoff(5, text)), (FieldGap{FieldGap::Kind::Payoff, 5})) << text;
    for (const char* text : {"1", "99", "1.5", "3x", " 7"})
        EXPECT_EQ(firstGapOf(withPayoff(5, text)), std::nullopt) << text;
}

TEST(FirstGap, IsATeamBeforeATitleAndATitleBeforeAPayoff)
{
    Field field = withPayoff(0, "0");
    field.title = "";
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Title, 0}));
    field.teams[TeamRow{63}] = "";
    EXPECT_EQ(firstGapOf(field), (FieldGap{FieldGap::Kind::Team, 63}));
}

} // namespace
} // namespace tallyhoop
