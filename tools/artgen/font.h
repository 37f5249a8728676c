// Glyphs of the built-in bitmap font: each row a string, '#' for ink.
// Rows 0 to 6 stand above the baseline, rows 7 and 8 hold descenders.
#pragma once

namespace artgen {

constexpr int kGlyphRows = 9;

struct Glyph {
  int width;
  const char* rows[kGlyphRows];
};

// The glyph of a character; a hollow box for one the font lacks.
const Glyph& glyphFor(char ch);

} // namespace artgen
