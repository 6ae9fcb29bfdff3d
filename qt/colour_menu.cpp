// qt/colour_menu.cpp - three entries, of which the one in use is ticked.
#include "qt/colour_menu.h"

#include "qt/colours.h"
#include "qt/page.h"

#include <QActionGroup>
#include <QMenu>
#include <array>

namespace tallyhoop::qt {

namespace {

struct Entry {
    Colours colours;
    const char* name;
    const char* caption;
    const char* explanation;
};

constexpr std::array kEntries{Entry{Colours::Desktop, "mnuViewColoursDesktop", "&Colours of the Desktop",
                                    "The colours that the desktop has, where it makes them known."},
                              Entry{Colours::Light, "mnuViewColoursLight", "&Light Colours",
                                    "Dark letters on a light background, whatever the desktop has."},
                              Entry{Colours::Dark, "mnuViewColoursDark", "&Dark Colours",
                                    "Light letters on a dark background, whatever the desktop has."}};

} // namespace

QAction* colourMenu(Page& page)
{
    auto* const menu = new QMenu{QStringLiteral("&View"), &page};
    menu->menuAction()->setObjectName(QStringLiteral("mnuView"));
    auto* const group = new QActionGroup{menu};
    for (const Entry& entry : kEntries) {
        QAction* const action = menu->addAction(QLatin1String{entry.caption});
        action->setObjectName(QLatin1String{entry.name});
        action->setStatusTip(QLatin1String{entry.explanation});
        action->setMenuRole(QAction::NoRole);
        action->setCheckable(true);
        action->setChecked(entry.colours == usedColours());
        group->addAction(action);
        // As a command of the page: afterwards it shows what depends on the colours.
        QObject::connect(action, &QAction::triggered, &page, [&page, colours = entry.colours] {
            page.run([colours] {
                useColours(colours);
                keepColours(colours);
            });
        });
    }
    return menu->menuAction();
}

} // namespace tallyhoop::qt
