// tests/screens/scores/score_grid_test.cpp - moving columns, and the order that follows from them.
#include "screens/scores/score_grid.h"

#include "ui/screen.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;

struct ScoreGrid : testing::Test {
    ui::Screen screen{"screen", ""};
    ui::Grid grid{&screen, "grid"};

    void fill(std::vector<std::vector<std::string>> rows)
    {
        grid.columns.assign(rows.empty() ? 1 : rows.front().size(), {});
        grid.rows = std::move(rows);
    }

    std::vector<std::string> column(std::size_t index) const
    {
        std::vector<std::string> cells;
        for (const auto& row : grid.rows)
            cells.push_back(row.at(index));
        return cells;
    }
};

TEST_F(ScoreGrid, TakesHeadingsAlignmentsAndWidthsFromTheFormat)
{
    const std::vector<ui::GridColumn> columns = columnsOf(kScoreColumns);
    EXPECT_THAT(columns, ElementsAre(ui::GridColumn{"File Name", ui::Alignment::Left, 32},
                                     ui::GridColumn{"Player Name", ui::Alignment::Left, 19},
                                     ui::GridColumn{"Score", ui::Alignment::Right, 8},
                                     ui::GridColumn{"-MAX-", ui::Alignment::Right, 6},
                                     ui::GridColumn{"Winning Pick", ui::Alignment::Left, 23}));
}

TEST_F(ScoreGrid, ShowsAPlayersScoreInTheOrderOfTheColumns)
{
    ScoreLine line;
    line.FileName = "Smith_JS.THC";
    line.PlayerName = "JS, Smith";
    line.Points = 7;
    line.MaxPoints = 120;
    line.WinningPick = "Duke";
    EXPECT_THAT(cellsOf(line), ElementsAre("Smith_JS.THC", "JS, Smith", "7", "120", "Duke"));
}

TEST_F(ScoreGrid, MovesAColumnWithItsCellsAndShiftsThoseBetween)
{
    fill({{"a", "b", "c", "d"}});
    for (std::size_t i = 0; i < 4; ++i)
        grid.columns[i].heading = grid.rows[0][i];

    moveColumn(grid, 2, 0);
    EXPECT_THAT(grid.rows[0], ElementsAre("c", "a", "b", "d"));
    EXPECT_EQ(grid.columns[0].heading, "c");
    EXPECT_EQ(grid.columns[1].heading, "a");

    moveColumn(grid, 0, 3);
    EXPECT_THAT(grid.rows[0], ElementsAre("a", "b", "d", "c"));
    moveColumn(grid, 1, 1);
    EXPECT_THAT(grid.rows[0], ElementsAre("a", "b", "d", "c"));
}

TEST_F(ScoreGrid, IgnoresAMoveOfAColumnThatIsNotThere)
{
    fill({{"a", "b"}});
    moveColumn(grid, 0, 2);
    moveColumn(grid, 5, 0);
    EXPECT_THAT(grid.rows[0], ElementsAre("a", "b"));
}

TEST_F(ScoreGrid, TellsTheViewOfEveryChange)
{
    fill({{"b", "1"}, {"a", "2"}});
    const unsigned before = grid.revision;
    moveColumn(grid, 0, 1);
    const unsigned moved = grid.revision;
    EXPECT_NE(moved, before);
    SortGrid(grid);
    EXPECT_NE(grid.revision, moved);
}

TEST_F(ScoreGrid, SortsANumberColumnFromTheHighestDown)
{
    fill({{"9", "x"}, {"100", "y"}, {"20", "z"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("100", "20", "9"));
}

TEST_F(ScoreGrid, OrdersTiesByTheFollowingColumns)
{
    // Score, file name, maximum: equal scores, the name counts as 0, so the maximum decides, downwards too.
    fill({{"50", "Adams", "60"}, {"50", "Brown", "90"}, {"70", "Clark", "70"}, {"50", "Davis", "90"}});
    SortGrid(grid);
    EXPECT_THAT(column(1), ElementsAre("Clark", "Brown", "Davis", "Adams"));
}

TEST_F(ScoreGrid, CountsANameByTheNumberItBeginsWith)
{
    fill({{"50", "Adams"}, {"50", "49ers"}, {"50", "76ers"}});
    SortGrid(grid);
    EXPECT_THAT(column(1), ElementsAre("76ers", "49ers", "Adams"));
}

TEST_F(ScoreGrid, SortsTextUpwardsWithoutRegardToCase)
{
    fill({{"smith", "1"}, {"Adams", "2"}, {"BROWN", "3"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("Adams", "BROWN", "smith"));
}

TEST_F(ScoreGrid, KeepsTheOrderOfRowsThatDifferOnlyInCase)
{
    fill({{"smith", "Duke"}, {"SMITH", "duke"}, {"Smith", "DUKE"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("smith", "SMITH", "Smith"));
}

TEST_F(ScoreGrid, OrdersTextTiesByLaterNumbersAsNumbers)
{
    fill({{"Duke", "100"}, {"Duke", "20"}, {"Duke", "3"}});
    SortGrid(grid);
    EXPECT_THAT(column(1), ElementsAre("3", "20", "100"));
}

TEST_F(ScoreGrid, SortsUpwardsWhenTheFirstRowHoldsZero)
{
    fill({{"0", "x"}, {"20", "y"}, {"3", "z"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("0", "3", "20"));
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("0", "3", "20")) << "the first row still holds 0";
}

TEST_F(ScoreGrid, TakesATextThatOnlyBeginsWithANumberAsText)
{
    fill({{"2nd", "x"}, {"10th", "y"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("10th", "2nd"));
}

TEST_F(ScoreGrid, DecidesTheDirectionByTheFirstRowAlone)
{
    fill({{"7", "x"}, {"Adams", "y"}, {"30", "z"}});
    SortGrid(grid);
    EXPECT_THAT(column(0), ElementsAre("30", "7", "Adams")) << "the name counts as 0";
}

TEST_F(ScoreGrid, DoesNothingWithoutRows)
{
    fill({});
    const unsigned before = grid.revision;
    SortGrid(grid);
    EXPECT_TRUE(grid.rows.empty());
    EXPECT_EQ(grid.revision, before);
}

TEST_F(ScoreGrid, SurvivesCellsThatContradictEachOther)
{
    // 9 < 10 as numbers, "10" < "1a" and "1a" < "9" as texts.
    std::vector<std::vector<std::string>> rows;
    for (int i = 0; i < 300; ++i)
        rows.push_back({i % 3 == 0 ? "0" : i % 3 == 1 ? "1a" : std::to_string(i)});
    fill(rows);
    SortGrid(grid);
    std::vector<std::string> sorted = column(0);
    std::vector<std::string> expected;
    for (const auto& row : rows)
        expected.push_back(row[0]);
    EXPECT_THAT(sorted, testing::UnorderedElementsAreArray(expected));
}

} // namespace
} // namespace tallyhoop
