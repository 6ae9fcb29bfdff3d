#!/usr/bin/env bash
# Runs the fuzzers of tests/fuzz, one after another, without changing the corpora that they begin with.
#
#   scripts/fuzz.sh MINUTES [TARGET ...]    runs each of these targets, or all of them, for so many minutes
#   scripts/fuzz.sh --merge [TARGET ...]    adds to the corpora the inputs that reached something new
#
# Interesting inputs are kept in build-fuzz/found/TARGET, where the next run continues; an input that broke something is
# in build-fuzz/broken. Needs clang: the Debian packages clang, libclang-rt-14-dev and llvm.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/build.sh

if [[ ! ${1-} =~ ^([1-9][0-9]*|--merge)$ ]]; then
    sed -n '2,/^set /{/^set /!s/^# \{0,1\}//p}' "${BASH_SOURCE[0]}"
    exit 1
fi
if ! command -v clang++ >/dev/null; then
    echo "fuzz.sh: clang++ is not installed: sudo apt install clang libclang-rt-14-dev llvm" >&2
    exit 1
fi
minutes=$1
shift
targets=("$@")
if [ $# -eq 0 ]; then
    targets=(setup selection players teams settings entry_text entry_table html_text mail scoring list_search message_file standings player_listing
        team_selection_summary team_selection_detail player_selection_detail results_by_player results_by_team)
fi

# corpus_of TARGET: the reports share the pools.
corpus_of() {
    case "$1" in
        setup | selection | players | teams | settings | scoring | list_search) echo "tests/fuzz/corpus/$1" ;;
        entry_text | html_text) echo tests/fuzz/corpus/entry_texts ;;
        entry_table) echo tests/fuzz/corpus/tables ;;
        mail) echo tests/fuzz/corpus/mails ;;
        message_file) echo tests/fuzz/corpus/messages ;;
        *) echo tests/fuzz/corpus/pools ;;
    esac
}

build_preset fuzz build-fuzz -- "${targets[@]/#/fuzz_}"
mkdir -p build-fuzz/broken
for target in "${targets[@]}"; do
    corpus=$(corpus_of "$target")
    found=build-fuzz/found/$target
    mkdir -p "$found"
    echo "== $target"
    if [ "$minutes" = --merge ]; then
        "build-fuzz/tests/fuzz/fuzz_$target" -merge=1 -use_counters=0 "$corpus" "$found"
    else
        "build-fuzz/tests/fuzz/fuzz_$target" -max_total_time=$((60 * minutes)) -max_len=6000 -timeout=60 \
            -print_final_stats=1 -artifact_prefix=build-fuzz/broken/"${target}_" "$found" "$corpus"
    fi
done
