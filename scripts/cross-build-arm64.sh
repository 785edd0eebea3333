#!/bin/sh
# Cross-builds the plug-in, the panel and `palx` for 64-bit Arm, and runs `palx demo` under an emulator.
#
# The libraries for the target are Debian's packages of that architecture, unpacked into build/arm64-sysroot (about
# 800 MB, once); nothing of them is installed on this machine.
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh build arm64
. scripts/build-settings.sh

sysroot=$PWD/build/arm64-sysroot
packages='libc6-dev libstdc++-12-dev qtbase5-dev qttools5-dev libqt5sql5-sqlite libquazip1-qt5-dev zlib1g-dev
          libgtest-dev libgmock-dev libeigen3-dev rapidjson-dev libcli11-dev fonts-dejavu-core'

# An apt of its own: package lists, archives and an empty list of installed packages in one folder.
fetch_sysroot() {
    apt=$PWD/build/arm64-apt
    mkdir -p "$apt/lists/partial" "$apt/archives/partial"
    : >"$apt/status"
    cat >"$apt/apt.conf" <<CONF
APT::Architecture "arm64";
#clear APT::Architectures;
APT::Architectures { "arm64"; };
APT::Sandbox::User "";
Dir::State "$apt";
Dir::State::lists "$apt/lists";
Dir::State::status "$apt/status";
Dir::Cache "$apt";
Dir::Cache::archives "$apt/archives";
Debug::NoLocking "true";
CONF
    export APT_CONFIG="$apt/apt.conf"
    apt-get -q update
    apt-get -q -y --no-install-recommends --download-only install $packages
    unset APT_CONFIG
    rm -rf "$sysroot.part"
    mkdir -p "$sysroot.part"
    for package in "$apt"/archives/*.deb; do
        dpkg -x "$package" "$sysroot.part"
    done
    # Absolute links would lead out of the sysroot.
    find "$sysroot.part" -type l -lname '/*' ! -lname /dev/null | while read -r link; do
        ln -snf "$(realpath -m --relative-to="$(dirname "$link")" "$sysroot.part$(readlink "$link")")" "$link"
    done
    mv "$sysroot.part" "$sysroot"
    rm -rf "$apt"
}

# Two packages name headers and a library by absolute paths, which would be this machine's.
lead_into_sysroot() {
    find "$sysroot/usr" -name RapidJSONConfig.cmake \
        -exec sed -i "s|\"/usr/include\"|\"$sysroot/usr/include\"|" {} +
    find "$sysroot/usr" -name QuaZip-Qt5_SharedTargets.cmake \
        -exec sed -i "s|;/usr/lib/|;$sysroot/usr/lib/|" {} +
}

[ -d "$sysroot" ] || fetch_sysroot
lead_into_sysroot

cmake --preset arm64 -DPALX_TESTS=OFF
cmake --build --preset arm64 -j "$jobs" --target palx_workstation palx_panel palx

# What does not run on the target's processor shows here, without one at hand.
echo 'cross-build-arm64: running palx demo under the emulator' >&2
QT_PLUGIN_PATH=$sysroot/usr/lib/aarch64-linux-gnu/qt5/plugins \
    qemu-aarch64 -L "$sysroot" build/arm64/bin/palx demo -o build/arm64/demo
