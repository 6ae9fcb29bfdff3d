#!/usr/bin/env bash
# Static analysis of the program's own code; fails when there are any warnings.
#
#   scripts/analyse.sh                              everything, with the compile commands of the build in build/
#   scripts/analyse.sh cppcheck                     cppcheck alone, which needs no build
#   scripts/analyse.sh tidy BUILD [SHARE SHARES]    clang-tidy alone: on all sources, or on a share of them (1 4: the
#                                                   first quarter)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

rooms=(app base demo files pool qt reports screens ui)

# needs TOOL: fails when it is not installed.
needs() {
    command -v "$1" >/dev/null && return
    echo "analyse.sh: $1 is not installed; its Debian package has the same name. Tests without it: ctest -LE analysis" >&2
    exit 1
}

# Checks of cppcheck that are off:
#   useStlAlgorithm        a loop of two lines reads as well
#   shadowFunction         a local variable is called what it is, also where some function has that name
#   noExplicitConstructor  a Result is made from its value or its failure implicitly, on purpose
#   unusedStructMember     does not see members that are filled by an initialiser and read by name
#   constParameter         a slot has the parameters of its signal
#   constStatement         takes an index in the body of a function of one line for a statement without effect
#   unmatchedSuppression   a suppression that one version of cppcheck needs and another does not
check() {
    needs cppcheck
    cppcheck --std=c++20 --language=c++ --library=qt --quiet --error-exitcode=1 --inline-suppr \
        --enable=warning,performance,portability,style \
        --suppress=missingIncludeSystem --suppress=useStlAlgorithm --suppress=shadowFunction \
        --suppress=noExplicitConstructor:base/result.h --suppress=unusedStructMember \
        --suppress=constParameter:qt/page_text.cpp --suppress=constParameter:qt/services/help_window.cpp \
        --suppress=constStatement:ui/control.h --suppress=unmatchedSuppression \
        --template='{file}:{line}: {severity}: {message} [{id}]' -I. "${rooms[@]}"
}

# The sources that a build of the program compiles, one path per line. This leaves out the sources for Windows.
sources_in() {
    sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$1/compile_commands.json" |
        grep -E "^$PWD/($(IFS='|' && echo "${rooms[*]}"))/" | sort -u
}

tidy() {
    needs clang-tidy
    local build=$1 share=${2:-1} shares=${3:-1} sources
    mapfile -t sources < <(sources_in "$build" | awk "NR % $shares == $share % $shares")
    if [ "${#sources[@]}" -eq 0 ]; then
        echo "analyse.sh: $build lists no sources in $PWD" >&2
        exit 1
    fi
    # The number of warnings in the system's headers does not matter.
    clang-tidy -p "$build" --quiet "${sources[@]}" 2> >(grep -v 'warnings generated\.$' >&2)
}

case "${1:-everything}" in
cppcheck) check ;;
tidy) tidy "${@:2}" ;;
everything)
    check
    jobs=$(nproc)
    seq "$jobs" | xargs -P "$jobs" -I{} scripts/analyse.sh tidy build {} "$jobs"
    ;;
*)
    echo "analyse.sh: there is nothing called $1" >&2
    exit 2
    ;;
esac
