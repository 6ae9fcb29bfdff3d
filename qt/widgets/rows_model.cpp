// qt/widgets/rows_model.cpp - converts a row when it is painted, so that 10,000 rows appear at once.
#include "qt/widgets/rows_model.h"

#include "qt/text.h"

#include <utility>

namespace tallyhoop::qt {

void RowsModel::setRows(std::vector<std::string> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return toQString(m_rows.at(static_cast<std::size_t>(index.row())));
}

} // namespace tallyhoop::qt
