# Sourced by run.sh and test.sh: finds out which Debian packages are missing, and installs those.

package_list="$(dirname "${BASH_SOURCE[0]}")/../packaging/debian-packages"

# Prints the packages for the given purposes (build, screen, ...), one per line.
packages_for() {
    local purpose
    for purpose in "$@"; do
        awk -v purpose="$purpose" '$1 == purpose { print $2 }' "$package_list"
    done
}

# Prints those of the packages for the given purposes that are not installed.
missing_packages() {
    comm -23 <(packages_for "$@" | sort -u) \
        <(dpkg-query -W -f='${Package} ${db:Status-Status}\n' 2>/dev/null | awk '$2 == "installed" { print $1 }' | sort -u)
}

# Installs what is missing for the given purposes; prints what it does, and does not use the network when nothing is missing.
install_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not a Debian system: please see to it that the equivalents of these packages are installed:"
        packages_for "$@" | sed 's/^/    /'
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [ "${#missing[@]}" -eq 0 ]; then
        return 0
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing; please have them installed by root:" >&2
            printf '    %s\n' "${missing[@]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing the missing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
