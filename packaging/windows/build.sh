#!/usr/bin/env bash
# Builds Tallyhoop for Windows on Debian, from nothing: the installer and the archive, in _packages/. The first time takes
# three quarters of an hour, most of it for Qt; what is built of others is kept in a cache outside the tree (cache.sh).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
exec </dev/null
. scripts/packages.sh
. scripts/build.sh

install_packages windows
packaging/windows/build_libraries.sh
packaging/windows/build_qt.sh
build_preset windows build-windows -DTALLYHOOP_TESTS=OFF
(cd build-windows && cpack)
