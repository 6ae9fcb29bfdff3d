// qt/status_line.cpp - follows pointer, focus, menus and the screen; what happens last is shown.
#include "qt/status_line.h"

#include "qt/look.h"
#include "qt/text.h"
#include "qt/widgets/elided_label.h"

#include <QApplication>
#include <QCursor>
#include <QMainWindow>
#include <QStatusBar>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr int kEdge = look::kSection - 2; ///< aligns with the page's margin; the status bar adds 2 of its own

} // namespace

StatusLine::StatusLine(QMainWindow& page, const ui::Screen& screen) : m_page{page}, m_screen{screen} {}

void StatusLine::pointerCameTo(const ui::Control& control, const QPoint& where)
{
    // Closing a box or a menu puts the pointer above another control, with the small shake of the hand that pressed.
    if (m_restsAt && (where - *m_restsAt).manhattanLength() >= QApplication::startDragDistance())
        m_restsAt.reset();
    m_pointed = &control;
    m_pointerMoved = !m_restsAt;
    explain();
}

void StatusLine::pointerLeft(const ui::Control& control)
{
    if (m_pointed == &control)
        m_pointed = nullptr;
    explain();
}

void StatusLine::focusMoved(bool first)
{
    m_focusMoved = !first && !m_spokenNow;
    m_pointerMoved = false;
}

void StatusLine::entryReached(const QString& explanation)
{
    m_entryExplained = explanation;
    explain();
}

void StatusLine::show(const ui::Control* focus)
{
    m_focus = focus;
    listen();
    if (!m_sentence && !isNeeded())
        return;
    if (!m_sentence)
        make();
    if (const QString status = toQString(m_screen.status); status != m_status->text())
        m_status->setText(status);
    explain();
}

bool StatusLine::isNeeded() const
{
    return !m_screen.status.empty() || !m_screen.news().text.empty() || !m_screen.explanation.empty() ||
           std::ranges::any_of(m_screen.controls(),
                               [](const ui::Control* control) { return !control->explanation.empty(); });
}

void StatusLine::make()
{
    m_sentence = new ElidedLabel{&m_page};
    m_sentence->setObjectName(QStringLiteral("explanation"));
    // A long sentence is cut; it must not make the window wider.
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_status = new ElidedLabel{&m_page};
    m_status->setMinimumWidth(1); // as wide as its text where there is room; nor may it make the window wider
    m_status->setObjectName(QStringLiteral("status"));
    for (ElidedLabel* label : {m_sentence, m_status}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(kEdge, 0, kEdge, 0);
    }
    QStatusBar& line = *m_page.statusBar();
    line.setSizeGripEnabled(false);
    line.addWidget(m_sentence, 1);
    line.addPermanentWidget(m_status);
    line.show();
}

/// When the screen speaks, a control has to be reached anew before it is explained again.
void StatusLine::listen()
{
    const bool isNews = m_heard != m_screen.news();
    const bool isOther = m_heardExplanation != m_screen.explanation;
    if (!isNews && !isOther)
        return;
    m_heard = m_screen.news();
    m_heardExplanation = m_screen.explanation;
    if (m_heard.text.empty() && !isOther) {
        m_restsAt.reset();
        return;
    }
    m_spokenNow = true;
    m_focusMoved = false;
    m_pointerMoved = false;
    m_restsAt = QCursor::pos();
}

void StatusLine::explain()
{
    if (!m_sentence)
        return;
    if (const QString text = sentence(); text != m_sentence->text())
        m_sentence->setText(text);
}

QString StatusLine::sentence() const
{
    if (!m_entryExplained.isEmpty())
        return m_entryExplained;
    if (m_pointed && m_pointerMoved && !m_pointed->explanation.empty())
        return toQString(m_pointed->explanation);
    if (m_focus && m_focusMoved && !m_focus->explanation.empty())
        return toQString(m_focus->explanation);
    if (!m_screen.news().text.empty())
        return toQString(m_screen.news().text);
    if (!m_screen.explanation.empty() || !m_focus)
        return toQString(m_screen.explanation);
    return toQString(m_focus->explanation);
}

} // namespace tallyhoop::qt
