#!/bin/sh
# Tries the installer by wine, unseen: try_installer.sh SETUP.EXE. Installs into an empty folder, puts a pool there, installs
# over it, removes the program; the pool has to stay, byte for byte.
set -eu
setup=$(readlink -f "$1")
export WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="winemenubuilder.exe=d" # nothing in this system's own menus
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
folder="$scratch/Our pool"
windows_folder="Z:$(echo "$folder" | tr / '\\')" # two words for the installer, too, which knows no quotes here

fail()
{
    echo "$1" >&2
    exit 1
}
# shellcheck disable=SC2086
install() { wine "$setup" /S /D=$windows_folder || fail "The installer failed."; }
sum_of_pool() { (cd "$folder" && cat ./*.TH[CS] ./*.INI ./*.CSV | sha256sum); }

install
for file in tallyhoop.exe tallyhoop-cli.exe DEMOSET.EXE TALLYHOOP.HLP NCAALIST.THS Uninstall.exe platforms/qwindows.dll; do
    [ -e "$folder/$file" ] || fail "$file was not installed."
done
wine "$folder/DEMOSET.EXE" || fail "The sample pool was not written."
echo "MY OWN TEAM" >"$folder/NCAALIST.THS"
before=$(sum_of_pool)
wine "$folder/tallyhoop-cli.exe" standings >"$scratch/standings" || fail "The installed program does not read the pool."
grep -q "Prophet" "$scratch/standings" || fail "The installed program does not know the players of the pool."

echo "an older one" >"$folder/TALLYHOOP.HLP"
install
[ "$before" = "$(sum_of_pool)" ] || fail "Installing over a pool changed it."
[ "$(head -c 12 "$folder/TALLYHOOP.HLP")" != "an older one" ] || fail "Installing over an older version left a file of it."

# shellcheck disable=SC2086
wine "$folder/Uninstall.exe" /S _?=$windows_folder || fail "The uninstaller failed."
[ "$before" = "$(sum_of_pool)" ] || fail "The uninstaller changed the pool."
# Run with this option it cannot remove itself.
left=$(cd "$folder" && find . -type f ! -name Uninstall.exe ! -name '*.TH[CS]' ! -name '*.INI' ! -name '*.CSV')
[ -z "$left" ] || fail "The uninstaller left: $left"
echo "Installed, installed over a pool, and removed again; the pool is unchanged."
