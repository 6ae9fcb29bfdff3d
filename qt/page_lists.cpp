// qt/page_lists.cpp - list boxes and grids: lazy views on snapshots of the model's rows.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/widgets/grid_header.h"
#include "qt/widgets/grid_model.h"
#include "qt/widgets/rows_model.h"
#include "qt/widgets/rows_view.h"

#include <QHeaderView>
#include <QItemSelectionModel>

namespace tallyhoop::qt {

namespace {

std::optional<int> selectedRow(const QListView& view)
{
    const QModelIndexList selected = view.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? std::nullopt : std::optional{selected.first().row()};
}

void selectRow(QListView& view, std::optional<int> row)
{
    if (!row || *row < 0 || *row >= view.model()->rowCount()) {
        view.selectionModel()->clear();
        return;
    }
    const QModelIndex index = view.model()->index(*row, 0);
    view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    view.scrollTo(index);
}

constexpr int kCellPadding = 16; ///< on both sides of a cell together, in pixels

void showColumns(QTableView& view, const ui::Grid& grid)
{
    const QFontMetrics metrics{view.font()};
    QHeaderView& header = *view.horizontalHeader();
    for (std::size_t c = 0; c < grid.columns.size(); ++c) {
        const int heading = metrics.horizontalAdvance(toQString(grid.columns[c].heading).trimmed());
        const int cells = metrics.horizontalAdvance(QLatin1Char{'0'}) * grid.columns[c].width;
        header.resizeSection(static_cast<int>(c), std::max(heading, cells) + kCellPadding);
    }
}

} // namespace

QListView* Page::add(ui::ListBox& list)
{
    auto* view = new RowsView{this};
    auto* rows = new RowsModel{view};
    view->setModel(rows);
    if (list.fixedPitch)
        view->setFont(look::fixedFont());
    followCommonParts(list, *view);
    follow(list.background, [view](const std::optional<ui::Colour>& background) {
        QPalette palette;
        if (background)
            look::setBackground(palette, look::toQColor(*background));
        view->setPalette(palette);
    });
    // The rows first: changing them clears the selection.
    onPush([&list, rows] {
        if (rows->rows() != list.rows)
            rows->setRows(list.rows);
    });
    mirror(
        list.selected, [view] { return selectedRow(*view); },
        [view](std::optional<int> row) { selectRow(*view, row); });

    view->rowChosen = [this, view, &list] {
        if (!m_pushing)
            run(selectedRow(*view) ? list.chosen : std::function<void()>{});
    };
    view->pressedAnywhere = [this, &list] {
        if (list.pressed)
            run(list.pressed);
    };
    connect(view, &QListView::doubleClicked, this, [this, &list] { run(list.doubleClicked); });
    return view;
}

QTableView* Page::add(ui::Grid& grid)
{
    auto* view = new QTableView{this};
    auto* header = new GridHeader;
    auto* cells = new GridModel{view};
    view->setModel(cells);
    view->setHorizontalHeader(header);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(QFontMetrics{view->font()}.height() + look::kGap);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setAlternatingRowColors(true);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    followCommonParts(grid, *view);
    follow(grid.revision, [view, cells, &grid](unsigned) {
        const QModelIndex before = view->currentIndex();
        cells->show(grid);
        showColumns(*view, grid);
        if (before.isValid())
            view->setCurrentIndex(cells->index(before.row(), before.column()));
    });
    connect(view, &QTableView::pressed, this, [this, &grid](const QModelIndex& index) { pressCell(grid, index); });
    header->columnPressed = [this, &grid](std::size_t column) {
        run([&] {
            if (grid.columnPressed)
                grid.columnPressed(column);
        });
    };
    header->columnReleased = [this, &grid](std::optional<std::size_t> column) {
        run([&] {
            if (grid.columnReleased)
                grid.columnReleased(column);
        });
    };
    return view;
}

void Page::pressCell(ui::Grid& grid, const QModelIndex& index)
{
    if (!index.isValid() || !grid.cellPressed)
        return;
    run([&] { grid.cellPressed(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())); });
}

bool Page::filterGridKey(ui::Grid& grid, QTableView& view, int key, bool moveColumn)
{
    const QModelIndex current = view.currentIndex();
    if (!current.isValid())
        return false;
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        pressCell(grid, current);
        return true;
    }
    const int target = current.column() + (key == Qt::Key_Left ? -1 : 1);
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!moveColumn || !sideways || target < 0 || target >= view.model()->columnCount() || !grid.columnPressed ||
        !grid.columnReleased)
        return false;
    run([&] {
        grid.columnPressed(static_cast<std::size_t>(current.column()));
        grid.columnReleased(static_cast<std::size_t>(target));
    });
    view.setCurrentIndex(view.model()->index(current.row(), target));
    return true;
}

} // namespace tallyhoop::qt
