#!/usr/bin/env bash
# Tests Tallyhoop for Windows by wine, as the programs of a person who has nothing else: test.sh [quick]
#
# Everything: the tests of the parts, of the windows, of the whole program, and of the packages. Quick, as ./test.sh does it
# where Qt for Windows is there already (test.sh ready): the programs and their packages. Nothing is written but to build-windows/,
# build-debug/, the cache of libraries (cache.sh) and a scratch folder. The last thing printed is ctest's summary.
set -euo pipefail
. "$(dirname "$0")/cache.sh"
cd "$repository"
exec </dev/null

what=${1:-everything}
if [ "$what" = ready ]; then
    [ -e "$cache/libraries/complete" ] && [ -e "$cache/qt-6.4.2/complete" ] && command -v wine >/dev/null
    exit
fi

. scripts/packages.sh
. scripts/build.sh
install_packages windows screen
packaging/windows/build_libraries.sh
packaging/windows/build_qt.sh
parts=ON
chosen=()
if [ "$what" = quick ]; then
    parts=OFF
    chosen=(--label-regex '^packages$')
else # whose files are compared with those of Windows
    install_packages build test
    build_preset debug build-debug -DTALLYHOOP_TESTS=ON -- demoset tallyhoop_cli tallyhoop_console_saver
fi
build_preset windows build-windows -DTALLYHOOP_TESTS=ON -DTALLYHOOP_UNIT_TESTS=$parts -DTALLYHOOP_LINUX_BUILD="$PWD/build-debug"

scratch=$(mktemp -d)
finish() {
    timeout 60 wineserver -k 2>/dev/null || true
    rm -rf "$scratch"
}
trap finish EXIT
export TALLYHOOP_CACHE=${cache%/windows} WINEPREFIX=$scratch/wine HOME=$scratch/home LC_ALL=C.UTF-8
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" # no offers to fetch anything, no menus
unset DISPLAY WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_RUNTIME_DIR # tests have displays of their own
mkdir "$HOME"
timeout 300 wineboot --init >"$scratch/wineboot.log" 2>&1
ctest --test-dir build-windows --output-on-failure --no-tests=error --timeout 900 --parallel "$(nproc)" "${chosen[@]}"
