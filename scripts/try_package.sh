#!/usr/bin/env bash
# Tests the Debian package in a new, complete system; needs root, the network, some minutes and 1 GB of disk.
#
#     scripts/try_package.sh [SUITE [MIRROR]]
#
# Runs tests/e2e/package_test.py there; apt installs what the package depends on, and nothing else.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/packages.sh
. scripts/build.sh
suite=${1:-bookworm}
mirror=${2:-http://deb.debian.org/debian}

if [ "$(id -u)" -ne 0 ]; then
    echo "Only root can make a system within the system." >&2
    exit 1
fi
install_packages build screen test
command -v debootstrap >/dev/null || apt-get install -y -qq --no-install-recommends debootstrap
build_preset release build -DTALLYHOOP_TESTS=ON -- tallyhoop tallyhoop_cli demoset package_texts tallyhoop_inspector

work=$(mktemp -d "${TMPDIR:-/tmp}/tallyhoop-clean-root.XXXXXX")
chmod 755 "$work"
root=$work/root
shared=$work/shared # at the same path inside and outside
clean_up() {
    umount "$root$shared" "$root/proc" 2>/dev/null || true
    mountpoint -q "$root$shared" || rm -rf --one-file-system "$work"
}
trap clean_up EXIT

debootstrap --variant=minbase "$suite" "$root" "$mirror"
mkdir -p "$shared" "$root$shared"
mount --bind "$shared" "$root$shared"
mount -t proc proc "$root/proc"

echo "Installing the package with all that it depends on"
(cd build && cpack -G DEB -D CPACK_OUTPUT_FILE_PREFIX="$shared" >/dev/null)
inside() { chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C "$@"; }
inside apt-get update -qq
inside sh -c "apt-get install -y -qq --no-install-recommends $shared/*.deb"
inside apt-get purge -y -qq tallyhoop # its dependencies stay; the test installs it again
inside apt-get install -y -qq --no-install-recommends libqt6network6 libqt6test6 # for the test's inspector

cd tests/e2e
TMPDIR=$shared TALLYHOOP_BUILD=$OLDPWD/build TALLYHOOP_CLEAN_ROOT=$root python3 -B -m unittest -v package_test
