// qt/views/reports_view.h - the page of the reports screen.
#pragma once

#include "qt/page.h"
#include "screens/reports/reports_screen.h"

namespace tallyhoop::qt {

class ReportsView : public Page
{
    Q_OBJECT

public:
    ReportsView(ReportsScreen& reports, Desk& desk);

private:
    QWidget* frame(ui::Label& title, QLayout* content);
    QLayout* textReports(ReportsScreen& reports);
    QLayout* selections(ReportsScreen& reports);
    QLayout* destinations(ReportsScreen& reports);
    QLayout* printouts(ReportsScreen& reports);
    QLayout* customReports(ReportsScreen& reports);
};

} // namespace tallyhoop::qt
