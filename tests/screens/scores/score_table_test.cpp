// tests/screens/scores/score_table_test.cpp - moving columns, and the order that follows from them.
#include "screens/scores/score_table.h"

#include "ui/screen.h"

#include <gmock/gmock.h>

namespace tallyhoop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rows = std::vector<std::vector<std::string>>;

/// @returns a column of the rows as they are sorted
std::vector<std::string> sortedColumn(const Rows& rows, std::size_t column)
{
    std::vector<std::string> cells;
    for (const std::size_t place : sortedOrder(rows))
        cells.push_back(rows.at(place).at(column));
    return cells;
}

TEST(SortedOrder, OrdersANumberColumnFromTheHighestDown)
{
    EXPECT_THAT(sortedColumn({{"9", "x"}, {"100", "y"}, {"20", "z"}}, 0), ElementsAre("100", "20", "9"));
}

TEST(SortedOrder, OrdersTiesByTheFollowingColumns)
{
    // Score, file name, maximum: equal scores, the name counts as 0, so the maximum decides, downwards too.
    EXPECT_THAT(
        sortedColumn({{"50", "Adams", "60"}, {"50", "Brown", "90"}, {"70", "Clark", "70"}, {"50", "Davis", "90"}}, 1),
        ElementsAre("Clark", "Brown", "Davis", "Adams"));
}

TEST(SortedOrder, CountsANameByTheNumberItBeginsWith)
{
    EXPECT_THAT(sortedColumn({{"50", "Adams"}, {"50", "49ers"}, {"50", "76ers"}}, 1),
                ElementsAre("76ers", "49ers", "Adams"));
}

TEST(SortedOrder, OrdersTextUpwardsWithoutRegardToCase)
{
    EXPECT_THAT(sortedColumn({{"smith", "1"}, {"Adams", "2"}, {"BROWN", "3"}}, 0),
                ElementsAre("Adams", "BROWN", "smith"));
}

TEST(SortedOrder, KeepsTheOrderOfRowsThatDifferOnlyInCase)
{
    EXPECT_THAT(sortedColumn({{"smith", "Duke"}, {"SMITH", "duke"}, {"Smith", "DUKE"}}, 0),
                ElementsAre("smith", "SMITH", "Smith"));
}

TEST(SortedOrder, OrdersTextTiesByLaterNumbersAsNumbers)
{
    EXPECT_THAT(sortedColumn({{"Duke", "100"}, {"Duke", "20"}, {"Duke", "3"}}, 1), ElementsAre("3", "20", "100"));
}

TEST(SortedOrder, GoesUpwardsWhenTheFirstRowHoldsZero)
{
    EXPECT_THAT(sortedColumn({{"0", "x"}, {"20", "y"}, {"3", "z"}}, 0), ElementsAre("0", "3", "20"));
    EXPECT_THAT(sortedColumn({{"0", "x"}, {"3", "z"}, {"20", "y"}}, 0), ElementsAre("0", "3", "20"))
        << "also once it is sorted: the first row still holds 0";
}

TEST(OrderFromTheHighest, IsThatAlsoWhenTheFirstRowHoldsZero)
{
    EXPECT_THAT(orderFromTheHighest({{"0", "x"}, {"20", "y"}, {"3", "z"}}), ElementsAre(1U, 2U, 0U));
    EXPECT_THAT(orderFromTheHighest({{"5", "60"}, {"5", "90"}}), ElementsAre(1U, 0U)) << "the next column decides";
    EXPECT_THAT(orderFromTheHighest({}), IsEmpty());
}

TEST(SortedOrder, TakesATextThatOnlyBeginsWithANumberAsText)
{
    // By numbers: 1st 2nd 10th, or the other way round.
    EXPECT_THAT(sortedColumn({{"2nd", "x"}, {"10th", "y"}, {"1st", "z"}}, 0), ElementsAre("10th", "1st", "2nd"));
}

TEST(SortedOrder, DecidesTheDirectionByTheFirstRowAlone)
{
    EXPECT_THAT(sortedColumn({{"7", "x"}, {"Adams", "y"}, {"30", "z"}}, 0), ElementsAre("30", "7", "Adams"))
        << "the name counts as 0";
}

TEST(SortedOrder, IsEmptyWithoutRows) { EXPECT_THAT(sortedOrder({}), IsEmpty()); }

TEST(SortedOrder, KeepsRowsWithoutCells) { EXPECT_THAT(sortedOrder({{}, {}, {}}), ElementsAre(0, 1, 2)); }

TEST(SortedOrder, SurvivesCellsThatContradictEachOther)
{
    // 9 < 10 as numbers, "10" < "1a" and "1a" < "9" as texts.
    Rows rows;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < 300; ++i) {
        rows.push_back({i % 3 == 0 ? "0" : i % 3 == 1 ? "1a" : std::to_string(i)});
        places.push_back(i);
    }
    EXPECT_THAT(sortedOrder(rows), testing::UnorderedElementsAreArray(places));
}

TEST(CellOf, ShowsAPlayersScore)
{
    PlayerScore score;
    score.fileName = "Smith_JS.THC";
    score.playerName = "JS, Smith";
    score.points = 7;
    score.maxPoints = 120;
    score.winningPick = "Duke";
    EXPECT_EQ(cellOf(score, ScoreColumn::FileName), "Smith_JS.THC");
    EXPECT_EQ(cellOf(score, ScoreColumn::PlayerName), "JS, Smith");
    EXPECT_EQ(cellOf(score, ScoreColumn::Score), "7");
    EXPECT_EQ(cellOf(score, ScoreColumn::Maximum), "120");
    EXPECT_EQ(cellOf(score, ScoreColumn::WinningPick), "Duke");
}

struct ScoreTableTest : testing::Test {
    ScoreTable table;
    ui::Screen screen{"screen", ""};
    ui::Grid grid{&screen, "grid"};

    static ListedScore row(const std::string& fileName, const std::string& playerName, std::int16_t points,
                           std::int16_t maxPoints)
    {
        PlayerScore score;
        score.fileName = fileName;
        score.playerName = playerName;
        score.points = points;
        score.maxPoints = maxPoints;
        score.winningPick = "Duke";
        return {score, {fileName, "folder/" + fileName}};
    }

    void beginWithTwo()
    {
        table.begin({row("A.THC", "JS, Smith", 7, 120), row("B.THC", "QA, Adams", 9, 100)});
        table.show(grid);
    }

    void move(std::size_t from, std::size_t to)
    {
        table.moveColumn(from, to);
        table.show(grid);
    }
};

TEST_F(ScoreTableTest, BeginsWithItsFiveColumns)
{
    beginWithTwo();
    EXPECT_THAT(grid.columns, ElementsAre(ui::GridColumn{"File Name", ui::Alignment::Left, 32},
                                          ui::GridColumn{"Player Name", ui::Alignment::Left, 19},
                                          ui::GridColumn{"Score", ui::Alignment::Right, 8},
                                          ui::GridColumn{"-MAX-", ui::Alignment::Right, 6},
                                          ui::GridColumn{"Winning Pick", ui::Alignment::Left, 23}));
}

TEST_F(ScoreTableTest, ShowsTheRowsInTheOrderGiven)
{
    beginWithTwo();
    EXPECT_THAT(grid.rows, ElementsAre(ElementsAre("A.THC", "JS, Smith", "7", "120", "Duke"),
                                       ElementsAre("B.THC", "QA, Adams", "9", "100", "Duke")));
}

TEST_F(ScoreTableTest, MovesAColumnWithItsCellsAndShiftsThoseBetween)
{
    beginWithTwo();
    move(2, 0); // the first row holds 7, a number above 0: the highest comes first
    EXPECT_THAT(table.columns(), ElementsAre(ScoreColumn::Score, ScoreColumn::FileName, ScoreColumn::PlayerName,
                                             ScoreColumn::Maximum, ScoreColumn::WinningPick));
    EXPECT_THAT(grid.rows, ElementsAre(ElementsAre("9", "B.THC", "QA, Adams", "100", "Duke"),
                                       ElementsAre("7", "A.THC", "JS, Smith", "120", "Duke")));
    EXPECT_EQ(grid.columns.at(0).heading, "Score");
    EXPECT_EQ(grid.columns.at(1).heading, "File Name");

    move(0, 3);
    EXPECT_THAT(table.columns(), ElementsAre(ScoreColumn::FileName, ScoreColumn::PlayerName, ScoreColumn::Maximum,
                                             ScoreColumn::Score, ScoreColumn::WinningPick));
    EXPECT_EQ(grid.rows.at(0).at(0), "A.THC");
    move(1, 1);
    EXPECT_EQ(table.columns().at(1), ScoreColumn::PlayerName);
}

TEST_F(ScoreTableTest, KeepsEachRowTogetherWithItsFile)
{
    beginWithTwo();
    move(2, 0);
    ASSERT_EQ(table.rows().size(), 2u);
    EXPECT_EQ(table.rows()[0].file.path, "folder/B.THC");
    EXPECT_EQ(table.rows()[0].score.playerName, "QA, Adams");
    EXPECT_EQ(table.rows()[1].file.path, "folder/A.THC");
}

TEST_F(ScoreTableTest, IgnoresAMoveOfAColumnThatIsNotThere)
{
    table.begin({row("B.THC", "x", 1, 1), row("A.THC", "x", 1, 1)});
    move(0, 5);
    move(5, 0);
    EXPECT_EQ(table.columns().front(), ScoreColumn::FileName);
    EXPECT_EQ(grid.rows.at(0).at(0), "B.THC") << "nothing is sorted either";
}

TEST_F(ScoreTableTest, BeginsAgainWithTheFirstOrderOfItsColumns)
{
    beginWithTwo();
    move(2, 0);
    beginWithTwo();
    EXPECT_EQ(table.columns().front(), ScoreColumn::FileName);
    EXPECT_EQ(grid.rows.at(0).at(0), "A.THC");
}

TEST_F(ScoreTableTest, SaysThatTheGridHasChangedEachTimeItIsShown)
{
    const unsigned before = grid.revision;
    beginWithTwo();
    const unsigned begun = grid.revision;
    EXPECT_NE(begun, before);
    move(0, 1);
    EXPECT_NE(grid.revision, begun);
}

TEST_F(ScoreTableTest, MovesColumnsWithoutRows)
{
    table.begin({});
    move(2, 0);
    EXPECT_EQ(grid.columns.front().heading, "Score");
    EXPECT_THAT(grid.rows, IsEmpty());
}

} // namespace
} // namespace tallyhoop
