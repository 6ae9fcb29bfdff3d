// tests/qt/page_grid_look_test.cpp - how a table looks: rows marked and pale, bars, the sorted heading, widths.
#include "qt/accessibility.h"
#include "qt/look.h"
#include "qt/sample_screen.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

struct LookedAt : Shown {
    LookedAt()
    {
        change([](ui::Grid& grid) {
            grid.columns = {{"Name", ui::Alignment::Left, 8, true}, {"First", ui::Alignment::Right, 10}};
            for (int row = 0; row < 50; ++row)
                grid.rows.push_back({"Player & Co. " + std::to_string(row), "50 %"});
            grid.wholeRows = true;
        });
        screen.grdScores.rowReached = [this](std::size_t row) {
            screen.log.push_back("reached " + std::to_string(row));
        };
        table().setFixedSize(400, 300);
        QApplication::processEvents();
    }

    void change(const std::function<void(ui::Grid&)>& how)
    {
        desk.run(screen, [&] {
            how(screen.grdScores);
            ++screen.grdScores.revision;
        });
    }

    QTableView& table() { return *page.scores; }
    QHeaderView& header() { return *table().horizontalHeader(); }
    QRect placeOf(int row, int column) { return table().visualRect(table().model()->index(row, column)); }

    /// The colour in a cell that differs most from its background.
    QColor textColourOf(int row, int column)
    {
        const QRect place = placeOf(row, column).adjusted(2, 2, -2, -5);
        const QImage picture = table().viewport()->grab(place).toImage();
        QColor found = picture.pixelColor(0, 0);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (const QColor colour = picture.pixelColor(x, y);
                    look::contrast(colour, backgroundOf(row)) > look::contrast(found, backgroundOf(row)))
                    found = colour;
        return found;
    }

    QColor backgroundOf(int row)
    {
        return table().palette().color(row % 2 == 0 ? QPalette::Base : QPalette::AlternateBase);
    }

    int pixelsOf(const QColor& colour, const QImage& picture)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == colour;
        return count;
    }
};

class PageGridColours : public testing::TestWithParam<ColourScheme>
{
};

} // namespace

TEST_P(PageGridColours, MutedRowsArePalerAndCanStillBeRead)
{
    const UsedColours colours{GetParam()};
    LookedAt shown;
    shown.change([](ui::Grid& grid) { grid.muted = {false, false, true, true}; });
    for (const int row : {2, 3}) { // on either of the two backgrounds
        const double pale = look::contrast(shown.textColourOf(row, 0), shown.backgroundOf(row));
        EXPECT_GE(pale, 4.5) << row;
        EXPECT_LT(pale, look::contrast(shown.textColourOf(row - 2, 0), shown.backgroundOf(row - 2))) << row;
    }
    EXPECT_EQ(shown.textColourOf(4, 0), shown.textColourOf(0, 0)) << "those left out are not muted";
}

TEST_P(PageGridColours, ABarIsAsLongAsItsPart)
{
    const UsedColours colours{GetParam()};
    LookedAt shown;
    shown.change([](ui::Grid& grid) { grid.bars = ui::GridBars{1, {1, 0.5, 0}}; });
    const QColor bar = shown.table().palette().color(QPalette::Link);
    const auto barIn = [&](int row, int column) {
        return shown.pixelsOf(bar, shown.table().viewport()->grab(shown.placeOf(row, column)).toImage());
    };
    EXPECT_GT(barIn(0, 1), 3 * 80);
    EXPECT_NEAR(barIn(1, 1), barIn(0, 1) / 2, 6);
    EXPECT_EQ(barIn(2, 1), 0);
    EXPECT_EQ(barIn(3, 1), 0) << "there is no part for this row";
    EXPECT_EQ(barIn(0, 0), 0) << "another column";
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, PageGridColours, testing::Values(ColourScheme::Light, ColourScheme::Dark),
                         [](const auto& colours) { return colourName(colours); });

TEST(PageGridRows, AreMarkedWholeByMouseByKeyAndByTheFocusAlone)
{
    LookedAt shown;
    shown.table().setFocus();
    const auto marked = [&] { return shown.table().selectionModel()->selectedRows(); };
    ASSERT_EQ(marked().size(), 1) << "Qt makes the first cell the current one";
    EXPECT_EQ(marked().front().row(), 0);
    QTest::keyClick(&shown.table(), Qt::Key_Down);
    ASSERT_EQ(marked().size(), 1);
    EXPECT_EQ(marked().front().row(), 1);
    QTest::keyClick(&shown.table(), Qt::Key_Right);
    QTest::mouseClick(shown.table().viewport(), Qt::LeftButton, {}, shown.placeOf(3, 1).center());
    ASSERT_EQ(marked().size(), 1);
    EXPECT_EQ(marked().front().row(), 3);
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"reached 0", "reached 1", "reached 3"}))
        << "another column is no other row";
}

TEST(PageGridRows, AreNotReachedByThePersonWhenTheProgramGoesThere)
{
    LookedAt shown;
    shown.screen.grdScores.current = ui::GridCell{5, 0};
    shown.desk.push();
    EXPECT_EQ(shown.table().currentIndex().row(), 5);
    EXPECT_TRUE(shown.screen.log.empty());
}

TEST(PageGridRows, StayWhereTheyWereScrolledToWhenTheirCellsChange)
{
    LookedAt shown;
    shown.desk.run(shown.screen, [&] { shown.screen.grdScores.current = ui::GridCell{0, 0}; });
    shown.table().verticalScrollBar()->setValue(20);
    shown.change([](ui::Grid& grid) { grid.rows[30][0] = "New"; });
    EXPECT_EQ(shown.table().verticalScrollBar()->value(), 20);
    EXPECT_EQ(shown.table().model()->index(30, 0).data().toString(), QStringLiteral("New"));
}

TEST(PageGridHeading, TellsHowTheRowsAreSorted)
{
    LookedAt shown;
    const auto spoken = [&](int column) {
        return shown.table().model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(1), QString{});
    const QImage plain = shown.header().grab().toImage();
    shown.change([](ui::Grid& grid) { grid.sorted = ui::GridSort{1, false}; });
    EXPECT_EQ(spoken(1), QStringLiteral("First, sorted, descending"));
    EXPECT_EQ(spoken(0), QString{});
    const QImage down = shown.header().grab().toImage();
    EXPECT_NE(down, plain) << "there is an arrow";
    shown.change([](ui::Grid& grid) { grid.sorted = ui::GridSort{1, true}; });
    EXPECT_EQ(spoken(1), QStringLiteral("First, sorted, ascending"));
    const QImage up = shown.header().grab().toImage();
    EXPECT_NE(up, down) << "it points the other way";
    EXPECT_NE(up, plain);
    EXPECT_EQ(shown.table().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("First"));
}

TEST(PageGridColumns, ShareTheRoomSoThatNoneIsHidden)
{
    LookedAt shown;
    const int first = shown.header().sectionSize(1);
    EXPECT_EQ(shown.header().length(), shown.table().viewport()->width());
    shown.table().setFixedSize(500, 300);
    QApplication::processEvents();
    EXPECT_EQ(shown.header().sectionSize(1), first) << "the other one grows";
    EXPECT_EQ(shown.header().length(), shown.table().viewport()->width());
    shown.table().setFixedSize(shown.table().minimumSizeHint().width(), 300);
    QApplication::processEvents();
    EXPECT_EQ(shown.table().horizontalScrollBar()->maximum(), 0);
}

TEST(PageGridColumns, ThatGrowGetEqualSharesOfTheRoom)
{
    LookedAt shown;
    shown.change([](ui::Grid& grid) { grid.columns[1].grows = true; });
    const int least = shown.table().minimumSizeHint().width();
    const auto widthsAt = [&shown](int width) {
        shown.table().setFixedSize(width, 300);
        QApplication::processEvents();
        return std::pair{shown.header().sectionSize(0), shown.header().sectionSize(1)};
    };
    const auto [name, first] = widthsAt(least);
    EXPECT_EQ(widthsAt(least + 100), (std::pair{name + 50, first + 50}));
    EXPECT_EQ(widthsAt(least + 101), (std::pair{name + 51, first + 50})) << "no pixel is left over";
}
