#!/usr/bin/env bash
# Installs everything the build and the tests need on a Debian 12 machine:
# host compilers and GoogleTest, the MinGW-w64 cross compiler, 32-bit Wine,
# Xvfb and ImageMagick for screenshots, the help compiler (chmcmd of fp-utils),
# NSIS for the installer and zip for the release package, and what
# tools/build-runtime-i486.sh rebuilds the runtime from: GCC 12's sources,
# dpkg-source and the autotools, and the libraries GCC's configure looks for.
# Idempotent: a second run only checks. The source indexes of Debian's archive
# are fetched too (a sources list of their own, tools/apt-lists.sh):
# tools/build-runtime-i486.sh takes the MinGW-w64 CRT's sources with apt-get source.
set -euo pipefail

need=()
have() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

host_pkgs=(build-essential cmake ninja-build googletest libgtest-dev clang-format
  g++-mingw-w64-i686 binutils-mingw-w64-i686 xvfb x11-utils imagemagick xdotool file fonts-wine
  fp-utils nsis zip unzip
  gcc-12-source mingw-w64-i686-dev dpkg-dev autoconf automake libgmp-dev libmpfr-dev libmpc-dev)
for p in "${host_pkgs[@]}"; do have "$p" || need+=("$p"); done
have wine32:i386 || need+=(wine32:i386)
have wine || need+=(wine)

. "$(dirname "$0")/apt-lists.sh"
# The indexes of Debian's source packages, for apt-get source in
# tools/build-runtime-i486.sh (fetched once; root only).
sources_ready() {
  if [ "$(id -u)" -eq 0 ]; then tl99_apt_src_ready; fi
}

if [ ${#need[@]} -eq 0 ]; then
  sources_ready
  echo "install-deps: all packages present"
  exit 0
fi
echo "install-deps: installing ${need[*]}"

export DEBIAN_FRONTEND=noninteractive
if ! dpkg --print-foreign-architectures | grep -qx i386; then
  dpkg --add-architecture i386
fi

tl99_apt_write "$tl99_apt_list" "$tl99_apt_lists" deb
tl99_apt update -qq
tl99_apt install -y -qq --no-install-recommends "${need[@]}"
sources_ready
echo "install-deps: done"
