// qt/views/seed_positions_view.cpp - lays out the seed positions screen.
#include "qt/views/seed_positions_view.h"

#include "qt/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tallyhoop::qt {

namespace {

constexpr int kSeedBox = 52;    ///< width in pixels: room for four characters
constexpr int kTeamWidth = 200; ///< for most team names

} // namespace

SeedPositionsView::SeedPositionsView(SeedsScreen& seats, Desk& desk) : Page{seats, desk}
{
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(look::kGap);
    rows->setVerticalSpacing(2);
    for (std::size_t i = 0; i < seats.txtSeed.size(); ++i) {
        const int row = static_cast<int>(i);
        QWidget* seed = add(seats.txtSeed[i]);
        seed->setFixedWidth(kSeedBox);
        QLabel* team = add(seats.lblRegion[i]);
        team->setMinimumWidth(kTeamWidth);
        // An empty line behind every first-round pairing.
        rows->addWidget(seed, row + row / 2, 0);
        rows->addWidget(team, row + row / 2, 1);
        if (row % 2 == 1)
            rows->setRowMinimumHeight(row + row / 2 + 1, look::kTight);
    }
    rows->setColumnStretch(1, 1);

    auto* buttons = look::row();
    buttons->addStretch(1);
    buttons->addWidget(add(seats.cmdComplete));
    buttons->addWidget(add(seats.cmdCancel));

    auto* content = look::column();
    content->addWidget(look::hint(tr("The seeds hold for the rows of all four regions.")));
    content->addLayout(rows);
    content->addStretch(1);
    content->addLayout(buttons);
    setContent(content);
}

} // namespace tallyhoop::qt
