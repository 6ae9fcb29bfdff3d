// qt/page_menus.cpp - an action for each entry of a screen's menus.
#include "qt/page_menus.h"

#include "qt/look.h"
#include "qt/text.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace tallyhoop::qt {

PageMenus::PageMenus(QMainWindow& page, ui::Screen& screen, Sync& sync, std::function<void(ui::MenuEntry&)> chosen)
    : m_sync{sync}, m_chosen{std::move(chosen)}
{
    if (screen.menuBar.empty())
        return;
    auto* bar = new QMenuBar{&page};
    bar->setNativeMenuBar(false);
    page.setMenuBar(bar);
    for (ui::MenuEntry* entry : screen.menuBar)
        if (entry)
            bar->addAction(add(*entry, *bar));
    auto* opens = new QShortcut{QKeySequence{Qt::Key_F10}, &page}; // as other programs have it; Qt knows only Alt
    QObject::connect(opens, &QShortcut::activated, bar, [bar] { bar->setActiveAction(bar->actions().value(0)); });
}

QAction* PageMenus::actionOf(const ui::MenuEntry& entry) const
{
    const auto at = m_actions.find(&entry);
    return at == m_actions.end() ? nullptr : at->second;
}

QAction* PageMenus::add(ui::MenuEntry& entry, QWidget& holder)
{
    QAction* action = nullptr;
    if (entry.children.empty()) {
        action = new QAction{&holder};
        QObject::connect(action, &QAction::triggered, &holder, [this, &entry] { m_chosen(entry); });
    } else {
        auto* menu = new QMenu{&holder};
        for (ui::MenuEntry* child : entry.children)
            menu->addAction(child ? add(*child, *menu) : menu->addSeparator());
        action = menu->menuAction();
    }
    follow(entry, *action);
    return action;
}

void PageMenus::follow(ui::MenuEntry& entry, QAction& action)
{
    action.setObjectName(toQString(entry.name));
    // Otherwise Qt may take "Exit" or "Setup" for entries of the system's own menu and move them there.
    action.setMenuRole(QAction::NoRole);
    m_actions[&entry] = &action;
    m_sync.follow(entry.caption, [&action](const std::string& caption) { action.setText(toQString(caption)); });
    m_sync.follow(entry.enabled, [&action](bool enabled) { action.setEnabled(enabled); });
    m_sync.follow(entry.visible, [&action](bool visible) { action.setVisible(visible); });
    m_sync.follow(entry.shortcut, [&action](const std::string& keys) {
        action.setShortcut(QKeySequence{toQString(keys), QKeySequence::PortableText});
    });
    m_sync.follow(entry.icon, [&action](ui::MenuIcon icon) { action.setIcon(look::menuIcon(icon)); });
    m_sync.follow(entry.explanation, [&action](const std::string& text) { action.setStatusTip(toQString(text)); });
    m_sync.follow(entry.toolTip, [&action](const std::string& tip) { action.setToolTip(plainToolTip(toLines(tip))); });
}

} // namespace tallyhoop::qt
