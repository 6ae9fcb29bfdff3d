// qt/colour_menu.h - the menu in which a person chooses the colours of the windows.
#pragma once

class QAction;

namespace tallyhoop::qt {

class Page;

/// @returns the action of a menu that is ready to be put into the page's menu bar; it goes with the page
QAction* colourMenu(Page& page);

} // namespace tallyhoop::qt
