// ui/qt/views/board_view.h - the bracket board: the bracket above, the strip with the player's fields below.
#pragma once

#include "bracket/frmPoolMain.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class BoardView : public Page
{
    Q_OBJECT

public:
    BoardView(frmPoolMain& board, Desk& desk);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QWidget* makeStrip(frmPoolMain& board);

    frmPoolMain& m_board;
};

} // namespace tallyhoop::qt
