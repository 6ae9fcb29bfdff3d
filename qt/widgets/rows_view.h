// qt/widgets/rows_view.h - the view of a list box: reports when the person chooses a row, also the selected one again.
#pragma once

#include <QListView>
#include <functional>
#include <optional>

namespace tallyhoop::qt {

class RowsView : public QListView
{
    Q_OBJECT

public:
    explicit RowsView(QWidget* parent);

    /// Shows a row as the selected one, scrolled into view; a row that is not there is none.
    void selectRow(std::optional<int> row);
    std::optional<int> selectedRow() const;

    /// The selection changed, or a press on the selected row chose it again; also when the model is being shown.
    std::function<void()> rowChosen;

    /// The left button was pressed, on a row or beside all rows; called after the row was chosen.
    std::function<void()> pressedAnywhere;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    bool m_changedByPress = false;
};

} // namespace tallyhoop::qt
