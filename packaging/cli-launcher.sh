#!/bin/sh
# Runs the program without windows on the organiser's own pool, unless another folder is named.
set -eu

installed=$(dirname "$(readlink -f "$0")")/../lib/tallyhoop
if [ -n "${HOME-}" ] && [ -d "$HOME/Tallyhoop" ]; then
    exec "$installed/tallyhoop-cli" --folder "$HOME/Tallyhoop" "$@"
fi
exec "$installed/tallyhoop-cli" "$@"
