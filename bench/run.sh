#!/usr/bin/env bash
# Builds the benchmarks and runs all of them, as bench/README.md describes; about ten minutes on an idle computer.
# With "smoke" as the only argument it runs each once on a tiny pool, to check that it works; TALLYHOOP_BUILD names the
# build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

smoke=()
google=()
if [ "${1:-}" = smoke ]; then
    smoke=(--rounds 1 --players 10)
    google=(--benchmark_min_time=0.001 --benchmark_filter='Score(Numbered|Picks)$')
else
    . scripts/packages.sh
    . scripts/build.sh
    install_packages build screen test bench
    build_preset release build -DTALLYHOOP_TESTS=ON -DTALLYHOOP_BENCH=ON -- tallyhoop tallyhoop_cli demoset bench/all
    TALLYHOOP_BUILD=build
fi
build="$TALLYHOOP_BUILD"
export TALLYHOOP_BUILD="$build"

measure() {
    echo "== $*"
    python3 -B "bench/$1.py" "${@:2}" "${smoke[@]}"
}

"$build/bench/tallyhoop_scoring_bench" "${google[@]}"
measure reports
measure outlook
measure imports
measure cli
if [ -x "$build/bench/tallyhoop_windows_bench" ]; then
    measure standings
    measure scores
    measure start
    measure clicks
    measure lists
    if [ "${1:-}" != smoke ]; then
        for script in start clicks; do
            echo "== $script --platform xcb, on Xvfb"
            xvfb-run -a -s "-screen 0 1600x1000x24" python3 -B "bench/$script.py" --platform xcb
        done
    fi
fi
