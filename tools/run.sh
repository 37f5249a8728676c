#!/usr/bin/env bash
# Builds the program and starts it in the bundled Windows 98 environment.
# With no X display it runs under Xvfb for a few seconds and saves a
# screenshot to build/screenshot.png.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
tools/install-deps.sh
tools/build-runtime-i486.sh
cmake -S . -B build/win32 -G Ninja -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-i686-win32.cmake >/dev/null
cmake --build build/win32 --target tweakloom99 tl99_help
prefix=$root/build/wine98
tools/make-win98-prefix.sh "$prefix"
. tools/wine-user.sh
export WINEPREFIX=$prefix
install_dir="$prefix/drive_c/Program Files/Tweakloom 99"
mkdir -p "$install_dir"
cp "build/win32/app/Tweakloom 99.exe" "build/win32/app/Tweakloom 99.chm" "$install_dir/"
[ -d resources/side ] && cp resources/side/* "$install_dir/"
cp resources/images/oemlogo.bmp "$install_dir/Tweakloom 99.bmp"
[ "$(id -u)" -eq 0 ] && chown -R "$TL99_WINE_USER" "$install_dir"
cd "$install_dir"
if [ -n "${DISPLAY:-}" ]; then
  as_wine_user wine "Tweakloom 99.exe"
else
  . "$root/tools/xvfb.sh"
  start_xvfb
  as_wine_user wine "Tweakloom 99.exe" &
  sleep 8
  import -window root "$root/build/screenshot.png"
  echo "screenshot: build/screenshot.png"
  as_wine_user wineserver -k || true
  stop_xvfb
fi
