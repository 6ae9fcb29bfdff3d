// qt/desk.cpp - runs commands between a pull and a push; drops those that come during another one or a question.
#include "qt/desk.h"

#include "qt/page.h"
#include "qt/text.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <exception>

namespace tallyhoop::qt {

namespace {

// A rule that moves the focus on every focus change would otherwise loop forever.
constexpr int kMostFocusRounds = 8;

} // namespace

Desk::Desk(QWidget* frame) : m_frame{frame} {}

Desk::~Desk() { clearParked(); }

bool Desk::accepts(const ui::Screen* screen) const
{
    if (m_modals.empty() ? m_depth > 0 : m_depth > m_modals.back().depth)
        return false;
    if (!m_modals.empty() && (!screen || m_modals.back().screen != screen))
        return false;
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal)
        return true;
    const Page* page = screen ? pageOf(*screen) : nullptr;
    return page && page->window() == modal;
}

void Desk::run(ui::Screen& screen, const std::function<void()>& command)
{
    if (accepts(&screen))
        execute(screen, command);
}

void Desk::runInside(ui::Screen& screen, const std::function<void()>& command) { execute(screen, command); }

void Desk::execute(ui::Screen& screen, const std::function<void()>& command)
{
    pull();
    ++m_depth;
    m_running.push_back(&screen);
    guarded(command);
    push();
    reportFocus(screen);
    m_running.pop_back();
    if (--m_depth == 0 && !m_parked.empty() && !m_clearingSoon) {
        // The widget whose signal started the command is still on the call stack: let it return first.
        m_clearingSoon = true;
        QTimer::singleShot(0, this, [this] {
            m_clearingSoon = false;
            clearParked();
        });
    }
}

void Desk::guarded(const std::function<void()>& command)
{
    if (!command)
        return;
    try {
        command();
    } catch (const std::exception& trouble) {
        showFailure(QString::fromLocal8Bit(trouble.what()));
    } catch (...) {
        showFailure(tr("No reason is known."));
    }
}

void Desk::showFailure(const QString& reason)
{
    beforeModal();
    const Modal modal{*this};
    QMessageBox box{QMessageBox::Critical, QStringLiteral("Tallyhoop"),
                    tr("The command could not be finished:") + QLatin1String{"\n"} + reason, QMessageBox::Ok,
                    windowForDialogs()};
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void Desk::reportFocus(const ui::Screen& screen)
{
    // A command may have moved the focus; the screen's own rules for that run as if the person had done it.
    for (int round = 0; round < kMostFocusRounds; ++round) {
        Page* page = pageOf(screen);
        bool reported = false;
        if (page)
            guarded([page, &reported] { reported = page->reportFocus(); });
        if (!reported)
            return;
        push();
    }
}

void Desk::beforeModal() { push(); }

void Desk::pull()
{
    // NOLINTNEXTLINE(modernize-loop-convert): pages may be attached and detached meanwhile
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->pull();
}

void Desk::push()
{
    // Showing a value can make a widget emit a signal; that must not start another push.
    if (m_pushing)
        return;
    for (const Page* page : m_pages)
        page->screen().showState();
    m_pushing = true;
    // NOLINTNEXTLINE(modernize-loop-convert): pages may be attached and detached meanwhile
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->push();
    m_pushing = false;
    if (pushed)
        pushed();
}

QWidget* Desk::windowForDialogs() const
{
    for (auto modal = m_modals.rbegin(); modal != m_modals.rend(); ++modal)
        if (modal->window)
            return modal->window;
    for (auto screen = m_running.rbegin(); screen != m_running.rend(); ++screen) {
        const Page* page = pageOf(**screen);
        if (page && page->isVisible())
            return page->window();
    }
    return m_frame;
}

Page* Desk::pageOf(const ui::Screen& screen) const
{
    const auto at = std::ranges::find_if(m_pages, [&](const Page* page) { return &page->screen() == &screen; });
    return at == m_pages.end() ? nullptr : *at;
}

void Desk::attach(Page& page) { m_pages.push_back(&page); }

void Desk::detach(Page& page) { std::erase(m_pages, &page); }

void Desk::park(std::unique_ptr<QWidget> page, std::unique_ptr<ui::Screen> screen)
{
    if (auto* itself = qobject_cast<Page*>(page.get()))
        detach(*itself);
    for (Page* held : page->findChildren<Page*>())
        detach(*held);
    page->hide();
    m_parked.push_back({std::move(page), std::move(screen)});
    if (m_depth == 0)
        QTimer::singleShot(0, this, [this] { clearParked(); });
}

void Desk::clearParked()
{
    while (m_depth == 0 && !m_parked.empty()) {
        Parked oldest = std::move(m_parked.front());
        m_parked.erase(m_parked.begin());
        oldest.page.reset(); // before the model that it shows
    }
}

Desk::Modal::Modal(Desk& desk, const ui::Screen* screen, QWidget* window) : m_desk{desk}
{
    m_desk.m_modals.push_back({screen, m_desk.m_depth, window});
}

Desk::Modal::~Modal() { m_desk.m_modals.pop_back(); }

} // namespace tallyhoop::qt
