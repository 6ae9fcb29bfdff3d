// qt/main_frame.cpp - a stack of pages, a title from the one on top, and closing that the screens decide.
#include "qt/main_frame.h"

#include "qt/file_drops.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>

namespace tallyhoop::qt {

namespace {

constexpr const char* kProgram = "Tallyhoop";
constexpr QSize kSmallest{1024, 640}; ///< leaves room for a task bar and a title on 1366x768
constexpr QSize kComfortable{1280, 860};

} // namespace

MainFrame::MainFrame() : m_stack{new QStackedWidget}
{
    setObjectName(QStringLiteral("frmPoolMIDI"));
    setContextMenuPolicy(Qt::NoContextMenu);
    setMinimumSize(kSmallest.boundedTo(roomForWindow(*this))); // pages scroll on a display that is smaller
    setCentralWidget(m_stack);
    new FileDrops{*this};
    refreshTitle();
}

void MainFrame::open()
{
    const QRect available = screen()->availableGeometry();
    // Centred before it is shown, because the first question appears centred over it; and no larger than the display,
    // so that a page is not laid out for a size that is never shown.
    const QSize size = kComfortable.boundedTo(available.size());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, available));
    if (available.width() < kComfortable.width() + 100 || available.height() < kComfortable.height() + 60)
        showMaximized();
    else
        show();
}

void MainFrame::addPage(Page& page)
{
    page.setWindowFlags(Qt::Widget);
    page.resize(m_stack->size()); // lays it out once, not first for a size that is never shown
    m_stack->addWidget(&page);
    showPage(page);
}

void MainFrame::removePage(Page& page)
{
    page.hide();
    m_stack->removeWidget(&page);
    page.setParent(nullptr);
    refreshTitle();
}

void MainFrame::showPage(Page& page)
{
    m_stack->setCurrentWidget(&page);
    refreshTitle();
}

Page* MainFrame::visiblePage() const { return qobject_cast<Page*>(m_stack->currentWidget()); }

/// @returns what a page adds to the program's name: the open document, or which screen it is
static QString subjectOf(const ui::Screen& screen)
{
    const QString subject = toQString(screen.document.empty() ? screen.caption : screen.document);
    return subject == QLatin1String{kProgram} ? QString{} : QLatin1String{" - "} + titleText(subject);
}

// The mark of unsaved changes is written out: with Qt's own, the title's text would contain a placeholder.
void MainFrame::refreshTitle()
{
    QString title = QLatin1String{kProgram};
    if (const Page* page = visiblePage())
        title += subjectOf(page->screen()) + QLatin1String{page->screen().unsaved ? "*" : ""};
    if (title != windowTitle())
        setWindowTitle(title);
}

void MainFrame::closeEvent(QCloseEvent* event)
{
    if (!closeWanted)
        return;
    event->ignore();
    closeWanted();
}

} // namespace tallyhoop::qt
