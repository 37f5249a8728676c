#!/usr/bin/env bash
# Configures and builds the three configurations of the sources:
#   build/host         Linux GCC: simulated Windows 98, host tests, tools
#   build/win32        MinGW win32 threads, for the i486: "Tweakloom 99.exe",
#                      Wine benchmark; first the runtime it links
#                      (tools/build-runtime-i486.sh, build/runtime-i486)
#   build/win32-tests  MinGW posix threads: the conformance suite for Wine
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
configure() {
  local dir=$1
  shift
  [ -f "$dir/build.ninja" ] || cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release "$@" >/dev/null
}
tools/build-runtime-i486.sh
configure build/host
configure build/win32 -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-i686-win32.cmake
configure build/win32-tests -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-i686-posix.cmake
for dir in build/host build/win32 build/win32-tests; do
  echo "== building $dir"
  cmake --build "$dir" -j "$jobs"
done
