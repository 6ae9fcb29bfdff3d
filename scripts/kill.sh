#!/usr/bin/env bash
# Kills the real program while it saves, over and over, and checks what is left: tests/kill, on the release build.
#
#   scripts/kill.sh                         each writer, a few kills of each kind (two minutes)
#   scripts/kill.sh --kills 1000 [WRITER ...]
#   scripts/kill.sh --help                  the other ways to kill, and the writers
#
# With TALLYHOOP_BUILD=FOLDER another build is used, and only what is not built there yet is built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/build.sh

targets=(tallyhoop tallyhoop_cli demoset tallyhoop_saver tallyhoop_killer)
if [ -n "${TALLYHOOP_BUILD-}" ]; then
    cmake --build "$TALLYHOOP_BUILD" --target "${targets[@]}"
else
    build_preset release build -DTALLYHOOP_TESTS=ON -- "${targets[@]}"
fi
TALLYHOOP_BUILD=${TALLYHOOP_BUILD:-build} exec python3 -B tests/kill/kill.py "$@"
