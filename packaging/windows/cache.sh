# packaging/windows/cache.sh - where the libraries for Windows are kept, and how their sources get there. Sourced.
# shellcheck shell=sh disable=SC2034 # what it sets is used by those who source it

cache=${TALLYHOOP_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tallyhoop}/windows
repository=$(cd "$(dirname "$0")/../.." && pwd)
jobs=${TALLYHOOP_JOBS:-$(nproc)}

# fetch_source PACKAGE VERSION: Debian's source package, checked and patched, in $cache/sources/PACKAGE-VERSION. The lists of apt
# are our own: the machine's may be without sources, and need not change.
fetch_source()
{
    source_folder=$cache/sources/$1-$2
    [ ! -e "$source_folder" ] || return 0
    apt=$cache/apt
    mkdir -p "$apt/parts" "$apt/lists/partial" "$apt/archives/partial" "$cache/sources"
    cat >"$apt/parts/debian.sources" <<SOURCES
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm bookworm-updates
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
    cat >"$apt/apt.conf" <<CONF
Dir::Etc::SourceList "/dev/null";
Dir::Etc::SourceParts "$apt/parts";
Dir::State::Lists "$apt/lists";
Dir::Cache "$apt";
APT::Sandbox::User "";
CONF
    echo "Fetching the source of $1"
    APT_CONFIG=$apt/apt.conf apt-get -qq update --error-on=any
    (cd "$apt/archives" && APT_CONFIG=$apt/apt.conf apt-get -qq source --download-only "$1=$2")
    rm -rf "$source_folder.part" # of a run that was stopped
    dpkg-source --no-check -x "$apt/archives/$1_$2.dsc" "$source_folder.part"
    mv "$source_folder.part" "$source_folder"
}
