// qt/views/scores_view.h - the page of the score display: the table above its commands.
#pragma once

#include "qt/page.h"
#include "screens/scores/scores_screen.h"

namespace tallyhoop::qt {

class ScoresView : public Page
{
    Q_OBJECT

public:
    ScoresView(ScoresScreen& scores, Desk& desk);
};

} // namespace tallyhoop::qt
