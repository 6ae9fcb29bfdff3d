// tests/qt/page_lists_test.cpp - lists and tables, by mouse and by keyboard.
#include "qt/sample_screen.h"

#include "qt/widgets/empty_note.h"

#include <QAccessible>
#include <QHeaderView>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

struct Listed : Shown {
    Listed()
    {
        desk.run(screen, [this] { screen.lstRows.rows = {"ADAMS, B", "SMITH, J", "<b>Z</b>"}; });
        screen.lstRows.chosen = [this] { screen.log.push_back("chosen " + screen.lstRows.selectedText()); };
        screen.lstRows.doubleClicked = [this] { screen.log.emplace_back("double"); };
    }

    QPoint placeOf(int row) { return page.rows->visualRect(page.rows->model()->index(row, 0)).center(); }
};

struct Gridded : Shown {
    Gridded()
    {
        desk.run(screen, [this] {
            ui::Grid& grid = screen.grdScores;
            grid.columns = {{"Name", ui::Alignment::Left, 12}, {"Score", ui::Alignment::Right, 8}, {"Max", {}, 8}};
            grid.rows = {{"Adams", "10", "90"}, {"Baker", "20", "80"}};
            ++grid.revision;
        });
        screen.grdScores.cellPressed = [this](std::size_t row, std::size_t column) {
            screen.log.push_back("cell " + std::to_string(row) + "," + std::to_string(column));
        };
        screen.grdScores.columnPressed = [this](std::size_t column) {
            screen.log.push_back("press " + std::to_string(column));
        };
        screen.grdScores.columnReleased = [this](std::optional<std::size_t> column) {
            screen.log.push_back(column ? "release " + std::to_string(*column) : "release outside");
        };
        QTest::qWait(0);
    }

    QWidget* heading() { return page.scores->horizontalHeader()->viewport(); }
    QPoint middleOf(int column)
    {
        const QHeaderView* header = page.scores->horizontalHeader();
        return {header->sectionViewportPosition(column) + 20, header->height() / 2};
    }
};

} // namespace

TEST(PageList, ShowsTheRowsAndTheSelection)
{
    Listed shown;
    EXPECT_EQ(shown.page.rows->model()->rowCount(), 3);
    EXPECT_EQ(shown.page.rows->model()->index(2, 0).data().toString(), QStringLiteral("<b>Z</b>"));
    shown.desk.run(shown.screen, [&] { shown.screen.lstRows.selected = 1; });
    EXPECT_EQ(shown.page.rows->currentIndex().row(), 1);
    shown.desk.run(shown.screen, [&] { shown.screen.lstRows.selected.reset(); });
    EXPECT_FALSE(shown.page.rows->selectionModel()->hasSelection());
    EXPECT_TRUE(shown.screen.log.empty()); // a selection by the program is no choice of the person
}

TEST(PageList, AClickChoosesARowAndASecondClickChoosesItAgain)
{
    Listed shown;
    QTest::mouseClick(shown.page.rows->viewport(), Qt::LeftButton, {}, shown.placeOf(1));
    EXPECT_EQ(shown.screen.lstRows.selected, 1);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"chosen SMITH, J"});
    QTest::mouseClick(shown.page.rows->viewport(), Qt::LeftButton, {}, shown.placeOf(1));
    EXPECT_EQ(shown.screen.log.size(), 2u);
}

TEST(PageList, ADoubleClickIsReported)
{
    Listed shown;
    QTest::mouseClick(shown.page.rows->viewport(), Qt::LeftButton, {}, shown.placeOf(0));
    QTest::mouseDClick(shown.page.rows->viewport(), Qt::LeftButton, {}, shown.placeOf(0));
    EXPECT_EQ(shown.screen.log.back(), "double");
}

TEST(PageList, TheSelectionStaysWithItsIndexWhenTheRowsChange)
{
    Listed shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.lstRows.rows = {"A", "B", "C", "D"};
        shown.screen.lstRows.selected = 3;
    });
    EXPECT_EQ(shown.page.rows->currentIndex().row(), 3);
    shown.desk.run(shown.screen, [&] { shown.screen.lstRows.rows.erase(shown.screen.lstRows.rows.begin()); });
    EXPECT_FALSE(shown.page.rows->selectionModel()->hasSelection()); // there is no fourth row any more
}

TEST(PageList, TheFirstArrowKeySelectsTheFirstRow)
{
    Listed shown;
    shown.page.rows->setFocus();
    QTest::keyClick(shown.page.rows, Qt::Key_Down);
    EXPECT_EQ(shown.screen.lstRows.selected, 0);
    QTest::keyClick(shown.page.rows, Qt::Key_Down);
    EXPECT_EQ(shown.screen.lstRows.selected, 1);
}

TEST(PageList, TenThousandRowsAreShownAtOnce)
{
    Listed shown;
    std::vector<std::string> rows(10000);
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = "Player " + std::to_string(i);
    shown.desk.run(shown.screen, [&] {
        shown.screen.lstRows.rows = rows;
        shown.screen.lstRows.selected = 9999;
    });
    EXPECT_EQ(shown.page.rows->model()->rowCount(), 10000);
    EXPECT_EQ(shown.page.rows->currentIndex().row(), 9999);
    EXPECT_TRUE(
        shown.page.rows->viewport()->rect().intersects(shown.page.rows->visualRect(shown.page.rows->currentIndex())));
}

TEST(PageGrid, ShowsHeadingsAndCells)
{
    Gridded shown;
    const QAbstractItemModel& model = *shown.page.scores->model();
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Score"));
    EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("Baker"));
    EXPECT_EQ(model.index(1, 1).data(Qt::TextAlignmentRole).toInt(),
              static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
}

TEST(PageGrid, APressOnACellIsReportedOnce)
{
    Gridded shown;
    const QRect cell = shown.page.scores->visualRect(shown.page.scores->model()->index(1, 2));
    QTest::mouseClick(shown.page.scores->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"cell 1,2"});
}

TEST(PageGrid, DraggingAHeadingOnlyReportsWhereItWentTo)
{
    Gridded shown;
    QTest::mousePress(shown.heading(), Qt::LeftButton, {}, shown.middleOf(1));
    QTest::mouseMove(shown.heading(), shown.middleOf(0));
    QTest::mouseRelease(shown.heading(), Qt::LeftButton, {}, shown.middleOf(0));
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"press 1", "release 0"}));
    EXPECT_EQ(shown.page.scores->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    EXPECT_EQ(shown.page.scores->horizontalHeader()->visualIndex(1), 1);
}

TEST(PageGrid, AHeadingDroppedOnACellGoesToThatColumnAndOutsideNowhere)
{
    Gridded shown;
    QTest::mousePress(shown.heading(), Qt::LeftButton, {}, shown.middleOf(0));
    QTest::mouseRelease(shown.heading(), Qt::LeftButton, {}, shown.middleOf(2) + QPoint{0, 60});
    QTest::mousePress(shown.heading(), Qt::LeftButton, {}, shown.middleOf(0));
    QTest::mouseRelease(shown.heading(), Qt::LeftButton, {}, QPoint{-40, -500});
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"press 0", "release 2", "press 0", "release outside"}));
}

TEST(PageGrid, TheKeyboardPressesCellsAndMovesColumns)
{
    Gridded shown;
    shown.page.scores->setFocus();
    shown.page.scores->setCurrentIndex(shown.page.scores->model()->index(0, 1));
    QTest::keyClick(shown.page.scores, Qt::Key_Space);
    QTest::keyClick(shown.page.scores, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"cell 0,1", "press 1", "release 0"}));
    EXPECT_EQ(shown.page.scores->currentIndex().column(), 0);
}

TEST(PageGrid, TheCurrentCellIsKeptInSyncBothWays)
{
    Gridded shown;
    shown.page.scores->setCurrentIndex(shown.page.scores->model()->index(1, 2));
    shown.desk.run(shown.screen, [] {});
    EXPECT_EQ(shown.screen.grdScores.current, (ui::GridCell{1, 2}));
    shown.desk.run(shown.screen, [&] { shown.screen.grdScores.current = ui::GridCell{0, 1}; });
    EXPECT_EQ(shown.page.scores->currentIndex(), shown.page.scores->model()->index(0, 1));
    shown.desk.run(shown.screen, [&] { ++shown.screen.grdScores.revision; }); // shown anew
    EXPECT_EQ(shown.page.scores->currentIndex(), shown.page.scores->model()->index(0, 1));
}

TEST(EmptyNote, IsVisibleWhileThereAreNoRows)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.lstRows.emptyNote = "Nobody <yet> & nothing";
        shown.screen.grdScores.emptyNote = "No scores";
    });
    auto* const inList = shown.page.rows->findChild<EmptyNote*>();
    auto* const inTable = shown.page.scores->findChild<EmptyNote*>();
    EXPECT_TRUE(inList->isVisible());
    EXPECT_TRUE(inTable->isVisible());
    EXPECT_EQ(inList->textFormat(), Qt::PlainText);
    EXPECT_EQ(inList->text(), QStringLiteral("Nobody <yet> & nothing"));
    EXPECT_EQ(inList->size(), shown.page.rows->viewport()->size());

    shown.desk.run(shown.screen, [&] {
        shown.screen.lstRows.rows = {"ADAMS, B"};
        shown.screen.grdScores.columns = {{"Score"}};
        shown.screen.grdScores.rows = {{"80"}};
        ++shown.screen.grdScores.revision;
    });
    EXPECT_FALSE(inList->isVisible());
    EXPECT_FALSE(inTable->isVisible());

    shown.desk.run(shown.screen, [&] { shown.screen.lstRows.emptyNote = "All have left."; });
    EXPECT_FALSE(inList->isVisible()) << "there is a row now";
    EXPECT_EQ(shown.page.rows->accessibleDescription(), QString{});
    shown.desk.run(shown.screen, [&] { shown.screen.lstRows.rows.clear(); });
    EXPECT_TRUE(inList->isVisible());
    EXPECT_EQ(inList->text(), QStringLiteral("All have left."));
    EXPECT_TRUE(shown.page.rows->accessibleDescription().startsWith(QStringLiteral("All have left.")));
}

TEST(EmptyNote, IsNotThereWithoutAText)
{
    Shown shown;
    EXPECT_FALSE(shown.page.rows->findChild<EmptyNote*>()->isVisible());
}

TEST(PageGrid, ShowsBoxesAndSaysWhetherTheyAreTicked)
{
    Gridded shown;
    shown.desk.run(shown.screen, [&] {
        ui::Grid& grid = shown.screen.grdScores;
        grid.columns = {{.heading = "Import", .width = 3, .ticks = true}, {.heading = "Name", .width = 8}};
        grid.rows = {{ui::kTicked, "Adams"}, {ui::kNotTicked, "Baker"}, {"", "Clark"}};
        ++grid.revision;
    });
    const QAbstractItemModel& cells = *shown.page.scores->model();
    EXPECT_EQ(cells.index(0, 0).data(Qt::CheckStateRole), QVariant{Qt::Checked});
    EXPECT_EQ(cells.index(1, 0).data(Qt::CheckStateRole), QVariant{Qt::Unchecked});
    EXPECT_FALSE(cells.index(2, 0).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(cells.index(0, 1).data(Qt::CheckStateRole).isValid());
    EXPECT_EQ(cells.index(0, 0).data().toString(), QString{}) << "a text beside the box";
    QAccessibleTableInterface& table = *QAccessible::queryAccessibleInterface(shown.page.scores)->tableInterface();
    const QAccessibleInterface& ticked = *table.cellAt(0, 0);
    const QAccessibleInterface& notTicked = *table.cellAt(1, 0);
    EXPECT_EQ(ticked.text(QAccessible::Name), QStringLiteral("ticked"));
    EXPECT_TRUE(ticked.state().checkable);
    EXPECT_TRUE(ticked.state().checked);
    EXPECT_EQ(notTicked.text(QAccessible::Name), QStringLiteral("not ticked"));
    EXPECT_FALSE(notTicked.state().checked);
    EXPECT_FALSE(table.cellAt(2, 0)->state().checkable);
}
