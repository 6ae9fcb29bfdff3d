// qt/widgets/grid_view.cpp - columns as wide as their headings and cells, rows as high as a line.
#include "qt/widgets/grid_view.h"

#include "qt/look.h"
#include "qt/text.h"
#include "qt/widgets/grid_header.h"
#include "qt/widgets/grid_model.h"

#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr int kCellPadding = 16; ///< on both sides of a cell together, in pixels

} // namespace

GridView::GridView(QWidget* parent) : QTableView{parent}, m_header{*new GridHeader}, m_cells{*new GridModel{this}}
{
    setModel(&m_cells);
    setHorizontalHeader(&m_header);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + look::kGap);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
}

void GridView::show(const ui::Grid& grid)
{
    m_cells.show(grid);
    for (std::size_t c = 0; c < grid.columns.size(); ++c) {
        const int heading = fontMetrics().horizontalAdvance(toQString(grid.columns[c].heading).trimmed());
        const int cells = fontMetrics().horizontalAdvance(QLatin1Char{'0'}) * grid.columns[c].width;
        m_header.resizeSection(static_cast<int>(c), std::max(heading, cells) + kCellPadding);
    }
}

std::optional<ui::GridCell> GridView::currentCell() const
{
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return std::nullopt;
    return ui::GridCell{static_cast<std::size_t>(current.row()), static_cast<std::size_t>(current.column())};
}

void GridView::setCurrentCell(std::optional<ui::GridCell> cell)
{
    setCurrentIndex(cell ? m_cells.index(static_cast<int>(cell->row), static_cast<int>(cell->column)) : QModelIndex{});
}

} // namespace tallyhoop::qt
