#!/bin/sh
# Runs the program without windows on the organiser's own pool, unless another folder is named.
set -eu

installed=$(dirname "$(readlink -f "$0")")/../lib/tallyhoop
pool=${HOME-}/Tallyhoop
if [ -n "${HOME-}" ] && [ -d "$pool" ]; then
    exec "$installed/tallyhoop-cli" --folder "$pool" "$@"
fi
for word in "$@"; do
    case $word in
    --folder | --folder=* | --help | -h | --version) exec "$installed/tallyhoop-cli" "$@" ;;
    esac
done
echo "There is no pool: ${HOME:+the folder $pool is not there, and }none is named with --folder." >&2
exit 2
