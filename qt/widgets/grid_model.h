// qt/widgets/grid_model.h - the cells of a grid, as a lazy view reads them.
#pragma once

#include "ui/control.h"

#include <QAbstractTableModel>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::qt {

class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    static constexpr int kMutedRole = Qt::UserRole;   ///< bool: the row's text is paler
    static constexpr int kBarRole = Qt::UserRole + 1; ///< double 0..1: the length of a bar; 0 = none

    /// Takes a snapshot of the grid. As long as it has as many rows and the same columns, cells only change: whoever
    /// reads or scrolls the table stays where they are.
    void show(const ui::Grid& grid);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void take(const ui::Grid& grid);
    double barIn(const QModelIndex& index) const;
    bool isBox(const QModelIndex& index) const;

    std::vector<ui::GridColumn> m_columns;
    std::vector<std::vector<std::string>> m_rows;
    std::optional<ui::GridSort> m_sorted;
    std::vector<bool> m_muted;
    std::optional<ui::GridBars> m_bars;
};

} // namespace tallyhoop::qt
