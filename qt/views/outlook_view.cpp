// qt/views/outlook_view.cpp - the outlook's widgets, placed; shows what is known while more is worked out.
#include "qt/views/outlook_view.h"

#include "qt/look.h"
#include "qt/widgets/outlook_canvas.h"
#include "qt/widgets/picture_view.h"

#include <QLabel>
#include <QSplitter>

namespace tallyhoop::qt {

namespace {

constexpr int kMargin = 12;       ///< around the page
constexpr int kWhatIfWidth = 215; ///< room for any of its texts; all before the words fits into 900
constexpr int kLook = 30;         ///< milliseconds until the next look at what is known
constexpr qint64 kRefresh = 100;  ///< the fewest milliseconds between two times that it is shown

/// Nothing is ever hidden by moving a bar. @param shares of the room, as far as all parts are large enough then
void share(QSplitter& splitter, const QList<int>& shares)
{
    constexpr int kMore = 1000; // than a display has, so that Qt takes them for shares and not for pixels
    QList<int> sizes;
    for (const int one : shares)
        sizes << kMore * one;
    splitter.setChildrenCollapsible(false);
    splitter.setHandleWidth(look::kGap);
    splitter.setSizes(sizes);
}

QWidget* part(QLayout* content)
{
    auto* const widget = new QWidget;
    widget->setLayout(content);
    return widget;
}

} // namespace

OutlookView::OutlookView(OutlookScreen& outlook, Desk& desk) : Page{outlook, desk}, m_outlook{outlook}
{
    auto* const upper = new QSplitter{Qt::Horizontal};
    upper->addWidget(new OutlookCanvas{outlook, *this});
    upper->addWidget(addTable(outlook.grdPlayers));
    share(*upper, {3, 2});
    auto* const lower = new QSplitter{Qt::Horizontal};
    lower->addWidget(makeRoad());
    lower->addWidget(makeGames());
    lower->addWidget(makePlayer());
    share(*lower, {4, 4, 5});
    auto* const both = new QSplitter{Qt::Vertical};
    both->addWidget(upper);
    both->addWidget(lower);
    share(*both, {11, 4});

    auto* const whole = look::column();
    whole->addLayout(makeBar());
    whole->addWidget(both, 1);
    setContent(whole);
    whole->setContentsMargins(kMargin, kMargin, kMargin, look::kTight);

    m_shown.start();
    connect(&m_timer, &QTimer::timeout, this, &OutlookView::work);
    onPush([this] {
        if (m_outlook.isWorking() && !m_timer.isActive())
            m_timer.start(kLook);
    });
}

QLayout* OutlookView::makeBar()
{
    auto* const bar = look::row();
    QLabel* const whatIf = add(m_outlook.lblWhatIf);
    whatIf->setFont(look::boldFont());
    whatIf->setMinimumWidth(kWhatIfWidth);
    whatIf->setMargin(look::kTight);
    bar->addWidget(whatIf);
    for (ui::Command* command : {&m_outlook.cmdAsEntered, &m_outlook.cmdHigherSeeds, &m_outlook.cmdUndo})
        bar->addWidget(add(*command));
    bar->addSpacing(look::kGap);
    bar->addWidget(add(m_outlook.lblChances));
    for (QRadioButton* option : addOptions(m_outlook.optChances))
        bar->addWidget(option);
    bar->addSpacing(look::kGap);
    QLabel* const outcomes = add(m_outlook.lblOutcomes);
    outcomes->setWordWrap(true);
    outcomes->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    outcomes->setFont(look::smallFont());
    outcomes->setMinimumHeight(2 * outcomes->fontMetrics().lineSpacing()); // also where it needs one line only
    bar->addWidget(outcomes, 1);
    return bar;
}

/// In small letters, so that there is room for the bracket.
QTableView* OutlookView::addTable(ui::Grid& grid)
{
    QTableView* const table = add(grid);
    table->setFont(look::smallFont());
    return table;
}

QWidget* OutlookView::makeRoad()
{
    auto* const road = look::column(look::kTight);
    QLabel* const heading = add(m_outlook.lblRoad);
    heading->setFont(look::boldFont());
    road->addWidget(heading);
    road->addWidget(add(m_outlook.picRoad), 1);
    return part(road);
}

QWidget* OutlookView::makeGames()
{
    auto* const games = look::column(look::kTight);
    QLabel* const heading = add(m_outlook.lblGames);
    heading->setFont(look::boldFont());
    games->addWidget(heading);
    games->addWidget(addTable(m_outlook.grdGames), 1);
    return part(games);
}

QWidget* OutlookView::makePlayer()
{
    auto* const player = look::column(look::kTight);
    QLabel* const name = add(m_outlook.lblPlayer);
    name->setFont(look::boldFont());
    QLabel* const proof = add(m_outlook.lblProof);
    proof->setWordWrap(true);
    auto* const buttons = look::row();
    for (ui::Command* command : {&m_outlook.cmdShowWay, &m_outlook.cmdStop})
        buttons->addWidget(add(*command));
    buttons->addStretch();
    for (ui::Command* command : {&m_outlook.cmdCopy, &m_outlook.cmdExit})
        buttons->addWidget(add(*command));
    player->addWidget(name);
    player->addWidget(proof);
    player->addStretch();
    auto* const output = look::row();
    for (ui::Command* command : {&m_outlook.cmdSaveReport, &m_outlook.cmdSavePdf, &m_outlook.cmdSaveCsv})
        output->addWidget(add(*command));
    output->addStretch();
    for (ui::Command* command : {&m_outlook.cmdPrint, &m_outlook.cmdPreview})
        output->addWidget(add(*command));
    player->addLayout(output);
    player->addLayout(buttons);
    return part(player);
}

void OutlookView::work()
{
    if (!m_outlook.isWorking())
        m_timer.stop();
    else if (m_shown.elapsed() < kRefresh)
        return;
    m_shown.restart();
    run([] {}); // shows what is known by now
}

} // namespace tallyhoop::qt
