// qt/views/players_view.cpp - boxes above, the players in columns below.
#include "qt/views/players_view.h"

#include "qt/look.h"

#include <QGridLayout>
#include <QStyle>

namespace tallyhoop::qt {

namespace {

/// @returns the names of the list's columns, above their first characters
QLabel* columnHeading(const QListView& list)
{
    const auto column = [](const char* text, std::size_t width) {
        return QString::fromLatin1(text).leftJustified(static_cast<int>(width) + 1);
    };
    auto* label = new QLabel{column("Name", kNameWidth) + column("FileName", kFileNameWidth) +
                             column("EMail Address", kEmailWidth) + column("Phone No", kPhoneWidth)};
    label->setTextFormat(Qt::PlainText);
    QFont font = look::fixedFont();
    font.setBold(true);
    label->setFont(font);
    const int cellMargin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    label->setContentsMargins(list.frameWidth() + cellMargin, 0, 0, 0);
    label->setMinimumWidth(1); // It is cut where the list is.
    return label;
}

/// Makes a box as wide as the text it is for: this many capitals.
QWidget* sized(QWidget* box, std::size_t characters)
{
    box->setFixedWidth(
        box->fontMetrics().horizontalAdvance(QString(static_cast<int>(characters) + 2, QLatin1Char{'N'})));
    return box;
}

} // namespace

PlayersView::PlayersView(PlayersScreen& names, Desk& desk) : Page{names, desk}
{
    QVBoxLayout* page = look::column(look::kSection);
    page->addLayout(boxes(names));
    page->addLayout(editButtons(names));
    page->addLayout(list(names), 1);
    page->addLayout(closeButtons(names));
    setContent(page);
}

QLayout* PlayersView::boxes(PlayersScreen& names)
{
    QLabel* note = add(names.lblFileNameNote);
    note->setFont(look::smallFont());
    note->setForegroundRole(QPalette::PlaceholderText);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kGap);
    grid->setVerticalSpacing(look::kGap);
    grid->addWidget(add(names.lblName), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(sized(add(names.txtName), kFileNameWidth), 0, 1);
    grid->addWidget(add(names.lblFileName), 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(sized(add(names.txtFileName), kFileNameWidth), 1, 1);
    grid->addWidget(note, 2, 1);
    grid->setColumnMinimumWidth(2, look::kSection);
    grid->addWidget(add(names.lblEmail), 0, 3, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(sized(add(names.txtEmail), kEmailWidth), 0, 4);
    grid->addWidget(add(names.lblPhone), 1, 3, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(sized(add(names.txtPhone), kPhoneWidth), 1, 4, Qt::AlignLeft);
    grid->setColumnStretch(5, 1);
    return grid;
}

QLayout* PlayersView::editButtons(PlayersScreen& names)
{
    QHBoxLayout* row = look::row();
    row->addWidget(add(names.cmdAdd));
    row->addWidget(add(names.cmdChange));
    row->addWidget(add(names.cmdDelete));
    row->addStretch(1);
    return row;
}

QLayout* PlayersView::list(PlayersScreen& names)
{
    QVBoxLayout* column = look::column(look::kTight);
    QListView* players = add(names.lstNames);
    players->setAlternatingRowColors(true);
    column->addWidget(columnHeading(*players));
    column->addWidget(players, 1);
    return column;
}

QLayout* PlayersView::closeButtons(PlayersScreen& names)
{
    QHBoxLayout* row = look::row();
    row->addWidget(add(names.cmdEntryForm));
    row->addStretch(1);
    row->addWidget(add(names.cmdCancel));
    row->addWidget(add(names.cmdExit));
    return row;
}

} // namespace tallyhoop::qt
