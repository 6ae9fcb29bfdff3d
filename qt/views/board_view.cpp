// qt/views/board_view.cpp - the board's widgets, placed; a press beside the bracket goes to the model.
#include "qt/views/board_view.h"

#include "qt/colour_menu.h"
#include "qt/look.h"
#include "qt/widgets/bracket_canvas.h"

#include <QFrame>
#include <QLineEdit>
#include <QMenuBar>
#include <QVBoxLayout>

namespace tallyhoop::qt {

namespace {

constexpr int kInitialsWidth = 70;
constexpr int kNameWidth = 190;
constexpr int kPointsWidth = 90;
constexpr int kScoreWidth = 170;
constexpr int kStripHeight = 92;

/// @returns a field with its name above it
QVBoxLayout* named(QWidget* name, QWidget* field, int width)
{
    QVBoxLayout* column = look::column(look::kTight);
    field->setFixedWidth(width);
    column->addStretch();
    column->addWidget(name);
    column->addWidget(field, 0, Qt::AlignLeft);
    column->addStretch();
    return column;
}

} // namespace

BoardView::BoardView(BoardScreen& board, Desk& desk) : Page{board, desk}, m_board{board}
{
    auto* const whole = new QVBoxLayout;
    whole->setSpacing(0);
    whole->addWidget(new BracketCanvas{board, *this}, 1);
    whole->addWidget(makeStrip(board));
    setContent(whole);
    whole->setContentsMargins(0, 0, 0, 0);
    menuBar()->insertAction(actionOf(board.mnuOptions), colourMenu(*this));
}

/// The canvas handles the presses on the bracket; those that arrive here were made beside it.
void BoardView::mousePressEvent(QMouseEvent*)
{
    run([this] { m_board.pressBackground(); });
}

QWidget* BoardView::makeStrip(BoardScreen& board)
{
    auto* const strip = new QFrame;
    strip->setFixedHeight(kStripHeight);
    auto* const row = look::row(look::kSection);
    row->setContentsMargins(look::kSection, look::kGap, look::kSection, look::kGap);
    row->addWidget(add(board.txtComment1), 3);
    row->addLayout(named(add(board.lblPlayerInitials), add(board.txtPlayerInitials), kInitialsWidth));
    row->addLayout(named(add(board.lblPlayerName), add(board.txtPlayerName), kNameWidth));
    row->addLayout(named(add(board.lblFinalPoints), add(board.txtFinalPoints), kPointsWidth));

    auto* const score = look::column(look::kTight);
    QWidget* const points = add(board.txtPointScore);
    points->setFont(look::headingFont());
    points->setFixedWidth(kScoreWidth);
    score->addStretch();
    score->addWidget(points);
    score->addWidget(add(board.cmdDefaultColors));
    score->addStretch();
    row->addLayout(score);
    row->addWidget(add(board.txtComment2), 3);
    strip->setLayout(row);
    return strip;
}

} // namespace tallyhoop::qt
