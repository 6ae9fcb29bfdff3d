// qt/views/seeds_view.cpp - lays out the seed positions screen.
#include "qt/views/seeds_view.h"

#include "qt/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tallyhoop::qt {

namespace {

constexpr int kSeedBox = 52;    ///< width in pixels: room for four characters
constexpr int kTeamWidth = 200; ///< for most team names

} // namespace

SeedsView::SeedsView(SeedsScreen& seeds, Desk& desk) : Page{seeds, desk}
{
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(look::kGap);
    rows->setVerticalSpacing(2);
    for (std::size_t i = 0; i < seeds.txtSeed.size(); ++i) {
        const int row = static_cast<int>(i);
        QWidget* seed = add(seeds.txtSeed[i]);
        seed->setFixedWidth(kSeedBox);
        QLabel* team = add(seeds.lblRegion[i]);
        team->setMinimumWidth(kTeamWidth);
        // An empty line after every first-round pairing.
        rows->addWidget(seed, row + row / 2, 0);
        rows->addWidget(team, row + row / 2, 1);
        if (row % 2 == 1)
            rows->setRowMinimumHeight(row + row / 2 + 1, look::kTight);
    }
    rows->setColumnStretch(1, 1);

    auto* buttons = look::row();
    buttons->addStretch(1);
    buttons->addWidget(add(seeds.cmdComplete));
    buttons->addWidget(add(seeds.cmdCancel));

    auto* content = look::column();
    content->addWidget(look::hint(tr("The seeds hold for the rows of all four regions.")));
    content->addLayout(rows);
    content->addStretch(1);
    content->addLayout(buttons);
    setContent(content);
}

} // namespace tallyhoop::qt
