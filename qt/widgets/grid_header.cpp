// qt/widgets/grid_header.cpp - Qt's own moving of columns is off; drags are followed here and the target is marked.
#include "qt/widgets/grid_header.h"

#include <QMouseEvent>
#include <QPainter>

namespace tallyhoop::qt {

GridHeader::GridHeader() : QHeaderView{Qt::Horizontal}
{
    // If the view moved columns itself, their order would differ from the model's.
    setSectionsMovable(false);
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setStretchLastSection(true);
    setCursor(Qt::OpenHandCursor);
}

std::optional<std::size_t> GridHeader::columnUnder(const QMouseEvent& event) const
{
    const QWidget* grid = parentWidget();
    const QPoint place = event.position().toPoint();
    if (!grid || !grid->rect().contains(viewport()->mapTo(grid, place)))
        return std::nullopt;
    const int column = logicalIndexAt(place.x());
    return column < 0 ? std::nullopt : std::optional{static_cast<std::size_t>(column)};
}

void GridHeader::mousePressEvent(QMouseEvent* event)
{
    const auto column = columnUnder(*event);
    if (event->button() != Qt::LeftButton || !column)
        return;
    m_dragged = static_cast<int>(*column);
    setCursor(Qt::ClosedHandCursor);
    if (columnPressed)
        columnPressed(*column);
}

void GridHeader::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragged < 0)
        return;
    const auto column = columnUnder(*event);
    setTarget(column ? static_cast<int>(*column) : -1);
}

void GridHeader::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_dragged < 0)
        return;
    m_dragged = -1;
    setTarget(-1);
    setCursor(Qt::OpenHandCursor);
    if (columnReleased)
        columnReleased(columnUnder(*event));
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void GridHeader::setTarget(int column)
{
    if (column == m_target)
        return;
    m_target = column;
    viewport()->update();
}

void GridHeader::setSorted(std::optional<ui::GridSort> sorted)
{
    if (sorted == m_sorted)
        return;
    m_sorted = sorted;
    viewport()->update();
}

void GridHeader::paintSection(QPainter* painter, const QRect& place, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, place, column);
    painter->restore();
    if (!m_sorted || m_sorted->column != static_cast<std::size_t>(column))
        return;
    constexpr int kHalf = 5; ///< of the arrow's width
    constexpr int kHeight = 4;
    const int top = place.top() + 2;
    const int tip = m_sorted->ascending ? top : top + kHeight;
    const int base = m_sorted->ascending ? top + kHeight : top;
    const int middle = place.center().x();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::ButtonText));
    painter->drawPolygon(QPolygon{{QPoint{middle - kHalf, base}, QPoint{middle + kHalf, base}, QPoint{middle, tip}}});
    painter->restore();
}

void GridHeader::paintEvent(QPaintEvent* event)
{
    QHeaderView::paintEvent(event);
    if (m_dragged < 0 || m_target < 0 || m_target == m_dragged)
        return;
    constexpr int kBar = 3;
    QPainter painter{viewport()};
    const int left = sectionViewportPosition(m_target);
    const int x = m_target > m_dragged ? left + sectionSize(m_target) - kBar : left;
    painter.fillRect(x, 0, kBar, height(), palette().highlight());
}

} // namespace tallyhoop::qt
