// qt/views/entry_form_view.cpp - what the form is, the address, and what can be done with it.
#include "qt/views/entry_form_view.h"

#include "qt/look.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tallyhoop::qt {

namespace {

constexpr int kAddressCharacters = 72; ///< more than most addresses have: room for the line at the bottom

} // namespace

EntryFormView::EntryFormView(EntryFormScreen& form, Desk& desk) : Page{form, desk}
{
    QWidget* address = add(form.txtOrganiser);
    address->setMinimumWidth(address->fontMetrics().averageCharWidth() * kAddressCharacters);

    QHBoxLayout* organiser = look::row();
    organiser->addWidget(add(form.lblOrganiser));
    organiser->addWidget(address, 1);

    QHBoxLayout* buttons = look::row();
    buttons->addStretch(1);
    buttons->addWidget(add(form.cmdSave));
    buttons->addWidget(add(form.cmdMail));
    buttons->addWidget(add(form.cmdClose));

    QVBoxLayout* content = look::column();
    content->addWidget(
        look::hint(tr("The entry form is one file: a page that opens in any browser, on a telephone or a "
                      "computer. Players fill in their brackets there and hand them in; File, Import "
                      "Selections takes them in.")));
    content->addLayout(organiser);
    content->addWidget(look::hint(tr("Brackets are mailed to this address. Everybody who has the form can read it.")));
    content->addStretch(1);
    content->addLayout(buttons);
    setContent(content);
}

} // namespace tallyhoop::qt
