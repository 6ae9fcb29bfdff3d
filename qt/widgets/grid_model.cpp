// qt/widgets/grid_model.cpp - converts a cell when it is painted, so that 10,000 rows appear at once.
#include "qt/widgets/grid_model.h"

#include "qt/text.h"

#include <algorithm>

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

/// @returns what a box is, for one of Qt's roles
QVariant boxOf(const std::string& tick, int role)
{
    if (role == Qt::CheckStateRole)
        return tick == ui::kTicked ? Qt::Checked : Qt::Unchecked;
    return role == Qt::AccessibleTextRole ? QVariant{toQString(tick)} : QVariant{};
}

QString sortedInWords(bool ascending)
{
    return ascending ? QStringLiteral(", sorted, ascending") : QStringLiteral(", sorted, descending");
}

} // namespace

void GridModel::show(const ui::Grid& grid)
{
    if (grid.columns != m_columns || grid.rows.size() != m_rows.size() || m_rows.empty()) {
        beginResetModel();
        take(grid);
        endResetModel();
        return;
    }
    const bool isSortedAnew = grid.sorted != m_sorted;
    take(grid);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (isSortedAnew)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void GridModel::take(const ui::Grid& grid)
{
    m_columns = grid.columns;
    m_rows = grid.rows;
    m_sorted = grid.sorted;
    m_muted = grid.muted;
    m_bars = grid.bars;
}

double GridModel::barIn(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const bool isThere =
        m_bars && m_bars->column == static_cast<std::size_t>(index.column()) && row < m_bars->parts.size();
    return isThere ? std::clamp(m_bars->parts[row], 0.0, 1.0) : 0;
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
    if (role == kMutedRole)
        return static_cast<std::size_t>(index.row()) < m_muted.size() && m_muted[static_cast<std::size_t>(index.row())];
    if (role == kBarRole)
        return barIn(index);
    const std::vector<std::string>& row = m_rows.at(static_cast<std::size_t>(index.row()));
    if (column >= row.size())
        return {};
    if (isBox(index))
        return boxOf(row[column], role);
    if (role == Qt::DisplayRole)
        return toQString(row[column]);
    if (role == Qt::ToolTipRole)
        return plainToolTip(toQString(row[column]));
    return {};
}

bool GridModel::isBox(const QModelIndex& index) const
{
    const auto column = static_cast<std::size_t>(index.column());
    const std::vector<std::string>& row = m_rows.at(static_cast<std::size_t>(index.row()));
    return m_columns.at(column).ticks && column < row.size() && !row[column].empty();
}

/// That a box can be ticked is for assistive tools: what happens is the screen's decision.
Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
    return index.isValid() && isBox(index) ? plain | Qt::ItemIsUserCheckable : plain;
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
    if (role == Qt::AccessibleTextRole && m_sorted && m_sorted->column == static_cast<std::size_t>(section))
        return toQString(column.heading).trimmed() + sortedInWords(m_sorted->ascending);
    return {};
}

} // namespace tallyhoop::qt
