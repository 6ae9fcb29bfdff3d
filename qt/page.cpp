// qt/page.cpp - what all widgets have in common, and the two directions in which they are kept in sync.
#include "qt/page.h"

#include "qt/look.h"
#include "qt/text.h"
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QCloseEvent>
#include <QStatusTipEvent>

namespace tallyhoop::qt {

Page::Page(ui::Screen& screen, Desk& desk)
    : m_screen{screen},
      m_desk{desk},
      m_focus{*this, screen, m_widgets},
      m_statusLine{*this, screen},
      m_menus{*this, screen, m_sync, [this](ui::MenuEntry& entry) {
                  m_lastTyped.box = nullptr;
                  run([&entry] { entry.click(); });
              }}
{
    setObjectName(toQString(screen.name));
    setContextMenuPolicy(Qt::NoContextMenu);
    follow(screen.caption, [this](const std::string& caption) { setWindowTitle(titleText(toQString(caption))); });
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (!m_sync.isPushing() && m_focus.hasMoved())
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

void Page::followCommonParts(ui::Control& control, QWidget& widget)
{
    if (!widget.parentWidget())
        widget.setParent(this);
    widget.setObjectName(toQString(control.name));
    widget.installEventFilter(this);
    m_widgets.add(control, widget);

    follow(control.enabled, [&widget](bool enabled) { widget.setEnabled(enabled); });
    // A widget that was never hidden is shown with its page; showing it earlier would make it a window.
    follow(control.visible, [&widget, first = true](bool visible) mutable {
        if (!first || !visible)
            widget.setVisible(visible);
        first = false;
    });
    follow(control.toolTip, [&widget](const std::string& tip) { widget.setToolTip(plainToolTip(toLines(tip))); });
    follow(control.spokenName, [&widget](const std::string& name) { widget.setAccessibleName(toQString(name)); });
    // Without a description, assistive tools would get the tool tip with its markup.
    onPush([&control, &widget, spoken = std::string{}]() mutable {
        if (std::string now = control.spokenExplanation(); now != spoken) {
            spoken = std::move(now);
            widget.setAccessibleDescription(toLines(spoken));
        }
    });
    const bool byTab = (widget.focusPolicy() & Qt::TabFocus) != 0;
    const Qt::FocusPolicy policy = widget.focusPolicy();
    follow(control.tabStop, [this, &widget, byTab, policy](bool tabStop) {
        if (byTab)
            widget.setFocusPolicy(tabStop ? policy : ((policy & Qt::ClickFocus) != 0 ? Qt::ClickFocus : Qt::NoFocus));
        m_focus.tabsChanged();
    });
    follow(control.tabIndex, [this](int) { m_focus.tabsChanged(); });
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
    m_statusLine.commandBegins();
    m_sync.pull();
    m_focus.pull();
}

void Page::push()
{
    const Sync::Pushing pushing{m_sync};
    m_sync.push();
    m_focus.push();
    m_statusLine.show(m_focus.focused());
}

bool Page::reportFocus()
{
    const std::optional<FocusMove> move = m_focus.takeMove();
    if (!move)
        return false;
    m_statusLine.focusMoved(move->from == nullptr);
    if (move->from)
        m_screen.lostFocus(*move->from);
    m_screen.gotFocus(*move->to);
    return true;
}

/// A menu sends the explanation of the entry that the pointer or a key has reached, and an empty one when it closes.
bool Page::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip)
        return QMainWindow::event(event);
    m_statusLine.entryReached(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

void Page::closeEvent(QCloseEvent* event)
{
    // The screen decides; when it agrees, it is unloaded and its window is closed with it.
    event->ignore();
    run([this] { m_screen.closeRequested(); });
}

} // namespace tallyhoop::qt
