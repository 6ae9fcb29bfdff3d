// qt/views/seeds_view.h - the seed positions screen's page: sixteen rows of seed and team.
#pragma once

#include "qt/page.h"
#include "screens/setup/seeds_screen.h"

namespace tallyhoop::qt {

class SeedsView : public Page
{
public:
    SeedsView(SeedsScreen& seeds, Desk& desk);
};

} // namespace tallyhoop::qt
