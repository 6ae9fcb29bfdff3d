// tests/ui/control_keys_test.cpp - what keys mean to lists and grids, and what is spoken of them.
#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::ui {
namespace {

constexpr KeyPress kSpace{.key = Key::Character, .character = ' '};
constexpr KeyPress kEnter{.key = Key::Enter};
constexpr KeyPress kColumnLeft{.key = Key::Left, .control = true, .shift = true};
constexpr KeyPress kColumnRight{.key = Key::Right, .control = true, .shift = true};

struct Sample : Screen {
    Sample() : Screen{"frmSample", "Sample"}
    {
        list.rows = {"ADAMS, B", "SMITH, J"};
        list.chosen = [this] { log.push_back("chosen " + list.selectedText()); };
        grid.columns = {{"Name"}, {"Score"}, {"Max"}};
        grid.rows = {{"Adams", "10", "90"}, {"Baker", "20", "80"}};
        grid.cellPressed = [this](std::size_t row, std::size_t column) {
            log.push_back("cell " + std::to_string(row) + "," + std::to_string(column));
        };
        grid.columnPressed = [this](std::size_t column) { log.push_back("press " + std::to_string(column)); };
        grid.columnReleased = [this](std::optional<std::size_t> column) {
            log.push_back(column ? "release " + std::to_string(*column) : "release outside");
        };
    }

    std::vector<std::string> log; ///< what was called, in order
    ListBox list{this, "lstNames"};
    Grid grid{this, "grdScores"};
};

using Log = std::vector<std::string>;

TEST(ListKeys, TheFirstNavigationKeyChoosesTheFirstRow)
{
    for (const Key key : {Key::Up, Key::Down, Key::PageUp, Key::PageDown}) {
        Sample sample;
        EXPECT_TRUE(sample.list.keyPressed({.key = key}));
        EXPECT_EQ(sample.list.selected, 0);
        EXPECT_EQ(sample.log, Log{"chosen ADAMS, B"});
    }
}

TEST(ListKeys, AreTheWidgetsOwnOnceARowIsSelected)
{
    Sample sample;
    sample.list.selected = 1;
    EXPECT_FALSE(sample.list.keyPressed({.key = Key::Up}));
    EXPECT_EQ(sample.list.selected, 1);
    EXPECT_TRUE(sample.log.empty());
}

TEST(ListKeys, ChooseNothingByAnotherKeyOrInAnEmptyList)
{
    Sample sample;
    EXPECT_FALSE(sample.list.keyPressed(kEnter));
    EXPECT_FALSE(sample.list.keyPressed({.key = Key::Home}));
    sample.list.rows.clear();
    EXPECT_FALSE(sample.list.keyPressed({.key = Key::Down}));
    EXPECT_EQ(sample.list.selected, std::nullopt);
    EXPECT_TRUE(sample.log.empty());
}

TEST(GridKeys, SpaceAndEnterPressTheCurrentCell)
{
    Sample sample;
    sample.grid.current = GridCell{1, 2};
    EXPECT_TRUE(sample.grid.keyPressed(kSpace));
    EXPECT_TRUE(sample.grid.keyPressed(kEnter));
    EXPECT_EQ(sample.log, (Log{"cell 1,2", "cell 1,2"}));
    EXPECT_EQ(sample.grid.current, (GridCell{1, 2}));
}

TEST(GridKeys, MoveTheColumnToItsNeighbourAndGoAlong)
{
    Sample sample;
    sample.grid.current = GridCell{1, 1};
    EXPECT_TRUE(sample.grid.keyPressed(kColumnLeft));
    EXPECT_EQ(sample.log, (Log{"press 1", "release 0"}));
    EXPECT_EQ(sample.grid.current, (GridCell{1, 0}));

    sample.log.clear();
    sample.grid.current = GridCell{0, 1};
    EXPECT_TRUE(sample.grid.keyPressed(kColumnRight));
    EXPECT_EQ(sample.log, (Log{"press 1", "release 2"}));
    EXPECT_EQ(sample.grid.current, (GridCell{0, 2}));
}

TEST(GridKeys, MoveNoColumnBeyondTheEdges)
{
    Sample sample;
    sample.grid.current = GridCell{0, 0};
    EXPECT_FALSE(sample.grid.keyPressed(kColumnLeft));
    sample.grid.current = GridCell{0, 2};
    EXPECT_FALSE(sample.grid.keyPressed(kColumnRight));
    EXPECT_TRUE(sample.log.empty());
    EXPECT_EQ(sample.grid.current, (GridCell{0, 2}));
}

TEST(GridKeys, MoveAColumnWithBothModifiersOnly)
{
    Sample sample;
    sample.grid.current = GridCell{0, 1};
    EXPECT_FALSE(sample.grid.keyPressed({.key = Key::Left}));
    EXPECT_FALSE(sample.grid.keyPressed({.key = Key::Left, .control = true}));
    EXPECT_FALSE(sample.grid.keyPressed({.key = Key::Left, .shift = true}));
    EXPECT_FALSE(sample.grid.keyPressed({.key = Key::Left, .control = true, .alt = true, .shift = true}));
    EXPECT_FALSE(sample.grid.keyPressed({.key = Key::Up, .control = true, .shift = true}));
    EXPECT_TRUE(sample.log.empty());
}

TEST(GridKeys, DoNothingWithoutACurrentCell)
{
    Sample sample;
    EXPECT_FALSE(sample.grid.keyPressed(kSpace));
    EXPECT_FALSE(sample.grid.keyPressed(kColumnLeft));
    sample.grid.current = GridCell{2, 1}; // a row that is gone
    EXPECT_FALSE(sample.grid.keyPressed(kEnter));
    sample.grid.current = GridCell{0, 3}; // a column that is gone
    EXPECT_FALSE(sample.grid.keyPressed(kEnter));
    EXPECT_TRUE(sample.log.empty());
}

TEST(SpokenExplanation, IsTheExplanationOrElseTheToolTip)
{
    Sample sample;
    Label label{&sample, "lblTitle"};
    EXPECT_EQ(label.spokenExplanation(), "");
    label.toolTip = "Back to the colours";
    EXPECT_EQ(label.spokenExplanation(), "Back to the colours");
    label.explanation = "Puts the colours back.";
    EXPECT_EQ(label.spokenExplanation(), "Puts the colours back.");
}

TEST(SpokenExplanation, BeginsWithTheNoteOfAnEmptyListOrGrid)
{
    Sample sample;
    sample.list.explanation = "Select a player.";
    sample.list.emptyNote = "No players yet.";
    sample.grid.explanation = "Drag a heading.";
    sample.grid.emptyNote = "No scores yet.";
    EXPECT_EQ(sample.list.spokenExplanation(), "Select a player.");
    EXPECT_EQ(sample.grid.spokenExplanation(), "Drag a heading.");
    sample.list.rows.clear();
    sample.grid.rows.clear();
    EXPECT_EQ(sample.list.spokenExplanation(), "No players yet. Select a player.");
    EXPECT_EQ(sample.grid.spokenExplanation(), "No scores yet. Drag a heading.");
}

} // namespace
} // namespace tallyhoop::ui
