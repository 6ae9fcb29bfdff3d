// qt/views/scores_view.h - the page of the score display: the table above its commands, in a window beside the board.
#pragma once

#include "qt/page.h"
#include "screens/scores/scores_screen.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

namespace tallyhoop::qt {

class ScoresView : public Page
{
    Q_OBJECT

public:
    ScoresView(ScoresScreen& scores, Desk& desk);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void fitRows();
    void place();

    QTableView* m_table = nullptr;
    QSize m_fitted;                 ///< the size that was last chosen here; another one is the person's
    std::optional<QPoint> m_placed; ///< the place that was last chosen here, likewise
};

/// While the window manager puts a frame around a window, Qt can take the frame to be of any size, less than nothing
/// included.
/// @param frame how much larger than the window Qt takes it to be with its frame
/// @returns the same where a frame can be like that, else a usual one
QSize plausibleFrame(QSize frame);

/// Says where a window that belongs to another is best opened.
/// @param window its size with its frame
/// @param owner  the other window with its frame
/// @param room   of the display
/// @returns the upper left corner: beside the other window where there is room, else low and right on the display
QPoint placeBeside(QSize window, const QRect& owner, const QRect& room);

} // namespace tallyhoop::qt
