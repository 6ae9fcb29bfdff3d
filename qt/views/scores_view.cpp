// qt/views/scores_view.cpp - the score display's widgets, placed.
#include "qt/views/scores_view.h"

#include "qt/look.h"
#include "qt/widgets/page_area.h"

namespace tallyhoop::qt {

namespace {

constexpr int kWidth = 840; ///< every column at its own width
constexpr int kHeight = 420;

} // namespace

ScoresView::ScoresView(ScoresScreen& scores, Desk& desk) : Page{scores, desk}
{
    auto* const commands = look::row();
    commands->addWidget(add(scores.cmdOk));
    commands->addStretch();
    commands->addWidget(add(scores.cmdPrint));
    commands->addWidget(add(scores.cmdCopy));
    commands->addWidget(add(scores.cmdExit));

    auto* const whole = look::column();
    whole->addWidget(add(scores.lblInformation));
    whole->addWidget(add(scores.msgScoreDisplay), 1);
    whole->addLayout(commands);
    whole->addWidget(add(scores.filList)); // hidden
    setContent(whole);
    resize(QSize{kWidth, kHeight}.boundedTo(roomForWindow(*this)));
}

} // namespace tallyhoop::qt
