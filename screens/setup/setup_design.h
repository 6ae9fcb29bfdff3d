// screens/setup/setup_design.h - the setup screen before anything is loaded: tab order, menus, words.
#pragma once

#include "screens/setup/setup_screen.h"

namespace tallyhoop {

/// Gives each control what never changes: its place in the tab order or the menus, explanation, spoken name.
void design(SetupScreen& setup);

/// @returns what a team box, and the button below the list, are for while selecting is overridden or not
const char* explanationOfTeamBox(bool isOverridden);
const char* explanationOfOverride(bool isOverridden);

} // namespace tallyhoop
