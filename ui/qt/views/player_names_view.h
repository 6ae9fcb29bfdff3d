// ui/qt/views/player_names_view.h - the player list as the person sees it.
#pragma once

#include "players/frmPoolNames.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class PlayerNamesView : public Page
{
    Q_OBJECT

public:
    PlayerNamesView(frmPoolNames& names, Desk& desk);

private:
    QLayout* boxes(frmPoolNames& names);
    QLayout* editButtons(frmPoolNames& names);
    QLayout* list(frmPoolNames& names);
    QLayout* closeButtons(frmPoolNames& names);
};

} // namespace tallyhoop::qt
