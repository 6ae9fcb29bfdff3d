// qt/page_menus.h - a page's menu bar, built from the screen's menus and kept in sync with them.
#pragma once

#include "qt/sync.h"
#include "ui/screen.h"

#include <functional>
#include <unordered_map>

class QAction;
class QMainWindow;
class QWidget;

namespace tallyhoop::qt {

class PageMenus
{
public:
    /// @param chosen called with the entry that the person chose
    PageMenus(QMainWindow& page, ui::Screen& screen, Sync& sync, std::function<void(ui::MenuEntry&)> chosen);

    /// @returns nullptr when the entry is in no menu of the screen
    QAction* actionOf(const ui::MenuEntry& entry) const;

private:
    QAction* add(ui::MenuEntry& entry, QWidget& holder);
    void follow(ui::MenuEntry& entry, QAction& action);

    Sync& m_sync;
    std::function<void(ui::MenuEntry&)> m_chosen;
    std::unordered_map<const ui::MenuEntry*, QAction*> m_actions;
};

} // namespace tallyhoop::qt
