#!/usr/bin/env bash
# Process benchmarks under Wine in the Windows 98 prefix (figures only):
#  - time from process start until the first window is visible, for
#    "Tweakloom 99.exe" (the splash, frmShape) against a bare program with one
#    window, median of 5 launches each (target at most 1.3); and until FMain;
#  - CPU time the program uses over 10 s while idle (its 20 ms timer runs),
#    as a share of one core, median of three runs (target below 1%);
#  - the runtime's real windows (tl99_frame_bench.exe): the list of 20,000
#    registry backups against a bare FindFirstFileA walk, and one pass of the
#    splash's event pump against a bare PeekMessageA pass.
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

# Sets `share` to the percentage of one core that the process named EXE used
# over 10 seconds ("" when it is not running).
idle_share() {
  local exe=$1 pid ticks0 ticks1 hz owner
  owner=$([ "$(id -u)" -eq 0 ] && echo "$TL99_WINE_USER" || id -un)
  share=
  # The program's own process: the newest one whose command names the exe
  # (the "wine" launcher before it has ended by then).
  pid=$(pgrep -n -u "$owner" -f "$exe")
  [ -n "$pid" ] || return
  hz=$(getconf CLK_TCK)
  ticks0=$(awk '{print $14 + $15}' "/proc/$pid/stat" 2>/dev/null) || return
  sleep 10
  ticks1=$(awk '{print $14 + $15}' "/proc/$pid/stat" 2>/dev/null) || return
  share=$(awk -v a="$ticks0" -v b="$ticks1" -v hz="$hz" 'BEGIN { printf "%.2f", 100 * (b - a) / hz / 10 }')
}

median() { printf '%s\n' "$@" | sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# Median of 5 launches to the first window, each against a bare window.
bares=() splashes=()
for _ in 1 2 3 4 5; do
  time_to_window build/win32/tests/bench/tl99_bare_window.exe Bare
  bares+=("$elapsed")
  time_to_window "build/win32/app/Tweakloom 99.exe" frmShape
  splashes+=("$elapsed")
done
bare=$(median "${bares[@]}")
splash=$(median "${splashes[@]}")
awk -v o="$splash" -v b="$bare" 'BEGIN { printf "start-up: the splash visible after %d ms, a bare window after %d ms (medians of 5), ratio %.2f (target at most 1.3)\n", o, b, o / b }'
time_to_window "build/win32/app/Tweakloom 99.exe" FMain
echo "start-up: FMain visible after $elapsed ms"
sleep 2
shares=()
for _ in 1 2 3; do
  idle_share "Tweakloom 99.exe"
  shares+=("${share:-0}")
done
echo "idle: Tweakloom 99.exe with its 20 ms Timer1 uses $(median "${shares[@]}")% of one core (median of three 10 s runs: ${shares[*]}; target below 1%)"
# The floor: a bare window whose 20 ms timer does nothing.
as_wine_user wineserver -k >/dev/null 2>&1
(cd build/win32/tests/bench && as_wine_user wine tl99_bare_window.exe --timer </dev/null >/dev/null 2>&1) &
as_wine_user wine "$driver" wait Bare 30000 </dev/null >/dev/null 2>&1
sleep 2
shares=()
for _ in 1 2 3; do
  idle_share tl99_bare_window.exe
  shares+=("${share:-0}")
done
echo "idle: a bare window with a 20 ms timer that does nothing uses $(median "${shares[@]}")% of one core (median of three 10 s runs: ${shares[*]})"
(cd build/win32/tests/gallery && as_wine_user wine tl99_gallery.exe --time </dev/null \
  >"${TMPDIR:-/tmp}/tl99-gallery-time.txt" 2>/dev/null)
tr -d '\r' <"${TMPDIR:-/tmp}/tl99-gallery-time.txt"
time_to_window build/win32/tests/gallery/tl99_gallery.exe Gallery
idle_share tl99_gallery.exe
echo "idle: the gallery with its 100 ms timer uses ${share:-?}% of one core over 10 s"
as_wine_user wineserver -k >/dev/null 2>&1
# 20,000 empty backups, made from outside (Wine would take minutes for them).
bench_dir=$WINEPREFIX/drive_c/TL99BENCH
as_wine_user bash -c "mkdir -p '$bench_dir' && cd '$bench_dir' && seq -f 'rb%05g.cab' 0 19999 | xargs touch"
as_wine_user wine build/win32/tests/bench/tl99_frame_bench.exe 'C:\TL99BENCH' 20000 </dev/null \
  >"${TMPDIR:-/tmp}/tl99-frame-bench.txt" 2>/dev/null
rm -rf "$bench_dir"
tr -d '\r' <"${TMPDIR:-/tmp}/tl99-frame-bench.txt"
as_wine_user wineserver -k >/dev/null 2>&1
