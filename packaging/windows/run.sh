#!/bin/sh
# Runs a program for Windows by wine, with the DLLs that were built for it: run.sh PROGRAM ARGUMENT...
set -eu
. "$(dirname "$0")/cache.sh"
export WINEDEBUG="${WINEDEBUG:--all}" # none of wine's own messages
export WINEPATH="$cache/qt-6.4.2/bin;/usr/lib/gcc/x86_64-w64-mingw32/12-posix;/usr/x86_64-w64-mingw32/lib"
export QT_PLUGIN_PATH="$cache/qt-6.4.2/plugins"
export CUPS_SERVER=/no/printers # none of the machine's, which wine would offer
# Variables for Qt are taken to be those of Linux' own, and reach the program only by another name.
for name in $(env | sed -n 's/^\(QT_[A-Z_]*\)=.*/\1/p'); do
    eval "export WINE$name=\"\$$name\""
done
exec wine "$@"
