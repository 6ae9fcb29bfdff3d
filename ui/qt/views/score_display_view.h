// ui/qt/views/score_display_view.h - the score display's window: the table above its commands.
#pragma once

#include "scoring/frmPoolMisc.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class ScoreDisplayView : public Page
{
    Q_OBJECT

public:
    ScoreDisplayView(frmPoolMisc& scores, Desk& desk);
};

} // namespace tallyhoop::qt
