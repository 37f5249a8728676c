#!/usr/bin/env bash
# Makes a 32-bit Wine prefix into a Windows 98 machine: it reports Windows 98
# build 4.10.1998 and holds the files and registry keys of a lived-in
# Windows 98 from tools/win98-env/. Idempotent: a second run brings the prefix
# back to the same state.
#
#   tools/make-win98-prefix.sh [--version X.Y.Z] PREFIX
#
# --version makes the machine report another system, for the system gate.
# Wine takes any 4.10.x as Windows 98 build 1998; 4.90.3000 (Windows ME)
# gives another build.
set -euo pipefail

version=4.10.1998
if [ "${1:-}" = "--version" ]; then
  version=$2
  shift 2
fi
prefix=${1:?usage: make-win98-prefix.sh [--version X.Y.Z] PREFIX}
here=$(cd "$(dirname "$0")" && pwd)
env_dir=$here/win98-env
. "$here/wine-user.sh"

mkdir -p "$prefix"
prefix=$(cd "$prefix" && pwd)
export WINEPREFIX=$prefix
wine_user_setup "$prefix"
wine() { as_wine_user wine "$@"; }
wineserver() { as_wine_user wineserver "$@"; }

# The registry as Wine first made it is kept aside, and every later run
# starts from it again, so that what programs wrote since is gone.
pristine=$prefix/.tl99-pristine
if [ ! -f "$pristine/system.reg" ]; then
  [ -f "$prefix/system.reg" ] || as_wine_user wineboot -i >/dev/null 2>&1
  wineserver -w
  mkdir -p "$pristine"
  cp "$prefix"/system.reg "$prefix"/user.reg "$prefix"/userdef.reg "$pristine/"
else
  wineserver -k >/dev/null 2>&1 || true
  wineserver -w
  cp "$pristine"/system.reg "$pristine"/user.reg "$pristine"/userdef.reg "$prefix/"
fi
[ "$(id -u)" -eq 0 ] && chown -R "$TL99_WINE_USER" "$prefix"

# Wine draws the window frames itself, as Windows does (there is no window
# manager under Xvfb).
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N /f >/dev/null 2>&1
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Decorated /t REG_SZ /d N /f >/dev/null 2>&1

# The machine's files and registry. Drives d: to h: that a test gave the
# machine go again; MSDOS.SYS is made writable so that the copy replaces it.
drive_c=$prefix/drive_c
for link in "$prefix"/dosdevices/[d-h]:; do
  [ -L "$link" ] && [[ $(readlink "$link") == *tl99-drives* ]] && rm -f "$link"
done
rm -rf "$prefix/tl99-drives"
chmod u+w "$drive_c/MSDOS.SYS" 2>/dev/null || true
# What an installed or unpacked Tweakloom 99 left (the registry comes back
# above): the program's folders, its shortcut, the uninstaller's temporary
# folders.
rm -rf "$drive_c/Program Files/Tweakloom 99" "$drive_c/TL99ZIP" "$drive_c"/users/*/Temp/~nsu*.tmp \
  "$drive_c"/users/*/AppData/Roaming/Microsoft/Windows/"Start Menu"/Programs/"Tweakloom 99.lnk"
cp -r "$env_dir/drive_c/." "$drive_c/"
# The fonts a Windows 98 has in its Fonts folder for dialogs and window
# captions: MS Sans Serif and Marlett, from Wine's font package.
for font in sserife.fon marlett.ttf; do
  if [ -f "/usr/share/wine/fonts/$font" ]; then
    cp "/usr/share/wine/fonts/$font" "$drive_c/windows/Fonts/"
  fi
done
# win98.reg holds the machine's common keys; each page's keys may stand in a
# file of their own beside it. All are imported, in name order.
for reg in "$env_dir"/*.reg; do
  cp "$reg" "$drive_c/windows/temp/tl99-import.reg"
  [ "$(id -u)" -eq 0 ] && chown -R "$TL99_WINE_USER" "$drive_c"
  wine regedit /S 'C:\windows\temp\tl99-import.reg' >/dev/null 2>&1
done
rm -f "$drive_c/windows/temp/tl99-import.reg"
# Windows 98 keeps MSDOS.SYS read-only, hidden and system. Set through Wine,
# which keeps hidden and system in an extended attribute of the file and
# read-only in its Unix permissions; Wine's attrib takes one attribute a call,
# and read-only comes last, since a read-only file takes no new attribute.
for attribute in +H +S +R; do
  wine attrib "$attribute" 'C:\MSDOS.SYS' >/dev/null 2>&1
done
# Wine keeps the user's currency region in a subkey of International named by
# three globe emoji. Windows 98 has no such key, and a program of the ANSI
# code page can't name it, so deleting International with its subkeys
# through the ANSI calls (as the Desktop page's Apply does) would stop there.
globes=$(printf '\360\237\214\216\360\237\214\217\360\237\214\215')
wine reg delete "HKCU\\Control Panel\\International\\$globes" /f >/dev/null 2>&1 || true
# The reported system, set last (the registry file holds Windows 98's own
# VersionNumber): Wine takes a 9x version from VersionNumber once the NT
# CurrentVersion value is gone.
wine reg add 'HKLM\Software\Microsoft\Windows\CurrentVersion' /v VersionNumber /t REG_SZ \
  /d "$version" /f >/dev/null 2>&1
wine reg delete 'HKLM\Software\Microsoft\Windows NT\CurrentVersion' /v CurrentVersion /f \
  >/dev/null 2>&1 || true
wine reg delete 'HKCU\Software\Wine' /v Version /f >/dev/null 2>&1 || true
wineserver -w
echo "make-win98-prefix: $prefix reports version $version"
