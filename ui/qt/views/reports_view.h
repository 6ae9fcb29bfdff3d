// ui/qt/views/reports_view.h - the reports screen as the person sees it.
#pragma once

#include "reports/frmPoolReports.h"
#include "ui/qt/page.h"

namespace tallyhoop::qt {

class ReportsView : public Page
{
    Q_OBJECT

public:
    ReportsView(frmPoolReports& reports, Desk& desk);

private:
    QWidget* frame(ui::Label& title, QLayout* content);
    QLayout* textReports(frmPoolReports& reports);
    QLayout* selections(frmPoolReports& reports);
    QLayout* destinations(frmPoolReports& reports);
    QLayout* printouts(frmPoolReports& reports);
    QLayout* customReports(frmPoolReports& reports);
};

} // namespace tallyhoop::qt
