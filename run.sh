#!/usr/bin/env bash
# Installs what is missing, builds Tallyhoop, lays its program folder out in ./Tallyhoop/ and starts it there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/packages.sh
. scripts/build.sh
. scripts/virtual-display.sh

purposes=(build)
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    purposes+=(screen)
elif [ -z "${DISPLAY:-}" ]; then
    purposes+=(wayland)
fi
install_packages "${purposes[@]}"

# The tests are configured where they can be built, but only test.sh builds them.
tests=OFF
if command -v dpkg-query >/dev/null && [ -z "$(missing_packages build screen test)" ]; then
    tests=ON
fi
build_preset release build "-DTALLYHOOP_TESTS=$tests" -- tallyhoop tallyhoop_cli demoset

# Replaces the program's own files; a pool that lives in the folder is left as it is.
cmake --install build --prefix Tallyhoop >/dev/null
echo "The program folder is $PWD/Tallyhoop"

if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR="/run/user/$(id -u)"
    if [ ! -d "$XDG_RUNTIME_DIR" ] || [ ! -w "$XDG_RUNTIME_DIR" ]; then
        XDG_RUNTIME_DIR="${TMPDIR:-/tmp}/tallyhoop-runtime-$(id -u)"
        mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    fi
    export XDG_RUNTIME_DIR
fi

picture="$PWD/build/run-screenshot.png"
cd Tallyhoop
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec ./tallyhoop
fi
unset QT_QPA_PLATFORM # a platform without windows would show nothing
run_on_virtual_display ./tallyhoop "$picture"
