#!/usr/bin/env bash
# Plants the defects that scripts/mutants/*.txt list, one at a time, and shows that a test notices each.
#
#   scripts/mutants.sh                   all lists
#   scripts/mutants.sh ROOM [LINE]       scripts/mutants/ROOM.txt, or only the defect at this line of it
#
# A list says:
#
#   file pool/moves.cpp                  where the defects that follow are planted
#   test pool Click.*:Cleared.*          the floor's test program and the filter of the tests that should notice them
#   - if (old.empty() || old == team)    what is there now: part of one line, found exactly once in the file
#   + if (old.empty())                   what takes its place
#
# Where one line is not enough to find the place, several lines that begin with "- " stand for lines that follow each
# other. "file" and "test" hold until the next such line; blank lines and lines that begin with "#" are skipped.
#
# The defects are planted in a copy of the tree as it is now, uncommitted changes included. A defect counts as noticed
# only when its filter matches a test and all these tests pass without it. Fails when a defect is not noticed, does not
# apply or does not compile. TALLYHOOP_MUTANTS=FOLDER keeps the copy and its build there for the next run.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if [[ $# -gt 2 || ( $# -gt 0 && ! -f scripts/mutants/${1-}.txt ) || ! ${2-0} =~ ^[0-9]+$ ]]; then
    sed -n '2,/^set /{/^set /!s/^# \{0,1\}//p}' "${BASH_SOURCE[0]}"
    exit 2
fi
lists=(scripts/mutants/"${1-*}".txt)
if [ $# -eq 0 ]; then
    lists=(scripts/mutants/*.txt)
fi

if [ -n "${TALLYHOOP_MUTANTS-}" ]; then
    copy=$TALLYHOOP_MUTANTS
    mkdir -p "$copy"
else
    copy=$(mktemp -d)
    trap 'rm -rf "$copy"' EXIT
fi
log=$copy/mutants.log
export QT_QPA_PLATFORM=offscreen

# The defects, one for each index.
files=() programs=() filters=() olds=() news=() places=()

# read_list LIST [LINE]
read_list() {
    local list=$1 only=${2-} number=0 first=0 file="" program="" filter="" old="" line
    while IFS= read -r line || [ -n "$line" ]; do
        number=$((number + 1))
        case "$line" in
        "" | "#"*) ;;
        "file "*) file=${line#file } ;;
        "test "*) read -r program filter <<<"${line#test }" ;;
        "- "*)
            if [ -z "$old" ]; then
                first=$number
            fi
            old+=${old:+$'\n'}${line#- }
            ;;
        "+ "*)
            if [ -z "$file" ] || [ -z "$filter" ] || [ -z "$old" ]; then
                echo "mutants.sh: $list:$number: a defect needs its file, its test and what it replaces" >&2
                exit 2
            fi
            if [ -z "$only" ] || { [ "$first" -le "$only" ] && [ "$only" -le "$number" ]; }; then
                files+=("$file") programs+=("$program") filters+=("$filter")
                olds+=("$old") news+=("${line#+ }") places+=("$list:$first")
            fi
            old=""
            ;;
        *)
            echo "mutants.sh: $list:$number: what is \"$line\"?" >&2
            exit 2
            ;;
        esac
    done <"$list"
}

build() { cmake --build "$copy/build" --parallel "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" --target "tallyhoop_$1_tests" >"$log" 2>&1; }

# run PROGRAM FILTER: a test that hangs has noticed something, too.
run() {
    local program=$copy/build/tests/tallyhoop_$1_tests
    if [ ! -x "$program" ]; then
        program=$copy/build/tests/$1/tallyhoop_$1_tests
    fi
    # In a shell of its own, so that what the shell has to say about a crash is in the log, too.
    (
        timeout 120 "$program" --gtest_brief=1 --gtest_filter="$2"
        exit $?
    ) >"$log" 2>&1
}

# clean PROGRAM FILTER: whether there are such tests, and all of them pass as things are. Asked once for each filter.
declare -A cleanly
clean() {
    local key="$1 $2"
    if [ -z "${cleanly[$key]-}" ]; then
        cleanly[$key]=no
        if run "$1" "$2" && grep -q '^\[  PASSED  \] [1-9]' "$log"; then
            cleanly[$key]=yes
        fi
    fi
    [ "${cleanly[$key]}" = yes ]
}

# plant DEFECT: fails when the old text is not there exactly once.
plant() {
    local path=$copy/${files[$1]} old=${olds[$1]} new=${news[$1]} text before after
    [ -f "$path" ] || return 1
    text=$(cat "$path" && echo .)
    before=${text%%"$old"*}
    [ "$before" != "$text" ] || return 1
    after=${text#*"$old"}
    [[ $after != *"$old"* ]] || return 1
    text=$before$new$after
    printf %s "${text%.}" >"$path"
}

for list in "${lists[@]}"; do
    read_list "$list" "${2-}"
done
if [ "${#places[@]}" -eq 0 ]; then
    echo "mutants.sh: ${lists[*]} has no defect at line ${2-}" >&2
    exit 2
fi

# Only what differs, so that a kept build stays; also what an interrupted run has left planted.
git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' path; do
    [ ! -e "$path" ] || cmp -s "$path" "$copy/$path" || cp --parents "$path" "$copy"
done
windows=OFF
[[ " ${programs[*]} " != *" qt "* ]] || windows=ON
options=()
if command -v ccache >/dev/null; then
    options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
echo "Building the tests in $copy"
cmake -S "$copy" -B "$copy/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g1" \
    -DTALLYHOOP_WINDOWS=$windows "${options[@]}" --log-level=WARNING >"$log"
for program in $(printf '%s\n' "${programs[@]}" | sort -u); do
    if ! build "$program"; then
        tail -20 "$log" >&2
        exit 2
    fi
done
for defect in "${!places[@]}"; do
    clean "${programs[$defect]}" "${filters[$defect]}" || true
done

noticed=0
for defect in "${!places[@]}"; do
    original=$copy/${files[$defect]}
    if ! clean "${programs[$defect]}" "${filters[$defect]}"; then
        outcome="THE FILTER FINDS NO TEST, OR ONE THAT FAILS WITHOUT IT"
    elif ! plant "$defect"; then
        outcome="DOES NOT APPLY"
    elif ! build "${programs[$defect]}"; then
        outcome="DOES NOT COMPILE"
    elif run "${programs[$defect]}" "${filters[$defect]}"; then
        outcome="NOT NOTICED"
    else
        outcome=noticed
        noticed=$((noticed + 1))
    fi
    printf '%-12s %s  %s  + %s\n' "$outcome" "${places[$defect]}" "${files[$defect]}" "${news[$defect]}"
    if [ -f "${files[$defect]}" ]; then
        cp "${files[$defect]}" "$original" # with the time of now: it has to be compiled again
    fi
done
echo "$noticed of ${#places[@]} defects noticed"
[ "$noticed" -eq "${#places[@]}" ]
