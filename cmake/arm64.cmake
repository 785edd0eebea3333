# Toolchain file: cross-building for 64-bit Arm against the unpacked packages of scripts/cross-build-arm64.sh.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

set(PALX_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/arm64-sysroot)
cmake_path(NORMAL_PATH PALX_SYSROOT)
set(CMAKE_SYSROOT ${PALX_SYSROOT})
set(CMAKE_FIND_ROOT_PATH ${PALX_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Libraries that libraries need are looked up beside them, not on this machine.
set(palx_links "-Wl,-rpath-link,${PALX_SYSROOT}/usr/lib/aarch64-linux-gnu:${PALX_SYSROOT}/lib/aarch64-linux-gnu")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${palx_links}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${palx_links}")
set(CMAKE_CROSSCOMPILING_EMULATOR "/usr/bin/qemu-aarch64;-L;${PALX_SYSROOT}")

# Qt's code generators run on this machine.
set(CMAKE_PROJECT_INCLUDE ${CMAKE_CURRENT_LIST_DIR}/arm64_qt_tools.cmake)
