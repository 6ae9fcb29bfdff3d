// qt/page.cpp - the parts that all widgets have in common, the focus in both directions, and the tab order.
#include "qt/page.h"

#include "qt/look.h"
#include "qt/text.h"
#include "qt/widgets/page_area.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <algorithm>
#include <limits>

namespace tallyhoop::qt {

Page::Page(ui::Screen& screen, Desk& desk) : m_screen{screen}, m_desk{desk}
{
    setObjectName(toQString(screen.name));
    setContextMenuPolicy(Qt::NoContextMenu);
    follow(screen.caption, [this](const std::string& caption) { setWindowTitle(titleText(toQString(caption))); });
    buildMenuBar();

    follow(screen.status, [this](const std::string& text) {
        if (!text.empty())
            makeStatusLine();
        if (m_status)
            m_status->setText(toQString(text));
    });
    follow(screen.hint, [this](const std::string& text) {
        if (!text.empty())
            makeStatusLine();
        m_focusMoved = false;
        m_pointed = nullptr;
    });
    connect(qApp, &QApplication::focusChanged, this, [this] {
        ui::Control* now = focusedControl();
        if (!m_pushing && isVisible() && now && now != m_focusReported)
            run({}); // after a command the desk reports the focus to the screen
    });
    m_desk.attach(*this);
}

Page::~Page()
{
    m_desk.detach(*this);
    // Widgets report lost focus while they are destroyed; that must not reach the screen.
    QObject::disconnect(qApp, nullptr, this, nullptr);
}

void Page::setContent(QLayout* layout)
{
    auto* content = new QWidget;
    look::pageMargins(*layout);
    content->setLayout(layout);
    setCentralWidget(new PageArea{content});
}

void Page::onPush(std::function<void()> apply)
{
    const bool before = std::exchange(m_pushing, true);
    apply();
    m_pushing = before;
    m_pushes.push_back(std::move(apply));
}

void Page::followCommonParts(ui::Control& control, QWidget& widget)
{
    if (!widget.parentWidget())
        widget.setParent(this);
    widget.setObjectName(toQString(control.name));
    widget.installEventFilter(this);
    m_controls[&widget] = &control;
    m_widgetOf[&control] = &widget;

    follow(control.enabled, [&widget](bool enabled) { widget.setEnabled(enabled); });
    // A widget that was never hidden is shown with its page; showing it earlier would make it a window.
    follow(control.visible, [&widget, first = true](bool visible) mutable {
        if (!first || !visible)
            widget.setVisible(visible);
        first = false;
    });
    follow(control.toolTip, [&widget](const std::string& tip) { widget.setToolTip(plainToolTip(toLines(tip))); });
    follow(control.spokenName, [&widget](const std::string& name) { widget.setAccessibleName(toQString(name)); });
    followExplanation(control, widget);
    const bool byTab = (widget.focusPolicy() & Qt::TabFocus) != 0;
    const Qt::FocusPolicy policy = widget.focusPolicy();
    follow(control.tabStop, [this, &widget, byTab, policy](bool tabStop) {
        if (byTab)
            widget.setFocusPolicy(tabStop ? policy : ((policy & Qt::ClickFocus) != 0 ? Qt::ClickFocus : Qt::NoFocus));
        m_tabsChanged = true;
    });
    follow(control.tabIndex, [this](int) { m_tabsChanged = true; });
}

QWidget* Page::widgetOf(const ui::Control& control) const
{
    const auto at = m_widgetOf.find(&control);
    return at == m_widgetOf.end() ? nullptr : at->second;
}

QAction* Page::actionOf(const ui::MenuEntry& entry) const
{
    const auto at = m_actions.find(&entry);
    return at == m_actions.end() ? nullptr : at->second;
}

std::vector<std::string> Page::controlsWithoutWidget() const
{
    std::vector<std::string> names;
    for (const ui::Control* control : m_screen.controls()) {
        const auto* entry = dynamic_cast<const ui::MenuEntry*>(control);
        if (!widgetOf(*control) && !(entry && actionOf(*entry)))
            names.push_back(control->name);
    }
    return names;
}

void Page::pull()
{
    for (const auto& pullOne : m_pulls)
        pullOne();
    pullFocus();
}

void Page::push()
{
    const bool before = std::exchange(m_pushing, true);
    for (const auto& pushOne : m_pushes)
        pushOne();
    if (m_tabsChanged)
        orderTabs();
    pushFocus();
    explain();
    m_pushing = before;
}

void Page::pullFocus()
{
    ui::Control* now = focusedControl();
    if (!isVisible() || !now || now == m_focusSeen)
        return;
    m_focusSeen = now;
    m_screen.focused = now;
}

void Page::pushFocus()
{
    QWidget* wanted = m_screen.focused ? widgetOf(*m_screen.focused) : nullptr;
    if (wanted && m_screen.focused != focusedControl() && wanted->isEnabled())
        wanted->setFocus(Qt::OtherFocusReason);
    ui::Control* now = focusedControl();
    // A hidden or disabled control cannot have the focus: the model gets the control that has it instead.
    if (now && isVisible())
        m_screen.focused = now;
    m_focusSeen = now;
}

bool Page::reportFocus()
{
    ui::Control* now = focusedControl();
    if (!isVisible() || !now || now == m_focusReported)
        return false;
    ui::Control* before = std::exchange(m_focusReported, now);
    m_focusMoved = before != nullptr;
    m_pointed = nullptr;
    if (before)
        m_screen.lostFocus(*before);
    m_screen.gotFocus(*now);
    return true;
}

ui::Control* Page::controlOf(const QWidget* widget) const
{
    for (; widget && widget != this; widget = widget->parentWidget())
        if (const auto at = m_controls.find(widget); at != m_controls.end())
            return at->second;
    return nullptr;
}

ui::Control* Page::focusedControl() const { return controlOf(focusWidget()); }

namespace {

int tabPlace(const ui::Control& control)
{
    return control.tabIndex < 0 ? std::numeric_limits<int>::max() : control.tabIndex;
}

} // namespace

void Page::orderTabs()
{
    m_tabsChanged = false;
    std::vector<ui::Control*> inOrder;
    for (ui::Control* control : m_screen.controls())
        if (QWidget* widget = widgetOf(*control); widget && (widget->focusPolicy() & Qt::TabFocus))
            inOrder.push_back(control);
    std::ranges::stable_sort(inOrder, {}, [](const ui::Control* control) { return tabPlace(*control); });
    for (std::size_t i = 1; i < inOrder.size(); ++i)
        setTabOrder(widgetOf(*inOrder[i - 1]), widgetOf(*inOrder[i]));
}

void Page::focusFirst()
{
    if (m_screen.focused)
        return;
    ui::Control* first = nullptr;
    for (ui::Control* control : m_screen.controls()) {
        const QWidget* widget = widgetOf(*control);
        const bool possible = widget && control->enabled && control->visible && (widget->focusPolicy() & Qt::TabFocus);
        if (possible && (!first || tabPlace(*control) < tabPlace(*first)))
            first = control;
    }
    m_screen.focused = first;
}

void Page::closeEvent(QCloseEvent* event)
{
    // The screen decides; when it agrees, it is unloaded and its window is closed with it.
    event->ignore();
    run([this] { m_screen.closeRequested(); });
}

} // namespace tallyhoop::qt
