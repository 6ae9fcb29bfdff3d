// qt/widgets/bracket_canvas.h - the bracket on screen: labels where the geometry says, connectors below them, and the
// mouse reported to the board.
#pragma once

#include "qt/page.h"
#include "screens/board/board_geometry.h"
#include "screens/board/board_screen.h"

#include <QLabel>
#include <QWidget>
#include <array>
#include <optional>

namespace tallyhoop::qt {

class SlotLabel;

class BracketCanvas : public QWidget
{
    Q_OBJECT

public:
    BracketCanvas(BoardScreen& board, Page& page);

    QSize minimumSizeHint() const override { return {960, 440}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void makeHeaders();
    void makeSeeds();
    void makePlaces();
    void makeMarkers();
    QLabel* placed(ui::Label& label, Qt::Alignment alignment);
    void layOut();
    void chooseFonts();
    double fittingSize() const;
    double captionShare(double size) const;
    std::optional<Position> positionAt(const QPoint& point) const;
    std::optional<Position> landingAt(const QPoint& point) const;
    void hover(std::optional<Position> position);
    void showDrag(const QPoint& point);
    void loseDrag();
    std::optional<Position> reachedByKeys() const;
    void emphasise();

    BoardScreen& m_board;
    Page& m_page;
    BoardGeometry m_geometry;

    QLabel* m_title = nullptr;
    QLabel* m_demoMode = nullptr;
    QLabel* m_champion = nullptr;
    QLabel* m_dragged = nullptr; ///< the name under the pointer
    std::array<QLabel*, kRegions> m_regionTitles{};
    std::array<QLabel*, kRoundCaptions> m_roundNames{};
    std::array<QLabel*, kRoundCaptions> m_roundPoints{};
    ByTeamRow<QWidget*> m_seeds;
    ByPosition<SlotLabel*> m_places;
    ByGame<SlotLabel*> m_markers;

    QPoint m_pressedAt;
    bool m_pressed = false; ///< a left press on a place is held
    std::optional<Position> m_hovered;
};

} // namespace tallyhoop::qt
