// qt/views/money_view.cpp - groups of boxes beside the rule for ties and the table of the players.
#include "qt/views/money_view.h"

#include "qt/look.h"

#include <QGridLayout>
#include <QLabel>

namespace tallyhoop::qt {

namespace {

constexpr int kAmountCharacters = 12;

/// Makes a box as wide as the longest amount.
QWidget* sized(QWidget* box)
{
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QString(kAmountCharacters, QLatin1Char{'0'})));
    return box;
}

QLabel* wrapped(QLabel* label)
{
    label->setWordWrap(true);
    return label;
}

QLabel* toTheRight(QLabel* label)
{
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

MoneyView::MoneyView(MoneyScreen& money, Desk& desk) : Page{money, desk}
{
    QVBoxLayout* const left = look::column();
    left->addWidget(look::group(tr("Fees"), makeAmounts(money)));
    left->addWidget(look::group(tr("Prizes"), makePrizes(money)));
    left->addStretch(1);

    QHBoxLayout* const middle = look::row(look::kSection);
    middle->addLayout(left);
    middle->addLayout(makePlayers(money), 1);

    QVBoxLayout* const page = look::column();
    page->addLayout(middle, 1);
    page->addWidget(wrapped(add(money.lblPurse)));
    page->addLayout(makeButtons(money));
    setContent(page);
}

QLayout* MoneyView::makeAmounts(MoneyScreen& money)
{
    auto* const grid = new QGridLayout;
    grid->addWidget(add(money.lblEntryFee), 0, 0);
    grid->addWidget(sized(add(money.txtEntryFee)), 0, 1);
    grid->addWidget(add(money.lblKeptBack), 1, 0);
    grid->addWidget(sized(add(money.txtKeptBack)), 1, 1);
    grid->setColumnStretch(0, 1);
    return grid;
}

QLayout* MoneyView::makePrizes(MoneyScreen& money)
{
    auto* const grid = new QGridLayout;
    grid->setVerticalSpacing(look::kTight);
    for (std::size_t i = 0; i < kPrizeBoxes; ++i) {
        const int row = static_cast<int>(i);
        grid->addWidget(add(money.lblPlace[i]), row, 0);
        grid->addWidget(sized(add(money.txtPrize[i])), row, 1);
        grid->addWidget(sized(toTheRight(add(money.lblAmount[i]))), row, 2);
    }
    grid->addWidget(wrapped(add(money.lblMorePrizes)), static_cast<int>(kPrizeBoxes), 0, 1, 3);
    grid->setColumnStretch(0, 1);
    return grid;
}

QLayout* MoneyView::makeTies(MoneyScreen& money)
{
    QHBoxLayout* const rules = look::row(look::kSection);
    rules->addWidget(add(money.lblTies));
    for (QRadioButton* rule : addOptions(money.optTies))
        rules->addWidget(rule);
    rules->addStretch(1);

    QVBoxLayout* const column = look::column(look::kTight);
    column->addLayout(rules);
    column->addWidget(wrapped(add(money.lblTotal)));
    return column;
}

QLayout* MoneyView::makePlayers(MoneyScreen& money)
{
    QHBoxLayout* const ticks = look::row();
    ticks->addWidget(wrapped(add(money.lblFees)), 1);
    ticks->addWidget(add(money.cmdTickAll));
    ticks->addWidget(add(money.cmdUntickAll));

    QVBoxLayout* const column = look::column();
    column->addWidget(look::group(tr("Ties"), makeTies(money)));
    column->addWidget(add(money.grdFees), 1);
    column->addLayout(ticks);
    return column;
}

QLayout* MoneyView::makeButtons(MoneyScreen& money)
{
    QHBoxLayout* const row = look::row();
    for (ui::Command* command : {&money.cmdFinalSheet, &money.cmdPrint, &money.cmdPreview})
        row->addWidget(add(*command));
    row->addStretch(1);
    row->addWidget(add(money.cmdSave));
    row->addWidget(add(money.cmdExit));
    return row;
}

} // namespace tallyhoop::qt
