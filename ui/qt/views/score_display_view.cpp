#include "ui/qt/views/score_display_view.h"

#include "ui/qt/look.h"

#include <QHeaderView>

namespace tallyhoop::qt {

namespace {

constexpr int kWidth = 780;
constexpr int kHeight = 420;

} // namespace

ScoreDisplayView::ScoreDisplayView(frmPoolMisc& scores, Desk& desk) : Page{scores, desk}
{
    auto* const commands = look::row();
    commands->addWidget(add(scores.cmdOk));
    commands->addStretch();
    commands->addWidget(add(scores.cmdPrint));
    commands->addWidget(add(scores.cmdCopy));
    commands->addWidget(add(scores.cmdExit));

    QTableView* const table = add(scores.msgScoreDisplay);
    table->horizontalHeader()->setStretchLastSection(true); // whichever stands last takes the room that is left

    auto* const whole = look::column();
    whole->addWidget(add(scores.lblInformation));
    whole->addWidget(table, 1);
    whole->addLayout(commands);
    whole->addWidget(add(scores.filList)); // hidden
    setContent(whole);
    resize(kWidth, kHeight);
}

} // namespace tallyhoop::qt
