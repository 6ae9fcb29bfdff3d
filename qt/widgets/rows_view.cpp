// qt/widgets/rows_view.cpp - a press that selects a row is reported once, and so is a click on the selected one.
#include "qt/widgets/rows_view.h"

#include <QItemSelectionModel>
#include <QMouseEvent>

namespace tallyhoop::qt {

RowsView::RowsView(QWidget* parent) : QListView{parent}
{
    setUniformItemSizes(true); // 10,000 rows are measured once
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListView::clicked, this, [this] {
        if (!m_changedByPress && rowChosen)
            rowChosen();
    });
}

std::optional<int> RowsView::selectedRow() const
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? std::nullopt : std::optional{selected.first().row()};
}

void RowsView::selectRow(std::optional<int> row)
{
    if (!row || *row < 0 || *row >= model()->rowCount()) {
        selectionModel()->clear();
        return;
    }
    const QModelIndex index = model()->index(*row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

void RowsView::mousePressEvent(QMouseEvent* event)
{
    m_changedByPress = false;
    QListView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && pressedAnywhere)
        pressedAnywhere();
}

void RowsView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    m_changedByPress = true;
    if (rowChosen)
        rowChosen();
}

} // namespace tallyhoop::qt
