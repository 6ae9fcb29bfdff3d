// qt/views/email_view.h - the e-mail dialog as the person sees it.
#pragma once

#include "qt/page.h"
#include "screens/players/email_screen.h"

namespace tallyhoop::qt {

class EmailView : public Page
{
    Q_OBJECT

public:
    EmailView(EmailScreen& mail, Desk& desk);

private:
    QLayout* players(EmailScreen& mail);
    QLayout* recipients(EmailScreen& mail);
    QLayout* message(EmailScreen& mail);
    QLayout* buttons(EmailScreen& mail);
};

} // namespace tallyhoop::qt
