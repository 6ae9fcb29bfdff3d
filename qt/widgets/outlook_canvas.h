// qt/widgets/outlook_canvas.h - the bracket of the outlook: labels where the geometry says, presses told to the screen.
#pragma once

#include "qt/page.h"
#include "screens/board/board_geometry.h"
#include "screens/outlook/outlook_screen.h"

#include <QWidget>
#include <array>
#include <optional>

namespace tallyhoop::qt {

class SlotLabel;

class OutlookCanvas : public QWidget
{
    Q_OBJECT

public:
    OutlookCanvas(OutlookScreen& outlook, Page& page);

    QSize minimumSizeHint() const override { return {560, 380}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void makePlaces();
    void arrange(Position position);
    QLabel* caption(ui::Label& label);
    std::optional<Position> positionAt(const QPoint& point) const;

    OutlookScreen& m_outlook;
    Page& m_page;
    BoardGeometry m_geometry;
    QLabel* m_champion = nullptr;
    std::array<QLabel*, kRegions> m_regionTitles{};
    ByPosition<SlotLabel*> m_places;
    ByPosition<SlotLabel*> m_swings;
};

} // namespace tallyhoop::qt
