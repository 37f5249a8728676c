#!/usr/bin/env bash
# Makes the pictures of the help and of the README from what the build and
# the end-to-end run produced, and puts them where they are committed:
#   help/images/tabN.gif, help.gif, ...   the program's own icons and button faces
#                                          (resources/images, drawn by tools/artgen)
#   help/images/pageN.gif, main.gif, ...  the main window on each page, the About
#                                          window and the exit dialog, cut out of the
#                                          screenshots of tests/e2e/cases/frame.e2e
#   docs/main-window.png                  the main window on its first page, for
#                                          the README
# Run tests/e2e/run-e2e.sh tests/e2e/cases/frame.e2e first. GIF, because the
# help viewer of Windows 98 (Internet Explorer 4) shows GIF and JPEG reliably.
set -euo pipefail
cd "$(dirname "$0")/.."
images=resources/images
shots=build/e2e-artifacts/frame
out=help/images
mkdir -p "$out" docs

# The icons keep magenta as their see-through colour.
gif() { convert "$1" -transparent "#FF00FF" +dither -colors 256 "$2"; }

for i in 0 1 2 3 4 5 6 7 8 9; do gif "$images/tab$i.bmp" "$out/tab$i.gif"; done
for face in help about min exit apply refresh; do gif "$images/${face}_n.bmp" "$out/$face.gif"; done

# A window cut out of a full-screen shot: everything but the screen's own
# background colour, which Wine's desktop paints in one colour.
cut() { # SHOT OUT [SCALE%]
  convert "$1" -trim +repage ${3:+-resize "$3"} +dither -colors 256 "$2"
}
if [ -d "$shots" ]; then
  for i in 0 1 2 3 4 5 6 7 8 9; do cut "$shots/tab$i.png" "$out/page$i.gif"; done
  cp "$out/page0.gif" "$out/main.gif"
  cut "$shots/about.png" "$out/aboutwin.gif"
  cut "$shots/exit-dialog.png" "$out/exitdlg.gif"
  convert "$shots/tab0.png" -trim +repage docs/main-window.png
else
  echo "help-pictures: no screenshots in $shots; run tests/e2e/run-e2e.sh tests/e2e/cases/frame.e2e" >&2
  exit 1
fi
echo "help-pictures: $(ls "$out" | wc -l) pictures in $out, docs/main-window.png"
