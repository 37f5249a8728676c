#!/usr/bin/env bash
# Process benchmarks under Wine in the Windows 98 prefix (figures only):
#  - time from process start until the window is visible, for
#    "Tweakloom 99.exe" (FMain) against a bare program with one window;
#  - CPU time the program uses over 10 s while idle (its 20 ms timer runs),
#    as a share of one core.
# Needs WINEPREFIX and DISPLAY (tools/test-all.sh sets both).
set -uo pipefail
cd "$(dirname "$0")/.."
. tools/wine-user.sh
driver=build/win32/tests/e2e/driver/tl99drive.exe

# Wine's own processes keep any pipe they inherit open, so nothing here runs
# Wine inside $(...): results come back in variables.

# Sets `elapsed` to the milliseconds from starting EXE (in its own folder)
# until window NAME shows. Wine is started fresh each time.
time_to_window() {
  local exe=$1 name=$2 start end
  as_wine_user wineserver -k >/dev/null 2>&1
  as_wine_user wine "$driver" sleep 1 >/dev/null 2>&1 # the prefix's services up first
  start=$(date +%s%N)
  (cd "$(dirname "$exe")" && as_wine_user wine "$(basename "$exe")" </dev/null >/dev/null 2>&1) &
  as_wine_user wine "$driver" wait "$name" 30000 </dev/null >/dev/null 2>&1
  end=$(date +%s%N)
  elapsed=$(((end - start) / 1000000))
}

# Prints the share of one core the process named EXE used over 10 seconds.
idle_cpu() {
  local exe=$1 what=$2 pid ticks0 ticks1 hz
  local owner
  owner=$([ "$(id -u)" -eq 0 ] && echo "$TL99_WINE_USER" || id -un)
  pid=$(pgrep -u "$owner" -f "$exe" | head -n 1)
  if [ -z "$pid" ]; then
    echo "idle: $what: not running"
    return
  fi
  hz=$(getconf CLK_TCK)
  ticks0=$(awk '{print $14 + $15}' "/proc/$pid/stat")
  sleep 10
  ticks1=$(awk '{print $14 + $15}' "/proc/$pid/stat")
  awk -v a="$ticks0" -v b="$ticks1" -v hz="$hz" -v what="$what" \
    'BEGIN { printf "idle: %s uses %.2f%% of one core over 10 s\n", what, 100 * (b - a) / hz / 10 }'
}

time_to_window build/win32/tests/bench/tl99_bare_window.exe Bare
bare=$elapsed
time_to_window "build/win32/app/Tweakloom 99.exe" FMain
ours=$elapsed
awk -v o="$ours" -v b="$bare" \
  'BEGIN { printf "start-up: FMain visible after %d ms, a bare window after %d ms, ratio %.2f\n", o, b, o / b }'
sleep 2
idle_cpu "Tweakloom 99.exe" "Tweakloom 99.exe with its 20 ms Timer1 (target below 1%)"
(cd build/win32/tests/gallery && as_wine_user wine tl99_gallery.exe --time </dev/null \
  >"${TMPDIR:-/tmp}/tl99-gallery-time.txt" 2>/dev/null)
tr -d '\r' <"${TMPDIR:-/tmp}/tl99-gallery-time.txt"
time_to_window build/win32/tests/gallery/tl99_gallery.exe Gallery
idle_cpu tl99_gallery.exe "the gallery with its 100 ms timer"
as_wine_user wineserver -k >/dev/null 2>&1
