#!/usr/bin/env bash
# hardened.sh PROGRAM [branches]: lists the parts of Debian's hardening that the program lacks, and fails if there are any.
# "branches" checks for protected branches too, which not every processor has.
set -euo pipefail
program=$1
lacks=0

# expect WHAT PATTERN READELF-OPTION: a line of readelf's output must match.
expect() {
    if ! readelf --wide "$3" "$program" | grep -E -- "$2" >/dev/null; then
        echo "$program: $1 is missing"
        lacks=1
    fi
}

expect "a position of its own (PIE)" '^ *Type: +DYN' --file-header
expect "the mark of such a program" 'FLAGS_1.*PIE' --dynamic
expect "binding at start (BIND_NOW)" 'FLAGS_1.*NOW' --dynamic
expect "a table of addresses that is read-only after the start (RELRO)" 'GNU_RELRO' --program-headers
expect "a stack that cannot be executed" 'GNU_STACK.* RW +0x' --program-headers
expect "the stack protector" '__stack_chk_fail' --dyn-syms
# The mark of such branches is missing where the system's own start-up code lacks it, so check the code instead.
if [ "${2:-}" = branches ] && ! objdump --disassemble=main "$program" | grep endbr >/dev/null; then
    echo "$program: protected branches are missing"
    lacks=1
fi
exit "$lacks"
