// tests/ui/control_test.cpp - controls list themselves with their screen, and commands let it show its state.
#include "ui/control.h"

#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::ui {
namespace {

enum class Place : int {};

struct Sample : Screen {
    Sample() : Screen{"sample", "Sample"} {}

    void showState() override { actionsWhenShown.push_back(actions); }

    int actions = 0;
    std::vector<int> actionsWhenShown; ///< one for each time the state was shown

    Command command{this, "command", "Command", [this] { ++actions; }};
    MenuEntry entry{this, "entry", "Entry", [this] { ++actions; }};
    MenuEntry menu{this, "menu", "Menu"};
    Command idle{this, "idle", "Idle"};
    ControlArray<Label, 3> labels{this, "lblRegion"};
    ControlArray<OptionButton, 3> options{this, "optOption"};
};

template <class Kind>
void expectThatClicksAreFollowedByTheState(Sample& sample, Kind& control)
{
    control.click();
    EXPECT_EQ(sample.actions, 1);
    EXPECT_EQ(sample.actionsWhenShown, std::vector{1}) << "the state is shown once, after the action";
}

template <class Kind>
void expectThatNothingHappens(Sample& sample, Kind& control)
{
    control.click();
    EXPECT_EQ(sample.actions, 0);
    EXPECT_TRUE(sample.actionsWhenShown.empty());
}

TEST(Click, DoesTheActionAndThenShowsTheState)
{
    Sample forCommand;
    expectThatClicksAreFollowedByTheState(forCommand, forCommand.command);
    Sample forEntry;
    expectThatClicksAreFollowedByTheState(forEntry, forEntry.entry);
}

TEST(Click, DoesNothingWhileDisabled)
{
    Sample sample;
    sample.command.enabled = sample.entry.enabled = false;
    expectThatNothingHappens(sample, sample.command);
    expectThatNothingHappens(sample, sample.entry);
}

TEST(Click, DoesNothingWhileHidden)
{
    Sample sample;
    sample.command.visible = sample.entry.visible = false;
    expectThatNothingHappens(sample, sample.command);
    expectThatNothingHappens(sample, sample.entry);
}

TEST(Click, DoesNothingWithoutAnAction)
{
    Sample sample;
    expectThatNothingHappens(sample, sample.idle);
    expectThatNothingHappens(sample, sample.menu);
}

TEST(ControlArray, NumbersTheNamesOfItsMembers)
{
    Sample sample;
    EXPECT_EQ(sample.labels.size(), 3u);
    EXPECT_EQ(sample.labels[0].name, "lblRegion_0");
    EXPECT_EQ(sample.labels[2].name, "lblRegion_2");
    EXPECT_EQ(sample.find("lblRegion_1"), &sample.labels[1]);
    EXPECT_EQ(sample.find("lblRegion_3"), nullptr);
}

TEST(ControlArray, IsIndexedByAnEnumWhoseValuesAreItsPlaces)
{
    Sample sample;
    const Sample& same = sample;
    for (int place = 0; place < 3; ++place) {
        EXPECT_EQ(&sample.labels[Place{place}], &sample.labels[static_cast<std::size_t>(place)]);
        EXPECT_EQ(&same.labels[Place{place}], &sample.labels[Place{place}]);
    }
    EXPECT_THROW(sample.labels[Place{3}], std::out_of_range);
    EXPECT_THROW(sample.labels[Place{-1}], std::out_of_range);
}

TEST(ControlArray, KnowsThePlaceOfAMemberAndOfNobodyElse)
{
    Sample sample;
    EXPECT_EQ(sample.labels.indexOf(sample.labels[2]), 2u);
    EXPECT_EQ(sample.labels.indexOf<Place>(sample.labels[2]), Place{2});
    EXPECT_EQ(sample.labels.indexOf(sample.command), std::nullopt);
    EXPECT_EQ(sample.labels.indexOf<Place>(sample.command), std::nullopt);
    EXPECT_EQ(sample.labels.indexOf(sample.options[0]), std::nullopt);
}

TEST(SelectOption, SelectsOneAndClearsTheOthers)
{
    Sample sample;
    sample.options[0].selected = true;
    selectOption(sample.options, 2);
    EXPECT_FALSE(sample.options[0].selected);
    EXPECT_FALSE(sample.options[1].selected);
    EXPECT_TRUE(sample.options[2].selected);
}

} // namespace
} // namespace tallyhoop::ui
