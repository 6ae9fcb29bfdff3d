// cli/terminal_posix.cpp - Linux and other POSIX systems: bytes are bytes there.
#ifndef _WIN32

#include "cli/terminal.h"

#include <unistd.h>

namespace tallyhoop::cli {

void prepareOutput() {}

bool isShownToAPerson() { return isatty(STDOUT_FILENO) == 1; }

} // namespace tallyhoop::cli

#endif
