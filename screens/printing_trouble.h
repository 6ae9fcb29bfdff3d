// screens/printing_trouble.h - what every printout says when it could not be printed.
#pragma once

#include "ui/dialogs.h"

namespace tallyhoop {

/// Tells that a printout failed.
inline void showPrintingTrouble(ui::Dialogs& dialogs)
{
    dialogs.show({"",
                  "Error in attempting to print to the printer\r\n"
                  "Check you printer for proper attachment", // sic
                  ui::Buttons::Ok, ui::Icon::Critical});
}

} // namespace tallyhoop
