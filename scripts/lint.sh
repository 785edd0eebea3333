#!/bin/sh
# Runs clang-tidy with the settings of .clang-tidy over the product's sources, or over those given.
#
#   scripts/lint.sh [FILE.cpp...]
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh build lint
. scripts/build-settings.sh

# Generated headers (forms, moc) must exist before a file that includes them can be parsed.
cmake --preset debug
cmake --build --preset debug -j "$jobs"

if [ $# -eq 0 ]; then
    set -- $(git ls-files 'host/*.cpp' 'workstation/*.cpp' 'stack/*.cpp' 'pattern/*.cpp' 'project/*.cpp' 'ui/*.cpp' \
        'controller/*.cpp' 'panel/*.cpp' 'cli/*.cpp' 'scripts/*.cpp')
fi
printf '%s\n' "$@" | xargs -P "$jobs" -n 4 clang-tidy -p build/debug --quiet --warnings-as-errors='*'
