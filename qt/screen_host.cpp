// qt/screen_host.cpp - a window for each placement, unloading from inside a command, and the end of the program.
#include "qt/screen_host.h"

#include <QApplication>
#include <QDialog>
#include <QVBoxLayout>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

/// The window around the page of a modal screen: its close button and Escape go to the screen's closeRequested().
class PageDialog : public QDialog
{
public:
    PageDialog(Page& page, QWidget* parent) : QDialog{parent}, m_page{page}
    {
        setWindowTitle(page.windowTitle());
        connect(&page, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
        page.setWindowFlags(Qt::Widget);
        auto* layout = new QVBoxLayout{this};
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&page);
    }

    void reject() override
    {
        m_page.run([this] { m_page.screen().closeRequested(); });
    }

private:
    Page& m_page;
};

} // namespace

ScreenHost::ScreenHost(Desk& desk, MainFrame& frame) : m_desk{desk}, m_frame{frame}
{
    m_desk.setFrame(&frame);
    m_desk.pushed = [this] { m_frame.refreshTitle(); };
    m_frame.closeWanted = [this] {
        if (m_desk.accepts(nullptr))
            endProgram();
    };
    ended = [] { QApplication::quit(); };
}

ScreenHost::~ScreenHost()
{
    m_desk.pushed = nullptr;
    while (!m_loaded.empty()) {
        m_loaded.back()->window.reset();
        m_loaded.pop_back();
    }
    m_desk.clearParked(); // a parked dialog is still a child of the frame, which may be destroyed next
}

ScreenHost::Loaded* ScreenHost::loaded(ScreenKind kind) const
{
    const auto at = std::ranges::find_if(m_loaded, [&](const auto& one) { return one->kind == kind; });
    return at == m_loaded.end() ? nullptr : at->get();
}

bool ScreenHost::isStill(ScreenKind kind, const ui::Screen& screen) const
{
    const Loaded* now = loaded(kind);
    return now && now->screen.get() == &screen;
}

bool ScreenHost::isLoaded(ScreenKind kind) const { return loaded(kind) != nullptr; }

ui::Screen* ScreenHost::screen(ScreenKind kind) const
{
    const Loaded* one = loaded(kind);
    return one ? one->screen.get() : nullptr;
}

Page* ScreenHost::page(ScreenKind kind) const
{
    const Loaded* one = loaded(kind);
    return one ? one->page : nullptr;
}

void ScreenHost::load(ScreenKind kind, const std::string& news)
{
    if (Loaded* one = loaded(kind)) {
        if (!news.empty())
            one->screen->say(news);
        bringToFront(kind);
        return;
    }
    MadeScreen made = make(kind);
    auto one = std::make_unique<Loaded>();
    one->kind = kind;
    one->placement = made.placement;
    one->screen = std::move(made.screen);
    one->page = made.page.get();
    one->window = std::move(made.page);
    ui::Screen& screen = *one->screen;
    m_loaded.push_back(std::move(one));

    m_desk.runInside(screen, [&screen, &news] {
        screen.load();
        if (!news.empty())
            screen.say(news);
    });
    // Its load() may have unloaded it again: then there is nothing to show.
    if (!isStill(kind, screen))
        return;
    loaded(kind)->page->focusFirst();
    m_desk.push();
    show(*loaded(kind));
}

void ScreenHost::show(Loaded& one)
{
    Page& page = *one.page;
    ui::Screen& screen = *one.screen;
    ui::Control* const chosen = screen.focused;
    switch (one.placement) {
    case Placement::Stacked:
        m_frame.addPage(page);
        break;
    case Placement::OwnWindow:
        page.setParent(&m_frame, Qt::Window);
        page.show();
        page.raise();
        page.activateWindow();
        break;
    case Placement::Modal:
        runModal(one);
        return;
    }
    // With its new parent the page gave the focus to its first widget.
    screen.focused = chosen;
    page.push();
    // Now that it is shown, the focus is reported to the screen.
    m_desk.runInside(screen, {});
}

void ScreenHost::runModal(Loaded& one)
{
    ui::Screen& screen = *one.screen;
    Page& page = *one.page;
    const ScreenKind kind = one.kind;
    QWidget* parent = m_desk.windowForDialogs();
    static_cast<void>(one.window.release()); // the dialog owns the page from here on
    auto dialog = std::make_unique<PageDialog>(page, parent);
    QDialog& shown = *dialog;
    one.window = std::move(dialog);

    m_desk.beforeModal();
    const Desk::Modal modal{m_desk, &screen};
    shown.exec();
    // Closing it unloads the screen as a rule; if the dialog ended in any other way, the screen is unloaded here.
    if (isStill(kind, screen))
        unload(kind);
}

void ScreenHost::unload(ScreenKind kind)
{
    Loaded* one = loaded(kind);
    if (!one || one->unloading)
        return;
    one->unloading = true;
    ui::Screen& screen = *one->screen;
    m_desk.runInside(screen, [&screen] { screen.unloading(); });

    const auto at = std::ranges::find_if(m_loaded, [&](const auto& other) { return other.get() == one; });
    const std::unique_ptr<Loaded> gone = std::move(*at);
    m_loaded.erase(at);
    takeApart(*gone);
    m_desk.push();
}

void ScreenHost::takeApart(Loaded& gone)
{
    switch (gone.placement) {
    case Placement::Stacked:
        m_frame.removePage(*gone.page);
        showLastStacked();
        break;
    case Placement::OwnWindow:
        gone.page->hide();
        gone.page->setParent(nullptr);
        break;
    case Placement::Modal:
        if (auto* dialog = qobject_cast<QDialog*>(gone.window.get()))
            dialog->done(QDialog::Accepted);
        break;
    }
    m_desk.park(std::move(gone.window), std::move(gone.screen));
}

void ScreenHost::showLastStacked()
{
    for (auto one = m_loaded.rbegin(); one != m_loaded.rend(); ++one)
        if ((*one)->placement == Placement::Stacked && (*one)->page->parentWidget()) {
            Page& page = *(*one)->page;
            m_frame.showPage(page);
            if (QWidget* last = page.focusWidget()) // had the focus before the page was covered
                last->setFocus(Qt::OtherFocusReason);
            return;
        }
}

void ScreenHost::bringToFront(ScreenKind kind)
{
    Loaded* one = loaded(kind);
    if (!one || one->unloading)
        return;
    if (one->placement == Placement::Stacked)
        m_frame.showPage(*one->page);
    QWidget* window = one->page->window();
    if (window->isMinimized())
        window->showNormal();
    window->raise();
    window->activateWindow();
}

void ScreenHost::endProgram()
{
    while (!m_loaded.empty() && !m_loaded.back()->unloading)
        unload(m_loaded.back()->kind);
    m_frame.closeWanted = nullptr;
    m_frame.hide();
    if (ended)
        ended();
}

} // namespace tallyhoop::qt
