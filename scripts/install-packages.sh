#!/bin/sh
# Installs the Debian packages that the build needs and that are not there yet.
#
#   scripts/install-packages.sh [SET...]     SET: build (default), lint, fuzz, wayland, arm64
#
# Does nothing, and needs no rights, when everything is installed.
set -eu

build='g++ git cmake ninja-build ccache qtbase5-dev qttools5-dev qttools5-dev-tools libqt5sql5-sqlite
       libquazip1-qt5-dev zlib1g-dev libgtest-dev libgmock-dev libbenchmark-dev rapidjson-dev libeigen3-dev
       libcli11-dev fonts-dejavu-core fonts-wqy-microhei'
lint='clang-format clang-tidy'
fuzz='clang-14 libclang-rt-14-dev'
wayland='qtwayland5'
arm64='g++-aarch64-linux-gnu qemu-user'

say() { printf '%s\n' "install-packages: $*" >&2; }

wanted=
for set in "${@:-build}"; do
    case $set in
    build) wanted="$wanted $build" ;;
    lint) wanted="$wanted $lint" ;;
    fuzz) wanted="$wanted $fuzz" ;;
    wayland) wanted="$wanted $wayland" ;;
    arm64) wanted="$wanted $arm64" ;;
    *)
        say "unknown set '$set' (known: build, lint, fuzz, wayland, arm64)"
        exit 2
        ;;
    esac
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    say "this is no Debian system; install the counterparts of these packages by hand:$(echo $wanted)"
    exit 1
fi

missing=
for package in $wanted; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) || state=
    [ "$state" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        say "missing:$missing"
        say "installing needs root; run as root:  apt-get install --no-install-recommends$missing"
        exit 1
    fi
    as_root=sudo
fi

say "installing$missing"
apt() { $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q "$@"; }
# A bare system has no package lists, an old one has stale ones: fetch them only when the first try fails.
if ! apt install -y --no-install-recommends $missing; then
    say "fetching the package lists and trying once more"
    if ! apt update || ! apt install -y --no-install-recommends $missing; then
        say "could not install$missing; apt-get's own messages above say why"
        exit 1
    fi
fi
