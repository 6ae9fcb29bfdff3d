// qt/views/setup_view.cpp - lays out the setup screen.
#include "qt/views/setup_view.h"

#include "qt/look.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <cmath>

namespace tallyhoop::qt {

namespace {

constexpr int kHalf = kRowsPerRegion / 2; ///< rows per column of a region: all sixteen would not fit a small screen
constexpr int kPayoffBox = 38;            ///< width in pixels: room for two digits
constexpr int kListWidth = 250;
constexpr int kTeamWidth = 100;      ///< where it gets narrower, the page scrolls
constexpr int kCommentHeight = 44;   ///< at least two lines
constexpr int kLargestComment = 110; ///< what is left over is better used by the regions
constexpr int kHeaderLines = 2;      ///< of a region's grid: its title and a gap
constexpr int kPairGap = 4;          ///< between first-round pairings, in pixels; within one there is none

QFrame* panel(QLayout* content)
{
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    content->setContentsMargins(look::kGap, look::kTight, look::kGap, look::kTight);
    frame->setLayout(content);
    return frame;
}

/// Spreads the runs of blanks between the six digits so that each is over its box.
/// @returns by how much the boxes have to be moved to the right to be under the digits
int spreadOver(QLabel& header, int boxWidth, int pitch)
{
    constexpr int kBlanks = 30; // between the first digit and the last, in five runs after a first run of two
    constexpr int kRuns = 5;
    const QFontMetricsF metrics{header.font()};
    const double blank = metrics.horizontalAdvance(QLatin1Char{' '});
    const double digit = metrics.horizontalAdvance(QLatin1Char{'0'});
    const double run = pitch - digit - blank * kBlanks / kRuns; // Qt adds it once to each run of blanks
    QFont font = header.font();
    font.setWordSpacing(run);
    header.setFont(font);
    const double firstDigit = 2 * blank + run + digit / 2;
    return std::max(0, static_cast<int>(std::lround(firstDigit - boxWidth / 2.0)));
}

} // namespace

SetupView::SetupView(SetupScreen& setup, Desk& desk) : Page{setup, desk}, m_setup{setup}
{
    auto* field = look::column();
    field->addLayout(titleRow());
    field->addLayout(regions(), 1);
    field->addLayout(comments());

    auto* content = look::row(look::kSection);
    content->addLayout(field, 1);
    content->addLayout(side());
    setContent(content);
    content->setContentsMargins(look::kSection, look::kGap, look::kSection, look::kGap);
}

QLayout* SetupView::titleRow()
{
    auto* row = look::row();
    row->addWidget(add(m_setup.lblPoolTitle));
    QWidget* title = add(m_setup.TxtInfo[0]);
    title->setFont(look::headingFont());
    row->addWidget(title, 1);
    QLabel* demo = add(m_setup.lblDemoMode);
    demo->setFont(look::headingFont());
    row->addWidget(demo);
    return row;
}

QWidget* SetupView::region(int region)
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kTight);
    grid->setVerticalSpacing(0);

    auto* header = look::row();
    header->addWidget(look::hint(tr("Region %1").arg(region + 1)));
    QWidget* title = add(m_setup.TxtInfo[static_cast<std::size_t>(region) + 1]);
    title->setFont(look::boldFont());
    header->addWidget(title, 1);
    grid->addLayout(header, 0, 0, 1, 5);
    grid->setRowMinimumHeight(kHeaderLines - 1, kPairGap);

    for (int row = 0; row < kRowsPerRegion; ++row) {
        const TeamRow place = teamRowAt(region, row);
        const int line = row % kHalf;
        const int gridRow = kHeaderLines + 2 * line; // with an empty line after each
        const int column = row < kHalf ? 0 : 3;
        QLabel* seed = add(m_setup.lblSeed[place]);
        seed->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(seed, gridRow, column);
        QWidget* team = add(m_setup.txtRegion[place]);
        team->setMinimumWidth(kTeamWidth);
        grid->addWidget(team, gridRow, column + 1);
        if (line + 1 == kHalf)
            continue;
        // Pairings are apart, the more the more room there is.
        const bool betweenPairings = line % 2 == 1;
        grid->setRowMinimumHeight(gridRow + 1, betweenPairings ? kPairGap : 0);
        grid->setRowStretch(gridRow + 1, betweenPairings ? 2 : 1);
    }
    grid->setColumnMinimumWidth(2, look::kTight);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    return panel(grid);
}

QLayout* SetupView::regions()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kGap);
    for (int i = 0; i < kRegions; ++i)
        grid->addWidget(region(i), i % 2, i / 2); // 1 above 2 on the left, 3 above 4 on the right
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* SetupView::comments()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kGap);
    grid->setVerticalSpacing(look::kTight);
    grid->addWidget(add(m_setup.lblComment1), 0, 0);
    grid->addWidget(add(m_setup.lblComment2), 0, 1);
    QWidget* first = add(m_setup.txtComment1);
    QWidget* second = add(m_setup.txtComment2);
    for (QWidget* comment : {first, second}) {
        comment->setMinimumHeight(kCommentHeight);
        comment->setMaximumHeight(kLargestComment);
    }
    grid->addWidget(first, 1, 0);
    grid->addWidget(second, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QWidget* SetupView::teamNames()
{
    auto* column = look::column(look::kTight);
    QListView* list = add(m_setup.lstTeamNames);
    list->setMinimumWidth(kListWidth);
    column->addWidget(list, 1);
    QLabel* explanation = add(m_setup.lblChangeNames);
    explanation->setFont(look::smallFont());
    explanation->setWordWrap(true);
    column->addWidget(explanation);
    auto* buttons = look::row(look::kTight);
    buttons->addWidget(add(m_setup.cmdAddName));
    buttons->addWidget(add(m_setup.cmdChangeName));
    buttons->addWidget(add(m_setup.cmdDeleteName));
    column->addLayout(buttons);
    column->addWidget(add(m_setup.cmdOverride));
    column->addWidget(add(m_setup.cmdClear));
    return panel(column);
}

QWidget* SetupView::payoffs()
{
    auto* column = look::column(look::kTight);
    column->addWidget(add(m_setup.lblPayoff));
    QLabel* header = add(m_setup.lblPayoffRounds);
    const int indent = spreadOver(*header, kPayoffBox, kPayoffBox + look::kTight);
    column->addWidget(header);
    auto* boxes = look::row(look::kTight);
    boxes->addSpacing(indent);
    for (std::size_t round = 0; round < kRounds; ++round) {
        QWidget* box = add(m_setup.txtInfo6[round]);
        box->setFixedWidth(kPayoffBox);
        if (auto* line = qobject_cast<QLineEdit*>(box))
            line->setAlignment(Qt::AlignCenter); // under its digit
        boxes->addWidget(box);
    }
    boxes->addStretch(1);
    column->addLayout(boxes);
    return panel(column);
}

QLayout* SetupView::side()
{
    auto* column = look::column();
    column->addWidget(teamNames(), 1);
    column->addWidget(payoffs());
    column->addWidget(add(m_setup.cmdFinalize));
    return column;
}

} // namespace tallyhoop::qt
