// qt/widgets/small_bracket.h - a bracket to be looked at: labels where the geometry says, connectors below them.
#pragma once

#include "qt/page.h"
#include "screens/board/board_geometry.h"

#include <QWidget>
#include <array>

namespace tallyhoop::qt {

class SlotLabel;

class SmallBracket : public QWidget
{
    Q_OBJECT

public:
    /// Adds the labels to the page.
    SmallBracket(Page& page, ui::ControlArray<ui::Label, kRegions>& regionTitles, ui::Label& champion,
                 ui::ControlArray<ui::Label, kPositions>& places);

    QSize minimumSizeHint() const override { return {500, 360}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* caption(Page& page, ui::Label& label);
    SlotLabel* place(Page& page, ui::Label& label);

    BoardGeometry m_geometry;
    QLabel* m_champion = nullptr;
    std::array<QLabel*, kRegions> m_regionTitles{};
    ByPosition<SlotLabel*> m_places;
};

} // namespace tallyhoop::qt
