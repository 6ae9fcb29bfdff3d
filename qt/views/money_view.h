// qt/views/money_view.h - fees and prizes to the left, ties and who has paid to the right, the final sheet below.
#pragma once

#include "qt/page.h"
#include "screens/money/money_screen.h"

namespace tallyhoop::qt {

class MoneyView : public Page
{
    Q_OBJECT

public:
    MoneyView(MoneyScreen& money, Desk& desk);

private:
    QLayout* makeAmounts(MoneyScreen& money);
    QLayout* makePrizes(MoneyScreen& money);
    QLayout* makeTies(MoneyScreen& money);
    QLayout* makePlayers(MoneyScreen& money);
    QLayout* makeButtons(MoneyScreen& money);
};

} // namespace tallyhoop::qt
