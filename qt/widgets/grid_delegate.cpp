// qt/widgets/grid_delegate.cpp - what the model says of a row is translated into colours of the palette while painting.
#include "qt/widgets/grid_delegate.h"

#include "qt/look.h"
#include "qt/widgets/grid_model.h"

#include <QPainter>

namespace tallyhoop::qt {

namespace {

constexpr int kBar = 3; ///< height, in device-independent pixels

} // namespace

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != wrapping)
        option->features &= ~QStyleOptionViewItem::WrapText;
    if (index.data(GridModel::kMutedRole).toBool())
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const double part = index.data(GridModel::kBarRole).toDouble();
    if (part <= 0)
        return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QRect room = option.rect.adjusted(look::kTight, 0, -look::kTight, -2);
    const int length = std::max(1, qRound(room.width() * part));
    painter->fillRect(QRect{room.right() + 1 - length, room.bottom() + 1 - kBar, length, kBar},
                      option.palette.color(selected ? QPalette::HighlightedText : QPalette::Link));
}

} // namespace tallyhoop::qt
