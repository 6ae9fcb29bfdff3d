#!/usr/bin/env bash
# Puts axe-core, with which the tests examine pages for people who do not see or point, into a folder; only the tests use it.
# Prints nothing and does not use the network when it is there.
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/tests/pages
target=${1:?"usage: $0 FOLDER"}

mkdir -p "$target"
cd "$target"
if cmp -s "$source_folder/package-lock.json" fetched.json; then
    exit 0
fi
echo "Fetching axe-core from npm"
cp "$source_folder/package.json" "$source_folder/package-lock.json" .
npm ci --ignore-scripts --no-audit --no-fund --loglevel=error
cp package-lock.json fetched.json
