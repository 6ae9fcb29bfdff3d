// qt/widgets/grid_view.cpp - columns as wide as their headings and cells, rows as high as a line, or as a text that
// wraps.
#include "qt/widgets/grid_view.h"

#include "qt/look.h"
#include "qt/text.h"
#include "qt/widgets/grid_delegate.h"
#include "qt/widgets/grid_header.h"
#include "qt/widgets/grid_model.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>
#include <numeric>

namespace tallyhoop::qt {

namespace {

constexpr int kCellPadding = 13; ///< on both sides of a cell together, in pixels

} // namespace

GridView::GridView(QWidget* parent)
    : QTableView{parent}, m_delegate{*new GridDelegate{this}}, m_header{*new GridHeader}, m_cells{*new GridModel{this}}
{
    setModel(&m_cells);
    setItemDelegate(&m_delegate);
    setHorizontalHeader(&m_header);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    measure();
}

void GridView::show(const ui::Grid& grid)
{
    setSelectionBehavior(grid.wholeRows ? SelectRows : SelectItems);
    m_cells.show(grid);
    m_header.setSorted(grid.sorted);
    if (grid.columns != m_columns) {
        m_columns = grid.columns;
        measure();
    }
    fitRows();
}

void GridView::measure()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + look::kGap);
    m_widths.clear();
    m_growing.clear();
    for (std::size_t c = 0; c < m_columns.size(); ++c) {
        const int heading = fontMetrics().horizontalAdvance(toQString(m_columns[c].heading).trimmed());
        const int cells = fontMetrics().horizontalAdvance(QLatin1Char{'0'}) * m_columns[c].width;
        m_widths.push_back(std::max(heading, cells) + kCellPadding);
        if (m_columns[c].grows)
            m_growing.push_back(static_cast<int>(c));
    }
    m_delegate.wrapping = m_growing.empty() ? std::nullopt : std::optional{m_growing.back()};
    m_header.setStretchLastSection(m_growing.empty());
    shareRoom();
    updateGeometry();
}

void GridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

int GridView::widthOfColumns() const { return std::accumulate(m_widths.begin(), m_widths.end(), 0); }

QSize GridView::minimumSizeHint() const
{
    QSize least = QTableView::minimumSizeHint();
    if (!m_growing.empty())
        least.setWidth(widthOfColumns() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth());
    return least;
}

void GridView::shareRoom()
{
    const int left = std::max(0, viewport()->width() - widthOfColumns());
    for (std::size_t c = 0; c < m_widths.size(); ++c)
        m_header.resizeSection(static_cast<int>(c), m_widths[c]);
    const int growing = static_cast<int>(m_growing.size());
    for (int i = 0; i < growing; ++i) { // what cannot be shared goes to the first ones
        const int column = m_growing[static_cast<std::size_t>(i)];
        m_header.resizeSection(column, m_widths[static_cast<std::size_t>(column)] + (left + growing - 1 - i) / growing);
    }
    fitRows();
}

void GridView::fitRows()
{
    if (!m_delegate.wrapping || !wordWrap())
        return;
    const int column = *m_delegate.wrapping;
    constexpr int kMostLines = 6;
    const QFontMetrics metrics = fontMetrics();
    const int oneLine = metrics.height() + look::kGap;
    const QRect room{0, 0, columnWidth(column) - kCellPadding, metrics.lineSpacing() * kMostLines};
    for (int row = 0; row < m_cells.rowCount(); ++row) {
        const QString text = m_cells.index(row, column).data().toString();
        int height = oneLine;
        if (metrics.horizontalAdvance(text) > room.width())
            height = std::min(metrics.boundingRect(room, Qt::TextWordWrap, text).height(), room.height()) + look::kGap;
        if (rowHeight(row) != height)
            setRowHeight(row, height);
    }
}

void GridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    shareRoom();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() < 0 || current.row() == previous.row())
        return;
    // Qt makes a cell the current one when the table gets the focus, but does not mark it.
    if (selectionBehavior() == SelectRows && !selectionModel()->isSelected(current))
        selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (rowReached)
        rowReached(static_cast<std::size_t>(current.row()));
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
