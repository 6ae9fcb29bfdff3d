// qt/views/email_view.cpp - players and recipients side by side, the message below.
#include "qt/views/email_view.h"

#include "qt/look.h"

#include <QGridLayout>

namespace tallyhoop::qt {

namespace {

constexpr int kPlayerCharacters = 72; ///< of a player's row: the name's column and a whole address
constexpr int kAddressCharacters = 40;
constexpr int kRows = 14;
constexpr int kMessageLines = 7;

void setSmallest(QListView& list, int characters)
{
    const QFontMetrics metrics = list.fontMetrics();
    list.setMinimumSize(metrics.horizontalAdvance(QLatin1Char{'0'}) * characters, metrics.lineSpacing() * kRows);
    list.setAlternatingRowColors(true);
}

} // namespace

EmailView::EmailView(EmailScreen& mail, Desk& desk) : Page{mail, desk}
{
    QHBoxLayout* above = look::row(look::kSection);
    above->addLayout(players(mail), 3);
    above->addLayout(recipients(mail), 2);

    QVBoxLayout* page = look::column(look::kSection);
    page->addLayout(above, 3);
    page->addLayout(message(mail), 2);
    page->addLayout(buttons(mail));
    setContent(page);
}

QLayout* EmailView::players(EmailScreen& mail)
{
    QHBoxLayout* modes = look::row();
    modes->addWidget(add(mail.cmdFreeEntry));
    modes->addWidget(add(mail.cmdUseList));
    modes->addStretch(1);

    QListView* list = add(mail.lstPlayerNames);
    setSmallest(*list, kPlayerCharacters);

    QVBoxLayout* column = look::column();
    column->addWidget(add(mail.lblEntry));
    column->addWidget(add(mail.txtEntry));
    column->addLayout(modes);
    column->addWidget(list, 1);
    return column;
}

QLayout* EmailView::recipients(EmailScreen& mail)
{
    QHBoxLayout* below = look::row();
    below->addWidget(add(mail.cmdDelete));
    below->addWidget(add(mail.cmdCopy));
    below->addStretch(1);

    QListView* list = add(mail.lstTo);
    setSmallest(*list, kAddressCharacters);

    QVBoxLayout* column = look::column();
    column->addWidget(add(mail.lblTo));
    column->addWidget(list, 1);
    column->addLayout(below);
    return column;
}

QLayout* EmailView::message(EmailScreen& mail)
{
    QHBoxLayout* subject = look::row();
    subject->addWidget(add(mail.lblSubject));
    subject->addWidget(add(mail.txtSubject), 1);

    QWidget* text = add(mail.txtMessage);
    text->setMinimumHeight(text->fontMetrics().lineSpacing() * kMessageLines);

    QVBoxLayout* column = look::column();
    column->addLayout(subject);
    column->addWidget(add(mail.lblMessage));
    column->addWidget(text, 1);
    return column;
}

QLayout* EmailView::buttons(EmailScreen& mail)
{
    QHBoxLayout* row = look::row();
    row->addStretch(1);
    row->addWidget(add(mail.cmdSend));
    row->addWidget(add(mail.cmdExit));
    return row;
}

} // namespace tallyhoop::qt
