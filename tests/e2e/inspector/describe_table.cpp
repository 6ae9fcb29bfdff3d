// tests/e2e/inspector/describe_table.cpp - lists and tables, cell by cell, in the order in which they are shown.
#include "describe.h"

#include <QHeaderView>
#include <QListView>
#include <QTableView>

namespace inspector {
namespace {

QJsonArray onScreen(const QWidget* widget, const QRect& rect)
{
    const QPoint corner = widget->mapToGlobal(rect.topLeft());
    return {corner.x(), corner.y(), rect.width(), rect.height()};
}

QJsonArray headingsOf(const QTableView* table)
{
    QJsonArray headings;
    const QHeaderView* header = table->horizontalHeader();
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        const QRect rect(header->sectionViewportPosition(column), 0, header->sectionSize(column), header->height());
        headings.append(
            QJsonObject{{QStringLiteral("text"), table->model()->headerData(column, Qt::Horizontal).toString()},
                        {QStringLiteral("rect"), onScreen(header->viewport(), rect)}});
    }
    return headings;
}

/// Of a box what a screen reader says.
QString textOf(const QModelIndex& cell)
{
    return cell.data(cell.data(Qt::CheckStateRole).isValid() ? Qt::AccessibleTextRole : Qt::DisplayRole).toString();
}

} // namespace

QJsonObject describeTable(QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    if (view == nullptr || view->model() == nullptr) {
        return {{QStringLiteral("found"), false}};
    }
    const auto* table = qobject_cast<const QTableView*>(widget);
    QJsonArray rows;
    QJsonArray rects;
    const QAbstractItemModel& model = *view->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QJsonArray cells;
        QJsonArray places;
        for (int place = 0; place < model.columnCount(); ++place) {
            const int column = table != nullptr ? table->horizontalHeader()->logicalIndex(place) : place;
            const QModelIndex cell = model.index(row, column);
            cells.append(textOf(cell));
            places.append(onScreen(view->viewport(), view->visualRect(cell)));
        }
        rows.append(cells);
        rects.append(places);
    }
    QJsonObject description{
        {QStringLiteral("found"), true},
        {QStringLiteral("rows"), rows},
        {QStringLiteral("rects"), rects},
        {QStringLiteral("current"), view->selectionModel()->hasSelection() ? view->currentIndex().row() : -1}};
    if (table != nullptr) {
        description.insert(QStringLiteral("headings"), headingsOf(table));
    }
    return description;
}

} // namespace inspector
