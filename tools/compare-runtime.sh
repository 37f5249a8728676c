#!/usr/bin/env bash
# Compares a runtime built by tools/build-runtime-i486.sh with Debian's
# prebuilt one, object by object: the disassembled code of each member of
# each library (and of each start-up object) in both. Built with
# `tools/build-runtime-i486.sh --arch pentiumpro` (Debian's own default
# processor), every object should come out with the code of Debian's, which
# shows the build is configured as Debian's is.
#
#   tools/compare-runtime.sh [ARCH]      (default pentiumpro)
#
# Prints, per library, how many objects have the same code and which differ.
# (Slow on the import libraries: a few minutes.)
set -uo pipefail
cd "$(dirname "$0")/.."
arch=${1:-pentiumpro}
ours=build/runtime-$arch/lib
crt_dir=/usr/i686-w64-mingw32/lib
gcc_dir=/usr/lib/gcc/i686-w64-mingw32/$(i686-w64-mingw32-gcc-win32 -dumpversion)
if [ ! -d "$ours" ]; then
  echo "compare-runtime: no $ours (tools/build-runtime-i486.sh --arch $arch)" >&2
  exit 1
fi
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# The disassembly of an object, less its file name and local symbols (Debian
# strips its libraries with --strip-unneeded, which drops the local labels
# objdump would print).
code() {
  i686-w64-mingw32-objcopy --strip-unneeded "$1" "$tmp/stripped.o" &&
    i686-w64-mingw32-objdump -d --no-show-raw-insn "$tmp/stripped.o" | tail -n +3
}

total_same=0
total_diff=0
for f in "$ours"/*; do
  name=$(basename "$f")
  theirs=
  case $name in
    crt2.o | lib*.a) theirs=$crt_dir/$name ;;
  esac
  [ -f "$gcc_dir/$name" ] && theirs=$gcc_dir/$name
  [ -f "$theirs" ] || continue
  same=0
  differ=()
  if [[ $name == *.o ]]; then
    if [ "$(code "$f")" = "$(code "$theirs")" ]; then same=1; else differ=("$name"); fi
  else
    rm -rf "$tmp/a" "$tmp/b"
    mkdir -p "$tmp/a" "$tmp/b"
    (cd "$tmp/a" && ar x "$OLDPWD/$f")
    (cd "$tmp/b" && ar x "$theirs")
    for m in "$tmp"/b/*; do
      member=$(basename "$m")
      [ -f "$tmp/a/$member" ] || continue
      if [ "$(code "$tmp/a/$member")" = "$(code "$m")" ]; then
        same=$((same + 1))
      else
        differ+=("$member")
      fi
    done
  fi
  total_same=$((total_same + same))
  total_diff=$((total_diff + ${#differ[@]}))
  echo "$name: $same with the same code, ${#differ[@]} different${differ[*]:+: ${differ[*]}}"
done
echo "compare-runtime: $total_same objects with the same code as Debian's, $total_diff different"
