// qt/views/players_view.h - the player list as the person sees it.
#pragma once

#include "qt/page.h"
#include "screens/players/players_screen.h"

namespace tallyhoop::qt {

class PlayersView : public Page
{
    Q_OBJECT

public:
    PlayersView(PlayersScreen& names, Desk& desk);

private:
    QLayout* boxes(PlayersScreen& names);
    QLayout* editButtons(PlayersScreen& names);
    QLayout* list(PlayersScreen& names);
    QLayout* closeButtons(PlayersScreen& names);
};

} // namespace tallyhoop::qt
