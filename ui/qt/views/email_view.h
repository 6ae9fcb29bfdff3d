// ui/qt/views/email_view.h - the e-mail dialog as the person sees it.
#pragma once

#include "players/frmPoolEMail.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class EmailView : public Page
{
    Q_OBJECT

public:
    EmailView(frmPoolEMail& mail, Desk& desk);

private:
    QLayout* players(frmPoolEMail& mail);
    QLayout* recipients(frmPoolEMail& mail);
    QLayout* message(frmPoolEMail& mail);
    QLayout* buttons(frmPoolEMail& mail);
};

} // namespace tallyhoop::qt
