// qt/widgets/rows_view.cpp - a press that selects a row is reported once, and so is a click on the selected one.
#include "qt/widgets/rows_view.h"

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
