#!/bin/sh
# Formats the C++ sources in place; with --check it only says which files would change, and fails if there are any.
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh lint

mode=-i
if [ "${1:-}" = --check ]; then
    mode='--dry-run --Werror'
fi
git ls-files -z '*.cpp' '*.h' | xargs -0 -r clang-format $mode
