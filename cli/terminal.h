// cli/terminal.h - what differs between systems in a program's own output.
#pragma once

namespace tallyhoop::cli {

/// Has the output keep every byte as it is written, and a terminal show UTF-8. To be called once, before the first.
void prepareOutput();

/// @returns whether the output goes to a person's terminal
bool isShownToAPerson();

} // namespace tallyhoop::cli
