// qt/page_menus.cpp - a page's menu bar, built from the screen's menus.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace tallyhoop::qt {

void Page::buildMenuBar()
{
    if (m_screen.menuBar.empty())
        return;
    auto* bar = new QMenuBar{this};
    bar->setNativeMenuBar(false);
    setMenuBar(bar);
    for (ui::MenuEntry* entry : m_screen.menuBar)
        if (entry)
            bar->addAction(addEntry(*entry, *bar));
}

QAction* Page::addEntry(ui::MenuEntry& entry, QWidget& holder)
{
    QAction* action = nullptr;
    if (entry.children.empty()) {
        action = new QAction{&holder};
        connect(action, &QAction::triggered, this, [this, &entry] {
            m_typedInto = nullptr;
            run([&entry] { entry.click(); });
        });
    } else {
        auto* menu = new QMenu{&holder};
        for (ui::MenuEntry* child : entry.children)
            menu->addAction(child ? addEntry(*child, *menu) : menu->addSeparator());
        action = menu->menuAction();
    }
    followEntry(entry, *action);
    return action;
}

void Page::followEntry(ui::MenuEntry& entry, QAction& action)
{
    action.setObjectName(toQString(entry.name));
    // Otherwise Qt may take "Exit" or "Setup" for entries of the system's own menu and move them there.
    action.setMenuRole(QAction::NoRole);
    m_actions[&entry] = &action;
    follow(entry.caption, [&action](const std::string& caption) { action.setText(toQString(caption)); });
    follow(entry.enabled, [&action](bool enabled) { action.setEnabled(enabled); });
    follow(entry.visible, [&action](bool visible) { action.setVisible(visible); });
    follow(entry.shortcut, [&action](const std::string& keys) {
        action.setShortcut(QKeySequence{toQString(keys), QKeySequence::PortableText});
    });
    follow(entry.icon, [&action](const std::string& icon) { action.setIcon(look::menuIcon(icon)); });
    follow(entry.explanation, [this, &action](const std::string& text) {
        if (!text.empty())
            makeStatusLine();
        action.setStatusTip(toQString(text));
    });
    follow(entry.toolTip, [&action](const std::string& tip) { action.setToolTip(plainToolTip(toLines(tip))); });
}

} // namespace tallyhoop::qt
