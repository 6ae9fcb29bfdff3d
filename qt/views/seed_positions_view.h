// qt/views/seed_positions_view.h - the seed positions screen's page: sixteen rows of seed and team.
#pragma once

#include "qt/page.h"
#include "screens/setup/seeds_screen.h"

namespace tallyhoop::qt {

class SeedPositionsView : public Page
{
public:
    SeedPositionsView(SeedsScreen& seeds, Desk& desk);
};

} // namespace tallyhoop::qt
