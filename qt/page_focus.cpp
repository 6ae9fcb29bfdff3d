// qt/page_focus.cpp - the focus between widgets and model, and the tab order by the controls' places in it.
#include "qt/page_focus.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace tallyhoop::qt {

namespace {

int tabPlace(const ui::Control& control)
{
    return control.tabIndex < 0 ? std::numeric_limits<int>::max() : control.tabIndex;
}

} // namespace

PageFocus::PageFocus(QWidget& page, ui::Screen& screen, const ControlWidgets& widgets)
    : m_page{page}, m_screen{screen}, m_widgets{widgets}
{
}

ui::Control* PageFocus::focused() const
{
    for (const QWidget* widget = m_page.focusWidget(); widget && widget != &m_page; widget = widget->parentWidget())
        if (ui::Control* control = m_widgets.controlOf(widget))
            return control;
    return nullptr;
}

void PageFocus::pull()
{
    ui::Control* now = focused();
    if (!m_page.isVisible() || !now || now == m_seen)
        return;
    m_seen = now;
    m_screen.focused = now;
}

void PageFocus::push()
{
    if (std::exchange(m_tabsChanged, false))
        orderTabs();
    QWidget* wanted = m_screen.focused ? m_widgets.widgetOf(*m_screen.focused) : nullptr;
    if (wanted && m_screen.focused != focused() && wanted->isEnabled())
        wanted->setFocus(Qt::OtherFocusReason);
    ui::Control* now = focused();
    // A hidden or disabled control cannot have the focus: the model gets the control that has it instead.
    if (now && m_page.isVisible())
        m_screen.focused = now;
    m_seen = now;
}

bool PageFocus::hasMoved() const
{
    const ui::Control* now = focused();
    return m_page.isVisible() && now && now != m_taken;
}

std::optional<FocusMove> PageFocus::takeMove()
{
    if (!hasMoved())
        return std::nullopt;
    ui::Control* now = focused();
    return FocusMove{std::exchange(m_taken, now), now};
}

void PageFocus::orderTabs()
{
    std::vector<ui::Control*> inOrder;
    for (ui::Control* control : m_screen.controls())
        if (QWidget* widget = m_widgets.widgetOf(*control); widget && (widget->focusPolicy() & Qt::TabFocus))
            inOrder.push_back(control);
    std::ranges::stable_sort(inOrder, {}, [](const ui::Control* control) { return tabPlace(*control); });
    for (std::size_t i = 1; i < inOrder.size(); ++i)
        QWidget::setTabOrder(m_widgets.widgetOf(*inOrder[i - 1]), m_widgets.widgetOf(*inOrder[i]));
}

void PageFocus::toFirst()
{
    if (m_screen.focused)
        return;
    ui::Control* first = nullptr;
    for (ui::Control* control : m_screen.controls()) {
        const QWidget* widget = m_widgets.widgetOf(*control);
        const bool possible = widget && control->enabled && control->visible && (widget->focusPolicy() & Qt::TabFocus);
        if (possible && (!first || tabPlace(*control) < tabPlace(*first)))
            first = control;
    }
    m_screen.focused = first;
}

} // namespace tallyhoop::qt
