#!/bin/sh
# Installs what is missing, builds, and starts the panel with the example recipes. Without a display it runs
# `palx demo` instead, which does the whole path on the examples and leaves pictures in build/demo.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh build
if [ -z "${DISPLAY:-}" ] && [ -n "${WAYLAND_DISPLAY:-}" ]; then
    scripts/install-packages.sh wayland
fi

. scripts/build-settings.sh
cmake --preset release
cmake --build --preset release -j "$jobs" --target palx_workstation palx_panel palx palx_controller

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/bin/palx_panel --examples examples "$@"
fi
echo 'run.sh: no display, so the demonstration runs instead of the panel' >&2
exec build/release/bin/palx demo "$@"
