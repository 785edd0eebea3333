#!/bin/sh
# Builds a fuzzer with clang and the sanitizers and lets it run.
#
#   scripts/fuzz.sh NAME SECONDS     NAME: archive, exchange, frame, script, script_run (fuzz/NAME_fuzz.cpp)
#
# Starts from fuzz/corpus/NAME and keeps what it finds in build/fuzz/corpus/NAME. A finding is written to build/fuzz and
# ends the run with an error.
set -eu
cd "$(dirname "$0")/.."

if [ $# -ne 2 ] || [ ! -f "fuzz/$1_fuzz.cpp" ]; then
    echo "usage: scripts/fuzz.sh NAME SECONDS; names: $(ls fuzz | sed -n 's/_fuzz\.cpp$//p' | tr '\n' ' ')" >&2
    exit 2
fi
name=$1
seconds=$2

scripts/install-packages.sh build fuzz
. scripts/build-settings.sh

flags="-O1 -g1 -fsanitize-ignorelist=$PWD/fuzz/sanitizers.ignore"
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=$flags" \
    -DCMAKE_CXX_COMPILER=clang++-14 -DPALX_FUZZ=ON -DPALX_SANITIZE=fuzzer-no-link,address,undefined \
    -DPALX_TESTS=OFF -DPALX_BENCH=OFF >&2
cmake --build build/fuzz -j "$jobs" --target "${name}_fuzz" >&2

found=build/fuzz/corpus/$name
mkdir -p "$found"
exec "build/fuzz/bin/${name}_fuzz" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
    -print_final_stats=1 -artifact_prefix=build/fuzz/ "$found" "fuzz/corpus/$name"
