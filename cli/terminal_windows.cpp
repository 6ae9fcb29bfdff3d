// cli/terminal_windows.cpp - Windows, where the C library would end lines in its own way.
#ifdef _WIN32

#include "cli/terminal.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace tallyhoop::cli {

void prepareOutput()
{
    static_cast<void>(_setmode(_fileno(stdout), _O_BINARY));
    if (isShownToAPerson())
        ::SetConsoleOutputCP(CP_UTF8);
}

bool isShownToAPerson() { return _isatty(_fileno(stdout)) != 0; }

} // namespace tallyhoop::cli

#endif
