#!/bin/sh
# Starts Tallyhoop in the organiser's own program folder. A pool lives in the folder of its program, and nobody but root may
# write into the installed one: so the first start makes a folder of one's own, and later ones renew the program in it.
set -eu

installed=$(dirname "$(readlink -f "$0")")/../lib/tallyhoop
folder=$HOME/Tallyhoop

fail() {
    message="Tallyhoop could not be started. $1"
    echo "$message" >&2
    for tool in "zenity --error --no-markup --text" "kdialog --error" xmessage; do
        if command -v "${tool%% *}" >/dev/null; then
            $tool "$message" || true
            break
        fi
    done
    exit 1
}

mkdir -p "$folder" || fail "The folder $folder could not be made."

# Puts one of the program's own files into the folder, whole or not at all, unless it is there already.
renew() {
    if ! cmp -s "$installed/$1" "$folder/$1"; then
        cp "$installed/$1" "$folder/.$1.new" && mv -f "$folder/.$1.new" "$folder/$1" || {
            rm -f "$folder/.$1.new"
            fail "The file $folder/$1 could not be written."
        }
    fi
}

renew tallyhoop
renew DEMOSET.EXE
renew TALLYHOOP.HLP
# The list of team names is the organiser's own once it is there.
if [ -z "$(find "$folder" -maxdepth 1 -iname ncaalist.ths)" ]; then
    renew NCAALIST.THS
fi

cd "$folder"
exec ./tallyhoop
