#!/usr/bin/env bash
# Installs what is needed, builds every configuration and runs all test tiers:
#   1. host tests (simulated Windows 98)
#   2. platform conformance, twice: simulated, and Win32 under Wine-as-98
#   3. end-to-end tests of the real exe under Wine (when present)
#   4. static check of the exe: PE, imports, processor
# then the benchmarks, which print figures and never fail. Ends with one line:
# "N passed, N failed".
set -uo pipefail
cd "$(dirname "$0")/.."
root=$PWD
logs=$root/build/test-logs
passed=0
failed=0

tools/install-deps.sh || exit 1
tools/build-all.sh || { echo "0 passed, 1 failed"; exit 1; }
mkdir -p "$logs"

count() { # NAME PASSED FAILED
  echo "-- $1: $2 passed, $3 failed"
  passed=$((passed + $2))
  failed=$((failed + $3))
}

# gtest's own summary: "[  PASSED  ] N tests." and "[  FAILED  ] N tests,"
gtest_counts() {
  local ok bad
  ok=$(grep -oE '^\[  PASSED  \] [0-9]+' "$1" | grep -oE '[0-9]+$' || true)
  bad=$(grep -oE '^\[  FAILED  \] [0-9]+ test' "$1" | grep -oE '[0-9]+' || true)
  echo "${ok:-0} ${bad:-0}"
}

echo "== tier 1 and 2 (simulated): host tests and conformance"
(cd build/host && ctest --output-on-failure -j "$(nproc)") >"$logs/ctest.log" 2>&1
tail -n 3 "$logs/ctest.log"
host_total=$(grep -oE 'tests passed, [0-9]+ tests failed out of [0-9]+' "$logs/ctest.log" | grep -oE '[0-9]+$')
host_failed=$(grep -oE '[0-9]+ tests failed out of' "$logs/ctest.log" | grep -oE '^[0-9]+')
count "host ctest" $(( ${host_total:-0} - ${host_failed:-0} )) "${host_failed:-1}"
[ "${host_failed:-1}" -eq 0 ] || grep -E 'Failed|\*\*\*' "$logs/ctest.log" | head -20
sim_conformance=$(build/host/tests/conformance/tl99_conformance --gtest_list_tests | grep -c '^  ')

echo "== Windows 98 environment"
. tools/wine-user.sh
. tools/xvfb.sh
prefix=$root/build/wine98
tools/make-win98-prefix.sh "$prefix" || { count "Windows 98 prefix" 0 1; echo "$passed passed, $failed failed"; exit 1; }
export WINEPREFIX=$prefix
start_xvfb
trap 'as_wine_user wineserver -k >/dev/null 2>&1; stop_xvfb' EXIT

echo "== tier 2 (Win32 under Wine-as-98): conformance"
as_wine_user timeout 600 wine build/win32-tests/tests/conformance/tl99_conformance.exe >"$logs/conformance-wine.log" 2>&1
read -r ok bad < <(gtest_counts "$logs/conformance-wine.log")
grep -E '^\[  FAILED  \]|Failure' "$logs/conformance-wine.log" | head -20
count "conformance under Wine" "$ok" "$bad"
echo "   conformance tests: simulated $sim_conformance, Wine $((ok + bad))"
if [ "$sim_conformance" -ne $((ok + bad)) ]; then
  echo "   the two conformance runs differ in their test count"
  count "same conformance count" 0 1
fi

if [ -x tests/e2e/run-e2e.sh ]; then
  echo "== tier 3: end-to-end"
  tests/e2e/run-e2e.sh >"$logs/e2e.log" 2>&1
  read -r ok bad < <(sed -nE 's/^e2e: ([0-9]+) passed, ([0-9]+) failed$/\1 \2/p' "$logs/e2e.log" | tail -n 1)
  grep -E 'FAIL' "$logs/e2e.log" | head -20
  count "end-to-end" "${ok:-0}" "${bad:-1}"
fi

echo "== tier 4: static check"
exe="build/win32/app/Tweakloom 99.exe"
if build/host/tools/pecheck/tl99_pecheck "$exe" tools/win98/allow.txt tools/win98/deny.txt; then
  count "static check of the exe" 1 0
else
  count "static check of the exe" 0 1
fi
# The checker must refuse an exe with imports that Windows 98 lacks: the
# posix-model test program pulls in winpthreads.
if build/host/tools/pecheck/tl99_pecheck build/win32-tests/tests/conformance/tl99_conformance.exe \
  tools/win98/allow.txt tools/win98/deny.txt >/dev/null; then
  count "static check refuses a posix-model exe" 0 1
else
  count "static check refuses a posix-model exe" 1 0
fi
# The installer and its uninstaller: Windows 98 imports apart from the
# installer's named exceptions, each with its reason; without the exceptions
# the check must refuse them, so the list is what lets them pass.
release=build/win32/release
exceptions=tools/win98/installer-exceptions.txt
for program in "$release/Tweakloom99-setup.exe" "$release/uninst.exe"; do
  name=$(basename "$program")
  if build/host/tools/pecheck/tl99_pecheck "$program" tools/win98/allow.txt tools/win98/deny.txt \
    "$exceptions" >"$logs/pecheck-$name.log"; then
    count "static check of $name" 1 0
  else
    grep PROBLEM "$logs/pecheck-$name.log"
    count "static check of $name" 0 1
  fi
  if build/host/tools/pecheck/tl99_pecheck "$program" tools/win98/allow.txt tools/win98/deny.txt \
    >/dev/null; then
    count "$name needs its exceptions" 0 1
  else
    count "$name needs its exceptions" 1 0
  fi
done
# The zip holds exactly the files of release/files.txt, and those include
# every side file the program looks for beside itself.
zip_file=$(ls "$release"/Tweakloom99-*.zip)
stated=$(grep -vE '^(#|$)' release/files.txt | LC_ALL=C sort)
if [ "$(unzip -Z1 "$zip_file" | LC_ALL=C sort)" = "$stated" ]; then
  count "release zip holds exactly release/files.txt" 1 0
else
  unzip -Z1 "$zip_file"
  count "release zip holds exactly release/files.txt" 0 1
fi
missing=0
for side in resources/side/*; do
  grep -qxF "$(basename "$side")" release/files.txt || { echo "   $(basename "$side") is not shipped"; missing=1; }
done
count "every side file is shipped" $((1 - missing)) "$missing"
if build/host/tools/artgen/tl99_artgen --verify resources/images; then
  count "artwork matches its generator" 1 0
else
  count "artwork matches its generator" 0 1
fi
# The exe runs on every processor Windows 98 runs on, from the 486DX: no
# instruction of a later processor that can run, in our code or in the
# runtime (built for the i486 by tools/build-runtime-i486.sh). The check
# prints the count by mnemonic, what its exception list allows and why, and
# the P6-only count (CMOV, FCMOV, FCOMI, FUCOMI) that can run, which must be 0.
cpu486=build/host/tools/cpu486/tl99_cpu486
if $cpu486 "$exe" --map build/win32/app/tweakloom99.map --allow tools/cpu486/allow.txt \
  >"$logs/cpu486.log" 2>&1; then
  count "processor check of the exe (486)" 1 0
else
  count "processor check of the exe (486)" 0 1
fi
sed 's/^/   /' "$logs/cpu486.log"
# The check must refuse an object compiled for the Pentium Pro (a CMOV) and
# pass the same source compiled for the 486.
probes=build/win32/tests/cpu486/CMakeFiles
if ! $cpu486 $probes/tl99_cpu486_probe_p6.dir/probe.cpp.obj >"$logs/cpu486-probe.log" 2>&1 &&
  grep -q 'REFUSED .*cmov' "$logs/cpu486-probe.log" &&
  $cpu486 $probes/tl99_cpu486_probe_486.dir/probe.cpp.obj >>"$logs/cpu486-probe.log" 2>&1; then
  count "processor check refuses a Pentium Pro object" 1 0
else
  count "processor check refuses a Pentium Pro object" 0 1
  cat "$logs/cpu486-probe.log"
fi

echo "== benchmarks (figures only)"
build/host/tests/bench/tl99_sim_bench
build/host/tests/bench/tl99_runtime_bench
as_wine_user wine build/win32/tests/bench/tl99_wine_bench.exe </dev/null >"$logs/wine-bench.log" 2>&1
cat "$logs/wine-bench.log"
# From the program's folder, where start-up finds its scanreg.ini template.
(cd build/win32/app && as_wine_user wine ../tests/bench/tl99_software_bench.exe </dev/null \
  >"$logs/software-bench.log" 2>&1)
tr -d '\r' <"$logs/software-bench.log"
as_wine_user wine build/win32/tests/bench/tl99_desktop_bench.exe </dev/null >"$logs/desktop-bench.log" 2>&1
cat "$logs/desktop-bench.log"
as_wine_user wine build/win32/tests/bench/tl99_temp_bench.exe </dev/null 2>&1 | tr -d '\r'
tools/bench-wine.sh </dev/null >"$logs/process-bench.log" 2>&1
cat "$logs/process-bench.log"
echo "exe size: $(stat -c %s "$exe") bytes (target for the finished product: under 400 KB)"
echo "installer size: $(stat -c %s "$release/Tweakloom99-setup.exe") bytes; release zip size: $(stat -c %s "$zip_file") bytes ($(basename "$zip_file"))"
setup_ms=$(sed -nE 's/.*ran build\/win32\/release\/Tweakloom99-setup\.exe \/S in ([0-9]+) ms.*/\1/p' "$logs/e2e.log" 2>/dev/null | paste -sd' ' -)
echo "silent install under Wine: ${setup_ms:-not run} ms (each end-to-end install)"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
