// qt/views/import_view.cpp - sources in a row, the table with its buttons, the bracket with all that is said of it.
#include "qt/views/import_view.h"

#include "qt/look.h"
#include "qt/widgets/small_bracket.h"

#include <QLabel>

namespace tallyhoop::qt {

namespace {

constexpr int kMargin = 12; ///< around the page
constexpr int kPastedLines = 2;
constexpr int kDetailLines = 5;
constexpr int kSummaryLines = 6;

/// @returns the box, as high as so many lines
QWidget* ofLines(QWidget* box, int lines)
{
    constexpr int kFrame = 12; ///< a box's frame and margins, above and below together
    box->setFixedHeight(box->fontMetrics().lineSpacing() * lines + kFrame);
    return box;
}

QLabel* heading(QLabel* label)
{
    label->setFont(look::boldFont());
    return label;
}

} // namespace

ImportView::ImportView(ImportScreen& import, Desk& desk) : Page{import, desk}
{
    QLabel* const counts = heading(add(import.lblCounts));
    counts->setWordWrap(true);

    QHBoxLayout* const middle = look::row(look::kSection);
    middle->addLayout(makeList(import), 5);
    middle->addLayout(makeEntry(import), 4);

    QVBoxLayout* const page = look::column();
    page->addLayout(makeSources(import));
    page->addWidget(counts);
    page->addLayout(middle, 1);
    setContent(page);
    page->setContentsMargins(kMargin, kMargin, kMargin, look::kTight);
}

QLayout* ImportView::makeSources(ImportScreen& import)
{
    QHBoxLayout* const row = look::row();
    row->addWidget(add(import.cmdChooseFiles));
    row->addWidget(add(import.cmdChooseFolder));
    row->addSpacing(look::kSection);
    row->addWidget(add(import.lblPasted));
    row->addWidget(ofLines(add(import.txtPasted), kPastedLines), 1);
    row->addWidget(add(import.cmdReadText));
    return row;
}

QLayout* ImportView::makeList(ImportScreen& import)
{
    QTableView* const table = add(import.grdEntries);
    table->setFont(look::smallFont());
    table->setWordWrap(true); // what would happen is to be read whole

    QHBoxLayout* const buttons = look::row();
    for (ui::Command* command : {&import.cmdTickAll, &import.cmdUntickAll, &import.cmdEmptyList})
        buttons->addWidget(add(*command));
    buttons->addStretch();
    buttons->addWidget(add(import.cmdImport));

    QVBoxLayout* const column = look::column();
    column->addWidget(table, 1);
    column->addLayout(buttons);
    column->addLayout(makeSummary(import));
    return column;
}

QLayout* ImportView::makeEntry(ImportScreen& import)
{
    QHBoxLayout* const exit = look::row();
    exit->addStretch();
    exit->addWidget(add(import.cmdExit));

    QVBoxLayout* const column = look::column(look::kTight);
    column->addWidget(heading(add(import.lblEntry)));
    column->addWidget(new SmallBracket{*this, import.lblRegionTitle, import.lblChampion, import.lblRegion}, 1);
    column->addWidget(ofLines(add(import.txtDetails), kDetailLines));
    column->addLayout(exit);
    return column;
}

QLayout* ImportView::makeSummary(ImportScreen& import)
{
    QHBoxLayout* const above = look::row();
    above->addWidget(heading(add(import.lblSummary)));
    above->addStretch();
    above->addWidget(add(import.cmdCopy));

    QVBoxLayout* const column = look::column(look::kTight);
    column->addLayout(above);
    column->addWidget(ofLines(add(import.txtSummary), kSummaryLines));
    return column;
}

} // namespace tallyhoop::qt
