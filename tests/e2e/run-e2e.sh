#!/usr/bin/env bash
# End-to-end tests: each tests/e2e/cases/*.e2e tells a user's story to a
# program running in the Windows 98 prefix under an X display; the steps are
# carried out and checked by tl99drive.exe, inside the same prefix. Ends with
# one line "e2e: N passed, N failed" (one test per case file).
#
#   tests/e2e/run-e2e.sh [CASE.e2e ...]
#
# It uses $WINEPREFIX and $DISPLAY when they are set (tools/test-all.sh sets
# both); otherwise it makes build/wine98 and starts its own Xvfb.
#
# A case file holds one directive per line:
#   # text                comment
#   fresh-prefix          puts the prefix back in its made state (ends any program first)
#   system-version X.Y.Z  makes the prefix report that system version (ends any program
#                         first; 4.90.3000 is Windows ME); Windows 98 again after the case
#   display-dpi N         makes the display N dots per inch (120: large fonts); ends any
#                         program first; the prefix is made again after the case
#   end-program           ends the program (and every Wine process of the prefix)
#   export-registry NAME  saves the whole registry, one line per value with its key,
#                         as build/e2e-artifacts/CASE/NAME.txt
#   expect-registry-diff BEFORE AFTER EXPECTED
#                         the lines that differ between two saved registries are
#                         exactly those of tests/e2e/cases/expected/EXPECTED
#                         ("+ " added, "- " removed)
#   host-run COMMAND      runs COMMAND with bash as the prefix's Wine user, in the
#                         repository, with WINEPREFIX set: arranges the machine's
#                         files (a drive e:, a changed system.ini) before a start
#   program PATH [ARGS]   starts PATH (an exe, relative to the repository, or a
#                         Windows path C:\... in the prefix) in the background,
#                         with its own folder as the current folder
#   run PATH [ARGS]       runs PATH (as for program) to its end in the foreground;
#                         fails on a non-zero exit code; logs the time it took
#   unzip ZIP WINDIR      unpacks ZIP (relative to the repository; a pattern that
#                         matches one file) into the folder WINDIR (C:\...) of the prefix
#   list-files NAME       saves the listing of drive C (every folder, every file
#                         with its size) as build/e2e-artifacts/CASE/NAME.txt
#   expect-same-files A B [IGNORE]
#                         the two saved listings are the same (else files-changes.txt),
#                         apart from lines matching the extended regular expression IGNORE
#   expect-files-diff A B EXPECTED
#                         the lines that differ between two saved listings, sizes left
#                         out, are exactly those of tests/e2e/cases/expected/EXPECTED
#   restart-windows       ends every program and restarts Windows (wineboot -r),
#                         which carries out the renames and deletions that
#                         programs left for the next start (wininit.ini)
#   drive COMMAND ARGS    one step of tl99drive.exe ("tl99drive.exe -h" lists them)
#   screenshot NAME.png   saves the screen as build/e2e-artifacts/CASE/NAME.png
# Words with blanks go in double quotes. Consecutive drive lines run in one
# driver session; failures name the case file's line. A case stops at its
# first failed step, and the screen is saved as failure-line-N.png. When a
# case ends, every Wine process of the prefix is ended. The case's log, the
# driver's scripts and the program's output stay in build/e2e-artifacts/CASE/.
set -uo pipefail
cases=()
for file in "$@"; do cases+=("$(realpath "$file")"); done
cd "$(dirname "$0")/../.." || exit 1
root=$PWD
. tools/wine-user.sh
. tools/xvfb.sh

artifacts=$root/build/e2e-artifacts
driver=build/win32/tests/e2e/driver/tl99drive.exe

if [ -z "${WINEPREFIX:-}" ] || [ ! -f "$WINEPREFIX/system.reg" ]; then
  export WINEPREFIX=${WINEPREFIX:-$root/build/wine98}
  tools/make-win98-prefix.sh "$WINEPREFIX" || { echo "e2e: 0 passed, 1 failed"; exit 1; }
fi
if [ -z "${DISPLAY:-}" ]; then
  start_xvfb || { echo "e2e: 0 passed, 1 failed"; exit 1; }
fi
trap 'end_wine; stop_xvfb' EXIT
# The driver and the harness's own target; everything else is built by
# tools/build-all.sh.
if [ -f build/win32/build.ninja ]; then
  cmake --build build/win32 --target tl99drive tl99_e2e_target >/dev/null ||
    { echo "e2e: 0 passed, 1 failed"; exit 1; }
fi
mkdir -p "$artifacts"

# Splits $1 into the array WORDS, by the driver's rules: blanks separate
# words, double quotes hold blanks, "" inside quotes stands for a quote.
split_words() {
  WORDS=()
  local s=$1 i=0 n=${#1} word
  while true; do
    while [ "$i" -lt "$n" ] && [[ ${s:i:1} == [[:blank:]] ]]; do i=$((i + 1)); done
    [ "$i" -ge "$n" ] && return 0
    word=
    if [ "${s:i:1}" = '"' ]; then
      i=$((i + 1))
      while true; do
        [ "$i" -ge "$n" ] && return 1
        if [ "${s:i:1}" = '"' ]; then
          if [ "${s:i+1:1}" = '"' ]; then
            word+='"'
            i=$((i + 2))
            continue
          fi
          i=$((i + 1))
          break
        fi
        word+=${s:i:1}
        i=$((i + 1))
      done
    else
      while [ "$i" -lt "$n" ] && [[ ${s:i:1} != [[:blank:]] ]]; do
        word+=${s:i:1}
        i=$((i + 1))
      done
    fi
    WORDS+=("$word")
  done
}

end_wine() {
  as_wine_user wineserver -k </dev/null >/dev/null 2>&1
  as_wine_user wineserver -w </dev/null >/dev/null 2>&1
}

# Ends the program a case started, and everything else in the prefix. A
# wineserver that is still starting does not hear "-k": try again.
end_program() { # PID
  local pid=$1 tries=0
  end_wine
  while [ -n "$pid" ] && kill -0 "$pid" 2>/dev/null && [ "$tries" -lt 20 ]; do
    sleep 0.5
    end_wine
    tries=$((tries + 1))
  done
  [ -n "$pid" ] && kill -0 "$pid" 2>/dev/null && kill_tree "$pid"
  [ -n "$pid" ] && wait "$pid" 2>/dev/null
  return 0
}

# The display's dots per inch, where Wine reads them: the user's desktop
# settings and the machine's current hardware profile.
set_display_dpi() { # DPI
  local key
  for key in 'HKCU\Control Panel\Desktop' \
    'HKLM\System\CurrentControlSet\Hardware Profiles\Current\Software\Fonts'; do
    as_wine_user wine reg add "$key" /v LogPixels /t REG_DWORD /d "$1" /f </dev/null || return 1
  done
  end_wine
}

kill_tree() { # PID: the process and its descendants
  local child
  for child in $(pgrep -P "$1"); do kill_tree "$child"; done
  kill "$1" 2>/dev/null
}

# Registry lines that Wine itself rewrites whenever its display driver starts
# in a new session (a fresh key per display device, a new driver date): they
# say nothing about what a program did, and a comparison leaves them out.
wine_session_lines='^[-+] \[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Video\\|"DriverDateData"='

# One case. Sets case_failed (0 or 1) and case_steps.
# A registry export as one line per value, "[key] value-line", and one line
# per key, so that a sorted comparison keeps each value with its key. Wine
# writes the file in UTF-16; the lines a value continues on are joined.
# HKEY_LOCAL_MACHINE\Hardware is left out: the system makes it anew at every
# start (Wine writes the host's processor there), so it isn't the machine's.
flatten_registry() {
  iconv -f UTF-16 -t UTF-8 "$1" 2>/dev/null | tr -d '\r' | awk '
    /^\[HKEY_LOCAL_MACHINE\\Hardware[]\\]/ { skip = 1; next }
    /^\[/ { skip = 0; key = $0; print key; next }
    skip { next }
    /^$/ || /^Windows Registry Editor/ || /^REGEDIT/ { next }
    { line = $0
      while (line ~ /\\$/ && (getline more) > 0) { sub(/\\$/, "", line); sub(/^ +/, "", more); line = line more }
      print key " " line }'
}

# The host path of PATH: a Windows path on drive C lies in the prefix, any
# other path is relative to the repository unless absolute.
host_path() {
  local path=$1
  if [[ $path == [Cc]:\\* ]]; then
    path=${path:3}
    echo "$WINEPREFIX/drive_c/${path//\\//}"
  elif [ "${path:0:1}" = / ]; then
    echo "$path"
  else
    echo "$root/$path"
  fi
}

# Every folder and file of drive C, one a line, files with their size.
list_files() {
  (cd "$WINEPREFIX/drive_c" && find . -mindepth 1 \( -type d -printf 'd %p\n' \) -o \( -printf 'f %s %p\n' \)) |
    LC_ALL=C sort -k3
}

run_case() {
  local file=$1
  local name
  name=$(basename "$file" .e2e)
  local dir=$artifacts/$name
  local log=$dir/case.log
  rm -rf "$dir"
  mkdir -p "$dir"
  case_failed=0
  case_steps=0
  local line_no=0 batch=0 batch_file="" first_line="" program_pid="" other_build=""

  note() { echo "$*" | tee -a "$log"; }
  fail_at() { # LINE MESSAGE
    note "FAIL: $name.e2e:$1: $2"
    case_failed=1
  }
  # Runs the drive lines gathered so far in one driver session.
  flush() {
    [ -n "$batch_file" ] || return 0
    local output rc
    # Into a file, not a pipe: a wineserver the driver happens to start keeps
    # its output open, and a pipe would never end.
    as_wine_user timeout 600 wine "$driver" -f "${batch_file#"$root"/}" </dev/null \
      >"${batch_file%.txt}.out" 2>&1
    rc=$?
    output=$(tr -d '\r' <"${batch_file%.txt}.out" | grep -E '^(ok|FAIL): ')
    [ -n "$output" ] && note "$output"
    case_steps=$((case_steps + $(printf '%s\n' "$output" | grep -c '^ok: ')))
    if [ "$rc" -ne 0 ]; then
      case_failed=1
      local at
      at=$(printf '%s\n' "$output" | grep -m1 '^FAIL: ' | grep -oE "^FAIL: $name\.e2e:[0-9]+" |
        grep -oE '[0-9]+$')
      [ -n "$at" ] || note "FAIL: $name.e2e:$first_line: the driver ended with code $rc"
      import -window root "$dir/failure-line-${at:-$first_line}.png" </dev/null 2>/dev/null
    fi
    batch_file=
  }

  note "== $name"
  while IFS= read -r -u 3 line || [ -n "$line" ]; do
    line_no=$((line_no + 1))
    line=${line%$'\r'}
    line=${line#"${line%%[![:blank:]]*}"}
    [ -z "$line" ] || [ "${line:0:1}" = "#" ] && continue
    local directive=${line%%[[:blank:]]*}
    local rest=${line#"$directive"}
    if [ "$directive" = drive ]; then
      if [ -z "$batch_file" ]; then
        batch=$((batch + 1))
        batch_file=$dir/steps-$batch.txt
        first_line=$line_no
        : >"$batch_file"
      fi
      echo "@$name.e2e:$line_no $rest" >>"$batch_file"
      continue
    fi
    flush
    [ "$case_failed" -eq 0 ] || break
    if ! split_words "$rest"; then
      fail_at "$line_no" "unterminated quote"
      break
    fi
    case $directive in
    fresh-prefix)
      end_program "$program_pid"
      program_pid=
      if tools/make-win98-prefix.sh "$WINEPREFIX" </dev/null >>"$log" 2>&1; then
        note "ok: $name.e2e:$line_no: fresh-prefix"
      else
        fail_at "$line_no" "could not make the prefix"
      fi
      ;;
    end-program)
      flush
      end_program "$program_pid"
      program_pid=
      note "ok: $name.e2e:$line_no: end-program"
      ;;
    export-registry)
      flush
      local windows_file='C:\windows\temp\tl99-export.reg'
      as_wine_user wine regedit /E "$windows_file" </dev/null >>"$log" 2>&1
      flatten_registry "$WINEPREFIX/drive_c/windows/temp/tl99-export.reg" >"$dir/${WORDS[0]}.txt"
      rm -f "$WINEPREFIX/drive_c/windows/temp/tl99-export.reg"
      note "ok: $name.e2e:$line_no: export-registry ${WORDS[0]} ($(wc -l <"$dir/${WORDS[0]}.txt") values)"
      ;;
    expect-registry-diff)
      flush
      local changes
      changes=$(diff <(sort "$dir/${WORDS[0]}.txt") <(sort "$dir/${WORDS[1]}.txt") |
        sed -n 's/^< /- /p; s/^> /+ /p' | grep -vE "$wine_session_lines" | sort)
      if [ "$changes" = "$(sort "$root/tests/e2e/cases/expected/${WORDS[2]}")" ]; then
        note "ok: $name.e2e:$line_no: registry changed only as ${WORDS[2]} says"
      else
        printf '%s\n' "$changes" >"$dir/registry-changes.txt"
        fail_at "$line_no" "the registry changed otherwise; see registry-changes.txt"
      fi
      ;;
    system-version)
      end_program "$program_pid"
      program_pid=
      other_build=1
      if tools/make-win98-prefix.sh --version "${WORDS[0]}" "$WINEPREFIX" </dev/null >>"$log" 2>&1; then
        note "ok: $name.e2e:$line_no: system-version ${WORDS[0]}"
      else
        fail_at "$line_no" "could not make the prefix report version ${WORDS[0]}"
      fi
      ;;
    display-dpi)
      end_program "$program_pid"
      program_pid=
      other_build=1
      if set_display_dpi "${WORDS[0]}" >>"$log" 2>&1; then
        note "ok: $name.e2e:$line_no: display-dpi ${WORDS[0]}"
      else
        fail_at "$line_no" "could not set the display to ${WORDS[0]} dots per inch"
      fi
      ;;
    host-run)
      if as_wine_user bash -c "cd '$root' && ${rest#"${rest%%[![:blank:]]*}"}" </dev/null >>"$log" 2>&1; then
        note "ok: $name.e2e:$line_no: host-run"
      else
        fail_at "$line_no" "host-run failed"
      fi
      ;;
    program)
      local exe
      exe=$(host_path "${WORDS[0]:-}")
      if [ ! -f "$exe" ]; then
        fail_at "$line_no" "no program $exe"
      else
        (cd "$(dirname "$exe")" && as_wine_user wine "$exe" "${WORDS[@]:1}") </dev/null \
          >>"$dir/program.log" 2>&1 &
        program_pid=$!
        note "ok: $name.e2e:$line_no: started ${WORDS[0]}"
      fi
      ;;
    run)
      local exe start_ms rc
      exe=$(host_path "${WORDS[0]:-}")
      if [ ! -f "$exe" ]; then
        fail_at "$line_no" "no program $exe"
      else
        start_ms=$(date +%s%3N)
        (cd "$(dirname "$exe")" && as_wine_user wine "$exe" "${WORDS[@]:1}") </dev/null \
          >>"$dir/program.log" 2>&1
        rc=$?
        if [ "$rc" -eq 0 ]; then
          note "ok: $name.e2e:$line_no: ran ${WORDS[*]} in $(($(date +%s%3N) - start_ms)) ms"
        else
          fail_at "$line_no" "${WORDS[0]} ended with code $rc"
        fi
      fi
      ;;
    unzip)
      local zips target
      zips=($root/${WORDS[0]:-})
      target=$(host_path "${WORDS[1]:-}")
      if [ "${#zips[@]}" -ne 1 ] || [ ! -f "${zips[0]}" ]; then
        fail_at "$line_no" "not one zip: ${WORDS[0]:-}"
      elif mkdir -p "$target" && unzip -q -o "${zips[0]}" -d "$target"; then
        [ "$(id -u)" -eq 0 ] && chown -R "$TL99_WINE_USER" "$target"
        note "ok: $name.e2e:$line_no: unzip $(basename "${zips[0]}") into ${WORDS[1]}"
      else
        fail_at "$line_no" "could not unpack ${zips[0]}"
      fi
      ;;
    list-files)
      list_files >"$dir/${WORDS[0]}.txt"
      note "ok: $name.e2e:$line_no: list-files ${WORDS[0]} ($(wc -l <"$dir/${WORDS[0]}.txt") entries)"
      ;;
    expect-same-files)
      local ignore=${WORDS[2]:-^\$^}
      if diff <(grep -vE "$ignore" "$dir/${WORDS[0]}.txt") <(grep -vE "$ignore" "$dir/${WORDS[1]}.txt") \
        >"$dir/files-changes.txt"; then
        note "ok: $name.e2e:$line_no: drive C is as it was (${WORDS[0]} = ${WORDS[1]})"
      else
        fail_at "$line_no" "drive C changed; see files-changes.txt"
      fi
      ;;
    expect-files-diff)
      local changes
      changes=$(diff <(sed -E 's/^f [0-9]+ /f /' "$dir/${WORDS[0]}.txt") \
        <(sed -E 's/^f [0-9]+ /f /' "$dir/${WORDS[1]}.txt") | sed -n 's/^< /- /p; s/^> /+ /p' | LC_ALL=C sort)
      if [ "$changes" = "$(LC_ALL=C sort "$root/tests/e2e/cases/expected/${WORDS[2]}")" ]; then
        note "ok: $name.e2e:$line_no: drive C changed only as ${WORDS[2]} says"
      else
        printf '%s\n' "$changes" >"$dir/files-changes.txt"
        fail_at "$line_no" "drive C changed otherwise; see files-changes.txt"
      fi
      ;;
    restart-windows)
      end_program "$program_pid"
      program_pid=
      as_wine_user wine wineboot -r </dev/null >>"$log" 2>&1
      end_wine
      note "ok: $name.e2e:$line_no: restart-windows"
      ;;
    screenshot)
      if import -window root "$dir/${WORDS[0]:-screen.png}" </dev/null; then
        note "ok: $name.e2e:$line_no: screenshot ${WORDS[0]:-screen.png}"
      else
        fail_at "$line_no" "screenshot failed"
      fi
      ;;
    *) fail_at "$line_no" "unknown directive $directive" ;;
    esac
    [ "$case_failed" -eq 0 ] || break
  done 3<"$file"
  [ "$case_failed" -eq 0 ] && flush
  end_program "$program_pid"
  if [ -n "$other_build" ]; then
    tools/make-win98-prefix.sh "$WINEPREFIX" </dev/null >>"$log" 2>&1
  fi
}

passed=0
failed=0
[ "${#cases[@]}" -gt 0 ] || cases=(tests/e2e/cases/*.e2e)
for file in "${cases[@]}"; do
  [ -f "$file" ] || continue
  start=$(date +%s%3N)
  run_case "$file"
  took_ms=$(($(date +%s%3N) - start))
  took=$((took_ms / 1000)).$((took_ms % 1000 / 100))
  if [ "$case_failed" -eq 0 ]; then
    passed=$((passed + 1))
    echo "PASS $(basename "$file") ($case_steps steps, $took s)"
  else
    failed=$((failed + 1))
    echo "FAIL $(basename "$file") (after $case_steps steps, $took s;" \
      "see build/e2e-artifacts/$(basename "$file" .e2e)/)"
  fi
done
echo "e2e: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
