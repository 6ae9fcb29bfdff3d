// qt/views/outlook_view.cpp - the outlook's widgets, placed; works in the pauses between events.
#include "qt/views/outlook_view.h"

#include "qt/look.h"
#include "qt/widgets/outlook_canvas.h"

#include <QLabel>

namespace tallyhoop::qt {

namespace {

constexpr int kWhatIfWidth = 240; ///< room for either of its texts
constexpr qint64 kSlice = 10;     ///< milliseconds of work between two looks at the events
constexpr qint64 kRefresh = 150;  ///< milliseconds between two looks at what is known

} // namespace

OutlookView::OutlookView(OutlookScreen& outlook, Desk& desk) : Page{outlook, desk}, m_outlook{outlook}
{
    auto* const middle = look::row(look::kSection);
    middle->addWidget(new OutlookCanvas{outlook, *this}, 11);
    middle->addWidget(add(outlook.grdPlayers), 10);
    auto* const whole = look::column();
    whole->addLayout(makeBar());
    whole->addLayout(middle, 3);
    whole->addLayout(makeFoot(), 1);
    setContent(whole);

    m_shown.start();
    connect(&m_timer, &QTimer::timeout, this, &OutlookView::work);
    onPush([this] {
        if (m_outlook.isWorking() && !m_timer.isActive())
            m_timer.start(0);
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
    bar->addWidget(add(m_outlook.cmdAsEntered));
    bar->addWidget(add(m_outlook.cmdHigherSeeds));
    bar->addWidget(add(m_outlook.cmdUndo));
    bar->addStretch();
    bar->addWidget(add(m_outlook.lblChances));
    for (QRadioButton* option : addOptions(m_outlook.optChances))
        bar->addWidget(option);
    return bar;
}

QLayout* OutlookView::makeFoot()
{
    auto* const games = look::column(look::kTight);
    games->addWidget(add(m_outlook.lblGames));
    games->addWidget(add(m_outlook.grdGames));

    auto* const ways = look::row();
    ways->addWidget(add(m_outlook.cmdShowWay));
    ways->addWidget(add(m_outlook.cmdStop));
    ways->addWidget(add(m_outlook.cmdCopy));
    ways->addStretch();
    ways->addWidget(add(m_outlook.cmdExit));

    auto* const player = look::column(look::kTight);
    QLabel* const name = add(m_outlook.lblPlayer);
    name->setFont(look::headingFont());
    QLabel* const proof = add(m_outlook.lblProof);
    proof->setWordWrap(true);
    QLabel* const outcomes = add(m_outlook.lblOutcomes);
    outcomes->setWordWrap(true);
    player->addWidget(name);
    player->addWidget(proof);
    player->addWidget(outcomes);
    player->addStretch();
    player->addLayout(ways);

    auto* const foot = look::row(look::kSection);
    foot->addLayout(games, 1);
    foot->addLayout(player, 1);
    return foot;
}

void OutlookView::work()
{
    QElapsedTimer slice;
    slice.start();
    while (m_outlook.isWorking() && slice.elapsed() < kSlice)
        m_outlook.advance();
    const bool isOver = !m_outlook.isWorking();
    if (isOver)
        m_timer.stop();
    if (!isOver && m_shown.elapsed() < kRefresh)
        return;
    m_shown.restart();
    run([] {}); // shows what is known by now
}

} // namespace tallyhoop::qt
