// ui/qt/views/seed_positions_view.h - the seed positions screen's page: sixteen rows of seed and team.
#pragma once

#include "setup/frmPoolSeatings.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class SeedPositionsView : public Page
{
public:
    SeedPositionsView(frmPoolSeatings& seats, Desk& desk);
};

} // namespace tallyhoop::qt
