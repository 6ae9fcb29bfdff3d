#!/usr/bin/env bash
# Installs what is missing, builds everything, and runs every test; the last thing printed is ctest's summary.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
exec </dev/null
. scripts/packages.sh
. scripts/build.sh

install_packages build screen test bench
command -v npm >/dev/null || install_packages npm
scripts/fetch_axe.sh build-tests/axe
# What people run is tested as a whole; its parts only where the sanitizers see more than the tests do.
build_preset release build -DTALLYHOOP_TESTS=ON -DTALLYHOOP_UNIT_TESTS=OFF -DTALLYHOOP_BENCH=ON
build_preset sanitizers build-sanitizers -DTALLYHOOP_TESTS=ON

# One run over both builds, so that there is one summary.
mkdir -p build-tests
cat >build-tests/CTestTestfile.cmake <<TESTS
subdirs("$PWD/build" "$PWD/build-sanitizers")
TESTS
# The programs for Windows and their packages, by wine, where Qt for Windows is there already: building it takes half an hour.
if packaging/windows/test.sh ready; then
    cat >>build-tests/CTestTestfile.cmake <<TESTS
add_test([=[windows.by_wine]=] timeout 1500 "$PWD/packaging/windows/test.sh" quick)
set_tests_properties([=[windows.by_wine]=] PROPERTIES TIMEOUT 1600 PROCESSORS $(nproc))
TESTS
fi
ctest --test-dir build-tests --output-on-failure --no-tests=error --parallel "$(nproc)"
