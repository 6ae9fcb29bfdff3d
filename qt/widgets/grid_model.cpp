// qt/widgets/grid_model.cpp - converts a cell when it is painted, so that 10,000 rows appear at once.
#include "qt/widgets/grid_model.h"

#include "qt/text.h"

namespace tallyhoop::qt {

namespace {

int toQt(ui::Alignment alignment)
{
    switch (alignment) {
    case ui::Alignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case ui::Alignment::Centre:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case ui::Alignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

void GridModel::show(const ui::Grid& grid)
{
    beginResetModel();
    m_columns = grid.columns;
    m_rows = grid.rows;
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto column = static_cast<std::size_t>(index.column());
    if (role == Qt::TextAlignmentRole)
        return toQt(m_columns.at(column).alignment);
    const std::vector<std::string>& row = m_rows.at(static_cast<std::size_t>(index.row()));
    if (column >= row.size())
        return {};
    if (role == Qt::DisplayRole)
        return toQString(row[column]);
    if (role == Qt::ToolTipRole)
        return plainToolTip(toQString(row[column]));
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ui::GridColumn& column = m_columns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return toQString(column.heading).trimmed();
    if (role == Qt::TextAlignmentRole)
        return toQt(column.alignment);
    return {};
}

} // namespace tallyhoop::qt
