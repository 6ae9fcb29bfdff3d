// qt/views/reports_view.cpp - reports and their destination above, printouts of the board below, the exit button last.
#include "qt/views/reports_view.h"

#include "qt/look.h"
#include "qt/text.h"

#include <QPushButton>
#include <QShortcut>

namespace tallyhoop::qt {

namespace {

constexpr int kWidest = 960; ///< in wider lines, what belongs together would be too far apart
constexpr int kFileRows = 7; ///< at least
constexpr int kFileCharacters = 34;

QLabel* strong(QLabel* label)
{
    label->setFont(look::boldFont());
    return label;
}

QPushButton* withKey(Qt::Key key, QPushButton* button)
{
    auto* const shortcut = new QShortcut{QKeySequence{key}, button};
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return button;
}

} // namespace

ReportsView::ReportsView(ReportsScreen& reports, Desk& desk) : Page{reports, desk}
{
    auto* const groups = look::column(look::kSection);
    groups->addWidget(frame(reports.fraMultipleOutput, textReports(reports)));
    groups->addWidget(frame(reports.fraPrinterOnly, printouts(reports)), 1);
    auto* const last = look::row(look::kSection); // together: a row more would be too high for a small display
    last->addWidget(frame(reports.fraCustomReports, customReports(reports)), 1);
    last->addWidget(add(reports.cmdExit), 0, Qt::AlignBottom);
    groups->addLayout(last);

    auto* const block = new QWidget;
    block->setLayout(groups);
    block->setMaximumWidth(kWidest);
    groups->setContentsMargins(0, 0, 0, 0);

    auto* const page = look::row();
    page->addStretch(1);
    page->addWidget(block, 100);
    page->addStretch(1);
    setContent(page);
}

QWidget* ReportsView::frame(ui::Label& title, QLayout* content)
{
    QGroupBox* const box = look::group({}, content);
    return adopt(title, box, [box](const ui::Label& label) { box->setTitle(toQString(label.text)); });
}

QLayout* ReportsView::textReports(ReportsScreen& reports)
{
    auto* const choices = look::row(look::kSection);
    choices->addLayout(selections(reports), 3);
    choices->addLayout(destinations(reports), 2);

    auto* const title = look::row();
    title->addWidget(add(reports.lblReportTitle));
    title->addWidget(add(reports.txtReportTitle), 1);

    auto* const commands = look::row();
    commands->addWidget(add(reports.cmdPrintSelections));
    commands->addSpacing(look::kSection);
    commands->addWidget(add(reports.cmdPreview));
    commands->addWidget(add(reports.cmdSavePdf));
    commands->addWidget(add(reports.cmdSaveCsv));
    commands->addWidget(withKey(Qt::Key_F12, add(reports.cmdWebPage)));
    commands->addStretch(1);

    auto* const whole = look::column(look::kSection);
    whole->addLayout(choices);
    whole->addLayout(title);
    whole->addLayout(commands);
    return whole;
}

QLayout* ReportsView::selections(ReportsScreen& reports)
{
    auto* const column = look::column(look::kTight);
    column->addWidget(strong(add(reports.lblReportSelections)));
    for (std::size_t i = 0; i < reports.chkOptions.size(); ++i)
        column->addWidget(add(reports.chkOptions[i]));
    column->addStretch(1);
    return column;
}

QLayout* ReportsView::destinations(ReportsScreen& reports)
{
    auto* const helpers = look::row();
    helpers->addWidget(add(reports.cmdDefaultPrinter));
    helpers->addWidget(add(reports.cmdOpenFolder));
    helpers->addStretch(1);

    auto* const column = look::column(look::kTight);
    column->addWidget(strong(add(reports.lblDestination)));
    for (QRadioButton* const destination : addOptions(reports.optDestination))
        column->addWidget(destination);
    column->addWidget(add(reports.chkWebPage));
    column->addSpacing(look::kGap);
    column->addLayout(helpers);
    column->addStretch(1);
    return column;
}

QLayout* ReportsView::printouts(ReportsScreen& reports)
{
    auto* const commands = look::row();
    commands->addWidget(add(reports.cmdSelectedPrintouts));
    commands->addSpacing(look::kSection);
    commands->addWidget(add(reports.cmdPreviewBoard));
    commands->addWidget(add(reports.cmdSaveBoardPdf));
    commands->addStretch(1);

    auto* const left = look::column(look::kTight);
    for (QRadioButton* const printout : addOptions(reports.optSelected))
        left->addWidget(printout);
    left->addSpacing(look::kGap);
    left->addLayout(commands);
    left->addStretch(1); // below, so that in a high window the commands stay with what they act on

    QListView* const files = add(reports.filList);
    const QFontMetrics metrics = files->fontMetrics();
    files->setMinimumSize(metrics.averageCharWidth() * kFileCharacters, metrics.lineSpacing() * kFileRows);

    auto* const whole = look::row(look::kSection);
    whole->addLayout(left, 3);
    auto* const players = look::column(look::kTight);
    players->addWidget(add(reports.chkAllPlayers));
    players->addWidget(files, 1);
    whole->addLayout(players, 2);
    return whole;
}

QLayout* ReportsView::customReports(ReportsScreen& reports)
{
    auto* const row = look::row();
    row->addWidget(add(reports.cmdCustomReport));
    row->addWidget(look::hint(tr("Enter results on the board and sort the players' scores as you like.")), 1);
    return row;
}

} // namespace tallyhoop::qt
