// qt/views/score_display_view.h - the page of the score display: the table above its commands.
#pragma once

#include "qt/page.h"
#include "screens/scores/scores_screen.h"

namespace tallyhoop::qt {

class ScoreDisplayView : public Page
{
    Q_OBJECT

public:
    ScoreDisplayView(ScoresScreen& scores, Desk& desk);
};

} // namespace tallyhoop::qt
