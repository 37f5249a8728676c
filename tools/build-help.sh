#!/usr/bin/env bash
# Compiles the HTML Help file from its sources with chmcmd (Debian's fp-utils):
#   tools/build-help.sh SOURCE_DIR OUTPUT.chm
# chmcmd writes beside its project, so the sources are compiled in a copy. A
# warning (a topic or picture that a page names but the sources lack) fails
# the build, so that the file never ships with a broken link.
set -euo pipefail
src=$1
out=$2
work=$(mktemp -d "${TMPDIR:-/tmp}/tl99-help.XXXXXX")
trap 'rm -rf "$work"' EXIT
cp -r "$src"/. "$work"/
log=$work/chmcmd.log
(cd "$work" && chmcmd tweakloom99.hhp) >"$log" 2>&1 || { cat "$log"; exit 1; }
if grep -qiE '^(warning|error)' "$log"; then
  grep -iE '^(warning|error)' "$log"
  echo "build-help: chmcmd reported problems" >&2
  exit 1
fi
project=$(sed -n 's/^Compiled file=//p' "$src/tweakloom99.hhp" | tr -d '\r')
# The compiled file must hold every topic, style sheet and picture of the
# sources, byte for byte: read back with chmls, the archive reader of the
# same package.
mkdir "$work/readback"
chmls extractall "$work/$project" "$work/readback" >/dev/null 2>&1
(cd "$src" && find . -type f \( -name '*.htm' -o -name '*.css' -o -name '*.gif' \)) | while read -r file; do
  cmp -s "$src/$file" "$work/readback/$file" || {
    echo "build-help: $file is not in the compiled help as it is in the sources" >&2
    exit 1
  }
done
mkdir -p "$(dirname "$out")"
mv "$work/$project" "$out"
