#!/usr/bin/env bash
# Installs everything the build and the tests need on a Debian 12 machine:
# host compilers and GoogleTest, the MinGW-w64 cross compiler, 32-bit Wine,
# Xvfb and ImageMagick for screenshots, the help compiler (chmcmd of fp-utils),
# NSIS for the installer and zip for the release package. Idempotent: a second run only checks.
set -euo pipefail

need=()
have() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

host_pkgs=(build-essential cmake ninja-build googletest libgtest-dev clang-format
  g++-mingw-w64-i686 binutils-mingw-w64-i686 xvfb x11-utils imagemagick xdotool file fonts-wine
  fp-utils nsis zip unzip)
for p in "${host_pkgs[@]}"; do have "$p" || need+=("$p"); done
have wine32:i386 || need+=(wine32:i386)
have wine || need+=(wine)

if [ ${#need[@]} -eq 0 ]; then
  echo "install-deps: all packages present"
  exit 0
fi
echo "install-deps: installing ${need[*]}"

export DEBIAN_FRONTEND=noninteractive
if ! dpkg --print-foreign-architectures | grep -qx i386; then
  dpkg --add-architecture i386
fi

# The security suite's i386 index is sometimes out of step with amd64; take
# both architectures from main and updates only, in a lists folder of our own,
# so that every package comes in the same version for both.
lists=/var/lib/apt/lists-tl99
mkdir -p "$lists/partial"
src=/etc/apt/tl99-sources.list
mirror=$(grep -hE '^(URIs:|deb )' /etc/apt/sources.list /etc/apt/sources.list.d/*.sources \
  /etc/apt/sources.list.d/*.list 2>/dev/null | grep -oE 'https?://[^ ]+' | grep -v security | head -n 1 || true)
mirror=${mirror:-http://deb.debian.org/debian}
# debian.sources (deb822) may hold a URI with a trailing path; strip to the archive root
mirror=${mirror%/}
cat >"$src" <<SRC
deb $mirror bookworm main
deb $mirror bookworm-updates main
SRC
aptopts=(-o Dir::Etc::SourceList="$src" -o Dir::Etc::SourceParts=/nonexistent
  -o Dir::State::Lists="$lists")
apt-get "${aptopts[@]}" update -qq
apt-get "${aptopts[@]}" install -y -qq --no-install-recommends "${need[@]}"
echo "install-deps: done"
