// qt/text_sync.h - text, caret and selection of a box, kept in sync both ways.
#pragma once

#include "qt/sync.h"
#include "ui/control.h"

#include <functional>
#include <string>

class QLineEdit;

namespace tallyhoop::qt {

class LinesEdit;

/// A text that the person did not edit is never read back. Carets and selections are in bytes of the core's text, in
/// which a line break is two.
void keepTextInSync(Sync& sync, ui::TextBox& box, QLineEdit& edit);

/// @returns the text that the widget held at the last sync
std::function<const std::string&()> keepTextInSync(Sync& sync, ui::TextBox& box, LinesEdit& edit);

/// @returns the text as the core holds it
std::string textOf(const LinesEdit& edit);

} // namespace tallyhoop::qt
