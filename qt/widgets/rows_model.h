// qt/widgets/rows_model.h - the rows of a list box, as a lazy view reads them.
#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace tallyhoop::qt {

class RowsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    const std::vector<std::string>& rows() const { return m_rows; }
    void setRows(std::vector<std::string> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<std::string> m_rows;
};

} // namespace tallyhoop::qt
