// qt/page_status.cpp - the line below a page: explains the control under the pointer or with the focus, and shows the
// screen's status at its right end.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/widgets/elided_label.h"

#include <QEvent>
#include <QStatusBar>
#include <QStatusTipEvent>

namespace tallyhoop::qt {

namespace {

constexpr int kEdge = look::kSection - 2; ///< aligns with the page's margin; the status bar adds 2 of its own

} // namespace

/// Made when the first text arrives, so that a page without any keeps the room for its controls.
void Page::makeStatusLine()
{
    if (m_explanation)
        return;
    m_explanation = new ElidedLabel{this};
    m_explanation->setObjectName(QStringLiteral("explanation"));
    // A long sentence is cut; it must not make the window wider.
    m_explanation->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_status = new QLabel{this};
    m_status->setObjectName(QStringLiteral("status"));
    for (QLabel* label : {static_cast<QLabel*>(m_explanation), m_status}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(kEdge, 0, kEdge, 0);
    }
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_explanation, 1);
    statusBar()->addPermanentWidget(m_status);
    statusBar()->show();
}

void Page::followExplanation(ui::Control& control, QWidget& widget)
{
    follow(control.explanation, [this](const std::string& text) {
        if (!text.empty())
            makeStatusLine();
    });
    onPush([&control, &widget, spoken = std::string{}]() mutable {
        // Without a description, assistive tools would get the tool tip with its markup.
        const std::string& tip = control.explanation.empty() ? control.toolTip : control.explanation;
        const std::string& hint = control.spokenHint.empty() ? tip : control.spokenHint;
        if (hint == spoken)
            return;
        spoken = hint;
        widget.setAccessibleDescription(toLines(hint));
    });
}

void Page::pointerCameOrWent(const ui::Control& control, const QEvent& event)
{
    if (event.type() == QEvent::Enter)
        m_pointed = &control;
    else if (event.type() == QEvent::Leave && m_pointed == &control)
        m_pointed = nullptr;
    else
        return;
    explain();
}

/// A menu sends the explanation of the entry that the pointer or a key has reached, and an empty one when it closes.
bool Page::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    m_entryExplained = static_cast<QStatusTipEvent*>(event)->tip();
    explain();
    return true;
}

/// The latest event decides: the pointer entered a control, the focus moved, or the screen set a new hint.
void Page::explain()
{
    if (!m_explanation)
        return;
    const ui::Control* const focus = focusedControl();
    std::string text;
    if (m_pointed)
        text = m_pointed->explanation;
    if (text.empty() && focus && m_focusMoved)
        text = focus->explanation;
    if (text.empty())
        text = m_screen.hint;
    if (text.empty() && focus)
        text = focus->explanation;
    const QString shown = m_entryExplained.isEmpty() ? toQString(text) : m_entryExplained;
    if (shown != m_explanation->text())
        m_explanation->setText(shown);
}

} // namespace tallyhoop::qt
