# Sourced by the scripts that build: one place for how many jobs and for the compiler cache.
jobs=${PALX_JOBS:-$(nproc)}
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_BASEDIR=$PWD # two clones of the tree share their cache
fi
