// qt/views/board_view.h - the page of the bracket board: the bracket above, the strip with the player's fields below.
#pragma once

#include "qt/page.h"
#include "screens/board/board_screen.h"

namespace tallyhoop::qt {

class BoardView : public Page
{
    Q_OBJECT

public:
    BoardView(BoardScreen& board, Desk& desk);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QWidget* makeStrip(BoardScreen& board);

    BoardScreen& m_board;
};

} // namespace tallyhoop::qt
