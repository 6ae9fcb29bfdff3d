// qt/widgets/grid_header.h - a table header whose columns can be dragged: it only reports, the model moves them.
#pragma once

#include "ui/control.h"

#include <QHeaderView>
#include <cstddef>
#include <functional>
#include <optional>

namespace tallyhoop::qt {

class GridHeader : public QHeaderView
{
    Q_OBJECT

public:
    GridHeader();

    std::function<void(std::size_t column)> columnPressed;
    std::function<void(std::optional<std::size_t> column)> columnReleased; ///< nothing = outside the grid

    /// Marks the heading by which the rows are sorted with an arrow at its upper edge, where it takes no room from the
    /// text.
    void setSorted(std::optional<ui::GridSort> sorted);

protected:
    void paintSection(QPainter* painter, const QRect& place, int column) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<std::size_t> columnUnder(const QMouseEvent& event) const;
    void setTarget(int column);

    std::optional<ui::GridSort> m_sorted;
    int m_dragged = -1; ///< the column that was pressed, -1 = none
    int m_target = -1;  ///< the column under the pointer while dragging
};

} // namespace tallyhoop::qt
