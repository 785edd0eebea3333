#!/bin/sh
# Installs what is missing, builds with warnings as errors and runs every test; then does the same once more under
# the address and undefined-behaviour sanitizers.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh build
. scripts/build-settings.sh

for preset in release asan; do
    echo "test.sh: preset $preset" >&2
    cmake --preset "$preset" -DPALX_WERROR=ON
    cmake --build --preset "$preset" -j "$jobs"
    ctest --test-dir "build/$preset" -j "$jobs" --output-on-failure --no-tests=error
done
