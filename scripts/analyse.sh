#!/usr/bin/env bash
# Static analysis of the program's own code; fails when there are any warnings.
#
#   scripts/analyse.sh             everything, on all processors
#   scripts/analyse.sh cppcheck    cppcheck alone
#   scripts/analyse.sh tidy FILE.. clang-tidy alone, on all sources or on these
#
# Each source is analysed alone, with the compile commands of build-analysis/, which is configured for this and never
# built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

rooms=(app base cli demo files intake output pool qt reports screens ui)

# needs TOOL: fails when it is not installed.
needs() {
    command -v "$1" >/dev/null && return
    echo "analyse.sh: $1 is not installed; its Debian package has the same name" >&2
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

# The sources of the program on this platform, one path per line.
sources() {
    sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' build-analysis/compile_commands.json |
        grep -E "^$PWD/($(IFS='|' && echo "${rooms[*]}"))/" | sort -u
}

# The number of warnings in the system's headers does not matter.
tidy() {
    needs clang-tidy
    cmake --preset release -B build-analysis -DTALLYHOOP_QUICK_BUILD=OFF -DTALLYHOOP_TESTS=OFF -DTALLYHOOP_BENCH=OFF \
        --log-level=WARNING
    if [ $# -gt 0 ]; then
        printf '%s\n' "$@"
    else
        sources
    fi | xargs --no-run-if-empty --max-procs="$(nproc)" --max-args=4 clang-tidy -p build-analysis --quiet \
        2> >(grep -v 'warnings\{0,1\} generated\.$' >&2)
}

case "${1:-everything}" in
cppcheck) check ;;
tidy) tidy "${@:2}" ;;
everything)
    check
    tidy
    ;;
*)
    echo "analyse.sh: there is nothing called $1" >&2
    exit 2
    ;;
esac
