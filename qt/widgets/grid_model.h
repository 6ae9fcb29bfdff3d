// qt/widgets/grid_model.h - the cells of a grid, as a lazy view reads them.
#pragma once

#include "ui/control.h"

#include <QAbstractTableModel>
#include <string>
#include <vector>

namespace tallyhoop::qt {

class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Takes a snapshot of the grid.
    void show(const ui::Grid& grid);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ui::GridColumn> m_columns;
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace tallyhoop::qt
