// qt/page_lists.cpp - list boxes and grids: lazy views on snapshots of the model's rows; and pictures.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/widgets/empty_note.h"
#include "qt/widgets/grid_header.h"
#include "qt/widgets/grid_view.h"
#include "qt/widgets/picture_view.h"
#include "qt/widgets/rows_model.h"
#include "qt/widgets/rows_view.h"

namespace tallyhoop::qt {

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
    m_sync.mirror(
        list.selected, [view] { return view->selectedRow(); },
        [view](std::optional<int> row) { view->selectRow(row); });
    followNote(list.emptyNote, *view);

    view->rowChosen = [this, view, &list] {
        if (!m_sync.isPushing())
            run(view->selectedRow() ? list.chosen : std::function<void()>{});
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
    auto* view = new GridView{this};
    followCommonParts(grid, *view);
    // The cells first: changing them clears the current one.
    follow(grid.revision, [view, &grid](unsigned) { view->show(grid); });
    m_sync.mirror(
        grid.current, [view] { return view->currentCell(); },
        [view](std::optional<ui::GridCell> cell) { view->setCurrentCell(cell); });
    followNote(grid.emptyNote, *view);

    const auto press = [this, &grid](const QModelIndex& index) {
        if (!grid.cellPressed)
            return;
        run([&] { grid.cellPressed(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())); });
    };
    connect(view, &QTableView::pressed, this, press);
    // Two presses soon after one another tick a box and take the tick away again.
    connect(view, &QTableView::doubleClicked, this, [&grid, press](const QModelIndex& index) {
        if (grid.columns.at(static_cast<std::size_t>(index.column())).ticks)
            press(index);
    });
    view->rowReached = [this, &grid](std::size_t row) {
        if (grid.rowReached && !m_sync.isPushing())
            run([&] { grid.rowReached(row); });
    };
    view->header().columnPressed = [this, &grid](std::size_t column) {
        run([&] {
            if (grid.columnPressed)
                grid.columnPressed(column);
        });
    };
    view->header().columnReleased = [this, &grid](std::optional<std::size_t> column) {
        run([&] {
            if (grid.columnReleased)
                grid.columnReleased(column);
        });
    };
    return view;
}

PictureView* Page::add(ui::Picture& picture)
{
    auto* view = new PictureView{picture, this};
    followCommonParts(picture, *view);
    follow(picture.revision, [view](unsigned) { view->update(); });
    return view;
}

void Page::followNote(const std::string& note, QAbstractItemView& view)
{
    auto* shown = new EmptyNote{view};
    follow(note, [shown](const std::string& text) { shown->say(toQString(text)); });
}

} // namespace tallyhoop::qt
