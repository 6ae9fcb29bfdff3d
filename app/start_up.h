// app/start_up.h - what happens when the program starts, before the person does anything.
#pragma once

#include "files/data_folder.h"
#include "screens/screens.h"
#include "ui/platform.h"

namespace tallyhoop {

/// Says that another Tallyhoop has the same folder open.
void sayThatItIsOpenAlready(const DataFolder& folder, const ui::Platform& platform);

/// Shows the board; where no field was ever saved, offers the demonstration and, when it is wanted, reloads the board
/// on the sample pool.
void startUp(const DataFolder& folder, const ui::Platform& platform, Screens& screens);

} // namespace tallyhoop
