// qt/widgets/grid_view.h - the view of a grid: a lazy table whose headings can be dragged.
#pragma once

#include "ui/control.h"

#include <QTableView>
#include <optional>

namespace tallyhoop::qt {

class GridHeader;
class GridModel;

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

private:
    GridHeader& m_header;
    GridModel& m_cells;
};

} // namespace tallyhoop::qt
