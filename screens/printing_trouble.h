// screens/printing_trouble.h - what every printout says when it could not be printed.
// Texts are kept letter for letter, odd spellings included.
#pragma once

#include "ui/dialogs.h"

namespace tallyhoop {

/// Says that a printout failed.
inline void showPrintingTrouble(ui::Dialogs& dialogs)
{
    dialogs.show({"",
                  "Error in attempting to print to the printer\r\n"
                  "Check you printer for proper attachment",
                  ui::Buttons::Ok, ui::Icon::Critical});
}

} // namespace tallyhoop
