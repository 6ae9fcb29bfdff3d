// qt/services/preview_dialog.cpp - Qt's preview without what it cannot do here, and with our own ways to go on.
#include "qt/services/preview_dialog.h"

#include "qt/print_pages.h"
#include "qt/text.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <algorithm>
#include <array>

namespace tallyhoop::qt {

namespace {

constexpr int kListWidth = 190;

/// A printout has its own orientation, its paper is the printer's, and Qt would print without our checks.
void removeWhatDoesNothing(QToolBar& bar)
{
    constexpr std::array kUseless{"Portrait", "Landscape", "Page setup", "Print"};
    bool separated = true; // a separator at the beginning, or after another one, is removed too
    const auto actions = bar.actions();
    for (QAction* const action : actions) {
        const bool useless =
            std::ranges::any_of(kUseless, [action](const char* text) { return action->text() == QLatin1String{text}; });
        if (useless || (action->isSeparator() && separated))
            bar.removeAction(action);
        else
            separated = action->isSeparator();
    }
}

} // namespace

PreviewDialog::PreviewDialog(QPrinter& printer, const ui::Preview& preview, QWidget* parent)
    : QPrintPreviewDialog{&printer, parent}, m_printer{printer}, m_preview{preview}
{
    // Qt gives its page number and its zoom no accessible name.
    for (QLineEdit* number : findChildren<QLineEdit*>())
        number->setAccessibleName(QStringLiteral("Page"));
    for (QComboBox* zoom : findChildren<QComboBox*>())
        zoom->setAccessibleName(QStringLiteral("Zoom"));
    connect(this, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* device) { static_cast<void>(paintPages(*device, m_preview.printouts.at(m_shown))); });
    auto* const bar = findChild<QToolBar*>();
    auto* const window = findChild<QMainWindow*>();
    auto* const pages = findChild<QPrintPreviewWidget*>();
    removeWhatDoesNothing(*bar);
    addCommands(*bar);
    if (m_preview.printouts.size() > 1)
        addList(*window, *pages);
    show(0);
    const QSize room = (parent ? parent->screen() : screen())->availableSize();
    resize(std::min(1000, room.width() - 60), std::min(900, room.height() - 60));
}

void PreviewDialog::addCommands(QToolBar& bar)
{
    const auto command = [&](const char* text, const std::function<void(const ui::Printout&)>& act) {
        QAction* const action = bar.addAction(QString::fromLatin1(text));
        connect(action, &QAction::triggered, this, [this, &act] { act(m_preview.printouts.at(m_shown)); });
    };
    bar.addSeparator();
    command("P&rint", m_preview.print);
    command("&Save as PDF", m_preview.savePdf);
}

void PreviewDialog::addList(QMainWindow& window, QPrintPreviewWidget& pages)
{
    auto* const list = new QListWidget;
    list->setAccessibleName(QStringLiteral("Printouts"));
    for (const ui::Printout& printout : m_preview.printouts)
        list->addItem(toQString(ui::titleOf(printout)));
    list->setCurrentRow(0);
    auto* const both = new QSplitter;
    both->addWidget(list);
    both->addWidget(&pages);
    both->setSizes({kListWidth, 1000});
    both->setStretchFactor(1, 1);
    window.setCentralWidget(both);
    connect(list, &QListWidget::currentRowChanged, this, [this, &pages](int row) {
        show(static_cast<std::size_t>(std::max(row, 0)));
        pages.setCurrentPage(1);
    });
}

void PreviewDialog::show(std::size_t printout)
{
    m_shown = printout;
    const ui::Printout& shown = m_preview.printouts.at(printout);
    setWindowTitle(QStringLiteral("Preview - ") + titleText(toQString(ui::titleOf(shown))));
    m_printer.setPageOrientation(orientationOf(shown));
    findChild<QPrintPreviewWidget*>()->updatePreview();
}

} // namespace tallyhoop::qt
