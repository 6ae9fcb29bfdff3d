// qt/views/scores_view.cpp - the score display's widgets, placed; a window that is as high as its rows.
#include "qt/views/scores_view.h"

#include "qt/look.h"
#include "qt/widgets/page_area.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr int kWidth = 840;   ///< at least
constexpr int kLeastRows = 4; ///< room for the note that there are none

} // namespace

QSize plausibleFrame(QSize frame)
{
    const bool isPlausible = frame.width() >= 0 && frame.height() > 0 && frame.width() <= 2 * kWindowFrame.width() &&
                             frame.height() <= 2 * kWindowFrame.height();
    return isPlausible ? frame : kWindowFrame;
}

QPoint placeBeside(QSize window, const QRect& owner, const QRect& room)
{
    const int top = std::clamp(owner.top(), room.top(), std::max(room.top(), room.bottom() + 1 - window.height()));
    if (owner.right() + 1 + window.width() <= room.right() + 1)
        return {owner.right() + 1, top};
    if (owner.left() - window.width() >= room.left())
        return {owner.left() - window.width(), top};
    return {std::max(room.left(), room.right() + 1 - window.width()),
            std::max(room.top(), room.bottom() + 1 - window.height())};
}

ScoresView::ScoresView(ScoresScreen& scores, Desk& desk) : Page{scores, desk}
{
    auto* const scoring = look::row();
    scoring->addWidget(add(scores.cmdOk));
    scoring->addWidget(add(scores.cmdBestFirst));
    scoring->addStretch();

    auto* const ways = look::row(); // in one row with those above, the window would be too wide for a small display
    ways->addWidget(add(scores.cmdPrint));
    ways->addWidget(add(scores.cmdPreview));
    ways->addWidget(add(scores.cmdSavePdf));
    ways->addWidget(add(scores.cmdCopy));
    ways->addStretch();
    ways->addWidget(add(scores.cmdExit));

    m_table = add(scores.msgScoreDisplay);
    auto* const whole = look::column();
    whole->addWidget(add(scores.lblInformation));
    whole->addWidget(m_table, 1);
    whole->addLayout(scoring);
    whole->addLayout(ways);
    whole->addWidget(add(scores.filList)); // hidden
    setContent(whole);
    follow(scores.msgScoreDisplay.revision, [this](unsigned) { fitRows(); });
}

/// Only now it is known over which window it opens, and that its line at the bottom needs room as well.
void ScoresView::showEvent(QShowEvent* event)
{
    fitRows();
    Page::showEvent(event);
}

/// Makes the window as high as its rows, within the display, unless the person has chosen another size.
void ScoresView::fitRows()
{
    if (m_fitted.isValid() && size() != m_fitted)
        return;
    const QSize room = roomForWindow(*this);
    const QHeaderView& headings = *m_table->horizontalHeader();
    const int edges = 2 * m_table->frameWidth();
    // What is beside the table is known once it has been laid out; until then there are no rows.
    const int columns = isVisible() ? width() - m_table->width() + headings.length() + edges : kWidth;
    const int bar = columns > room.width() ? m_table->horizontalScrollBar()->sizeHint().height() : 0;
    const int rows = std::max(kLeastRows, m_table->model()->rowCount());
    const int table =
        headings.sizeHint().height() + rows * m_table->verticalHeader()->defaultSectionSize() + bar + edges;
    const int others = sizeHint().height() - m_table->sizeHint().height();
    m_fitted = QSize{std::max(kWidth, columns), others + table}.boundedTo(room);
    resize(m_fitted);
    place();
}

/// Places the window where it hides as little of the board as possible, unless the person has moved it.
void ScoresView::place()
{
    const QWidget* const board = parentWidget();
    if (!board || !isWindow() || (m_placed && pos() != *m_placed))
        return;
    m_placed = placeBeside(m_fitted + plausibleFrame(frameGeometry().size() - size()), board->frameGeometry(),
                           board->screen()->availableGeometry());
    move(*m_placed);
}

} // namespace tallyhoop::qt
