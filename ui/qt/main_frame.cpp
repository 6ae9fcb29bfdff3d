#include "ui/qt/main_frame.h"

#include "ui/qt/page.h"
#include "ui/qt/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QStackedWidget>

namespace tallyhoop::qt {

namespace {

constexpr QSize kSmallest{1024, 640}; ///< leaves room for a task bar and a title on 1366x768
constexpr QSize kComfortable{1280, 860};

} // namespace

MainFrame::MainFrame() : m_stack{new QStackedWidget}
{
    setObjectName(QStringLiteral("frmPoolMIDI"));
    setContextMenuPolicy(Qt::NoContextMenu);
    setMinimumSize(kSmallest);
    setCentralWidget(m_stack);
    refreshTitle();
}

void MainFrame::open()
{
    resize(kComfortable);
    const QSize available = screen()->availableSize();
    if (available.width() < kComfortable.width() + 100 || available.height() < kComfortable.height() + 60)
        showMaximized();
    else
        show();
}

void MainFrame::addPage(Page& page)
{
    page.setWindowFlags(Qt::Widget);
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

void MainFrame::refreshTitle()
{
    QString title = QStringLiteral("Tallyhoop");
    const Page* page = visiblePage();
    if (page && !page->screen().document.empty())
        title += QLatin1String{" - "} + titleText(toQString(page->screen().document));
    title += QLatin1String{"[*]"};
    if (title != windowTitle())
        setWindowTitle(title);
    setWindowModified(page && page->screen().unsaved);
}

void MainFrame::closeEvent(QCloseEvent* event)
{
    if (!closeWanted)
        return;
    event->ignore();
    closeWanted();
}

} // namespace tallyhoop::qt
