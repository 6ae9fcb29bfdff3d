// qt/views/outlook_view.h - the page of the outlook: the bracket beside the table of players, the games below.
#pragma once

#include "qt/page.h"
#include "screens/outlook/outlook_screen.h"

#include <QElapsedTimer>
#include <QTimer>

namespace tallyhoop::qt {

class OutlookView : public Page
{
    Q_OBJECT

public:
    OutlookView(OutlookScreen& outlook, Desk& desk);

private:
    QLayout* makeBar();
    QTableView* addTable(ui::Grid& grid);
    QWidget* makeRoad();
    QWidget* makeGames();
    QWidget* makePlayer();
    void work();

    OutlookScreen& m_outlook;
    QTimer m_timer;        ///< runs while there is work
    QElapsedTimer m_shown; ///< since what is known was shown last
};

} // namespace tallyhoop::qt
