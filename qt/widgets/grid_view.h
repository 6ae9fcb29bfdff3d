// qt/widgets/grid_view.h - the view of a grid: a lazy table whose headings can be dragged.
#pragma once

#include "ui/control.h"

#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

namespace tallyhoop::qt {

class GridDelegate;
class GridHeader;
class GridModel;

/// With word wrap, rows are as high as a long text needs that is in the last of the columns that share the rest, up to
/// a few lines.
class GridView : public QTableView
{
    Q_OBJECT

public:
    explicit GridView(QWidget* parent);

    /// Takes a snapshot of the grid.
    void show(const ui::Grid& grid);

    /// The cell where the keyboard is; a cell that is not there is none.
    std::optional<ui::GridCell> currentCell() const;
    void setCurrentCell(std::optional<ui::GridCell> cell);

    GridHeader& header() const { return m_header; }

    /// Where a column takes the room that is left over, none of the others is ever hidden.
    QSize minimumSizeHint() const override;

    std::function<void(std::size_t row)> rowReached; ///< another row is the current one

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void measure();
    int widthOfColumns() const;
    void shareRoom();
    void fitRows();

    std::vector<ui::GridColumn> m_columns;
    std::vector<int> m_widths;  ///< of the columns, at least
    std::vector<int> m_growing; ///< the columns that share the rest
    GridDelegate& m_delegate;
    GridHeader& m_header;
    GridModel& m_cells;
};

} // namespace tallyhoop::qt
