#!/bin/sh
# Runs a program for Windows by wine, with the DLLs that were built for it: run.sh PROGRAM ARGUMENT...
set -eu
. "$(dirname "$0")/cache.sh"
export WINEDEBUG="${WINEDEBUG:--all}" # none of wine's own messages
export WINEPATH="$cache/qt-6.4.2/bin;/usr/lib/gcc/x86_64-w64-mingw32/12-posix;/usr/x86_64-w64-mingw32/lib"
exec wine "$@"
