// qt/widgets/grid_delegate.h - paints the cells of a grid: paler rows, and bars below the texts.
#pragma once

#include <QStyledItemDelegate>
#include <optional>

namespace tallyhoop::qt {

class GridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    std::optional<int> wrapping; ///< the only column whose texts take several lines, where the view wraps words

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace tallyhoop::qt
