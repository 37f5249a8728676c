#include "art.h"

#include "tl99_version.h"

#include <array>
#include <string>
#include <utility>

namespace artgen {

namespace {

constexpr int kIcon = 32;

// --- Tab icons -------------------------------------------------------------
//
// Each page has a 32 by 32 pictogram on the key colour. The pictograms keep
// the outermost pixel row free, so that the lit face has room for its halo.

Image blankIcon() { return Image(kIcon, kIcon, pal::key); }

// Monitor showing a desktop: a window, a folder and the taskbar.
Image desktopIcon() {
  Image img = blankIcon();
  Mask body = img.blankMask();
  body.rect(2, 2, 28, 22);
  img.shape(body, pal::silver, pal::black, pal::white, pal::gray);
  // Sunken screen.
  img.fill(4, 4, 24, 1, pal::gray);
  img.fill(4, 4, 1, 17, pal::gray);
  img.fill(5, 20, 23, 1, pal::white);
  img.fill(27, 5, 1, 16, pal::white);
  img.fill(5, 5, 22, 15, pal::teal);
  // Folder on the desktop.
  img.fill(6, 7, 2, 1, pal::olive);
  img.fill(6, 8, 5, 3, pal::yellow);
  img.fill(6, 11, 5, 1, pal::olive);
  // A window with its caption.
  img.fill(13, 7, 12, 9, pal::white);
  img.frame(13, 7, 12, 9, pal::black);
  img.fill(14, 8, 10, 2, pal::navy);
  img.fill(22, 8, 1, 1, pal::white);
  img.fill(15, 11, 6, 1, pal::gray);
  img.fill(15, 13, 4, 1, pal::gray);
  // Taskbar with its start button.
  img.fill(5, 17, 22, 3, pal::silver);
  img.fill(5, 17, 22, 1, pal::white);
  img.fill(6, 18, 4, 1, pal::green);
  // Stand.
  img.fill(12, 24, 8, 2, pal::gray);
  img.fill(12, 24, 8, 1, pal::black);
  Mask foot = img.blankMask();
  foot.rect(7, 26, 18, 4);
  img.shape(foot, pal::silver, pal::black, pal::white, pal::gray);
  return img;
}

// Padlock with a no-entry sign.
Image accessIcon() {
  Image img = blankIcon();
  Mask shackle = img.blankMask();
  shackle.ellipse(6, 1, 16, 20).subtract(img.blankMask().ellipse(10, 5, 8, 14));
  shackle.intersect(img.blankMask().rect(0, 0, kIcon, 14));
  img.shape(shackle, pal::silver, pal::black, pal::white, pal::gray);
  Mask body = img.blankMask();
  body.rect(3, 12, 22, 17);
  img.shape(body, pal::yellow, pal::black, pal::white, pal::olive);
  Mask hole = img.blankMask();
  hole.ellipse(11, 16, 6, 6).rect(13, 20, 2, 5);
  img.paint(hole, pal::black);
  Mask sign = img.blankMask();
  sign.ellipse(17, 17, 14, 14);
  img.shape(sign, pal::red, pal::black, pal::pink, pal::maroon);
  img.fill(20, 22, 8, 4, pal::white);
  return img;
}

// Filing cabinet of the registry under a shield with a tick.
Image registryIcon() {
  Image img = blankIcon();
  Mask top = img.blankMask();
  top.polygon({{3, 5}, {7, 1}, {24, 1}, {20, 5}});
  img.shape(top, pal::light, pal::black);
  Mask side = img.blankMask();
  side.polygon({{19, 5}, {24, 0}, {24, 26}, {19, 31}});
  img.shape(side, pal::gray, pal::black);
  Mask front = img.blankMask();
  front.rect(2, 4, 18, 27);
  img.shape(front, pal::silver, pal::black, pal::white, pal::gray);
  for (int d = 0; d < 3; ++d) {
    const int y = 7 + d * 8;
    img.fill(4, y, 14, 1, pal::gray);
    img.fill(4, y, 1, 6, pal::gray);
    img.fill(5, y + 5, 13, 1, pal::white);
    img.fill(17, y + 1, 1, 5, pal::white);
    img.fill(8, y + 2, 6, 1, pal::white);
    img.fill(9, y + 3, 4, 1, pal::navy);
  }
  Mask shield = img.blankMask();
  shield.polygon({{16, 14}, {31, 14}, {31, 22}, {28, 27}, {24, 31}, {23, 31}, {19, 27}, {16, 22}});
  img.shape(shield, pal::green, pal::black, pal::lime, pal::green);
  Mask tick = img.blankMask();
  tick.stroke({19, 21}, {22, 24}, 2).stroke({22, 24}, {27, 18}, 2);
  img.paint(tick, pal::white);
  return img;
}

// Computer case with a name tag.
Image oemIcon() {
  Image img = blankIcon();
  Mask side = img.blankMask();
  side.polygon({{18, 4}, {22, 1}, {22, 27}, {18, 30}});
  img.shape(side, pal::gray, pal::black);
  Mask top = img.blankMask();
  top.polygon({{4, 4}, {8, 1}, {22, 1}, {18, 4}});
  img.shape(top, pal::white, pal::black);
  Mask body = img.blankMask();
  body.rect(3, 3, 16, 28);
  img.shape(body, pal::silver, pal::black, pal::white, pal::gray);
  for (int bay = 0; bay < 2; ++bay) {
    const int y = 6 + bay * 4;
    img.fill(5, y, 12, 3, pal::light);
    img.frame(5, y, 12, 3, pal::gray);
    img.fill(6, y + 2, 10, 1, pal::white);
  }
  img.fill(7, 16, 8, 1, pal::black);
  img.fill(13, 17, 2, 1, pal::gray);
  img.fill(6, 26, 2, 2, pal::lime);
  Mask button = img.blankMask();
  button.ellipse(11, 24, 5, 5);
  img.shape(button, pal::silver, pal::black, pal::white, pal::gray);
  // The tag hangs from a string.
  img.line({20, 21}, {15, 12}, pal::black);
  Mask tag = img.blankMask();
  tag.polygon({{17, 21}, {21, 17}, {31, 17}, {31, 30}, {21, 30}, {17, 26}});
  img.shape(tag, pal::yellow, pal::black, pal::white, pal::olive);
  img.fill(20, 23, 2, 2, pal::black);
  img.fill(25, 19, 2, 2, pal::navy);
  img.fill(25, 22, 2, 6, pal::navy);
  img.fill(24, 22, 1, 1, pal::navy);
  img.fill(24, 27, 4, 1, pal::navy);
  return img;
}

// Wrench across a screwdriver.
Image troubleIcon() {
  Image img = blankIcon();
  Mask shaft = img.blankMask();
  shaft.stroke({12, 12}, {25, 25}, 2);
  img.shape(shaft, pal::silver, pal::black);
  Mask tip = img.blankMask();
  tip.stroke({24, 24}, {28, 28}, 3);
  img.shape(tip, pal::gray, pal::black);
  Mask grip = img.blankMask();
  grip.stroke({4, 4}, {11, 11}, 7);
  img.shape(grip, pal::red, pal::black, pal::pink, pal::maroon);
  img.line({6, 9}, {9, 12}, pal::maroon);
  img.line({9, 6}, {12, 9}, pal::maroon);

  Mask wrench = img.blankMask();
  wrench.ellipse(17, 2, 13, 13);
  wrench.stroke({22, 9}, {6, 25}, 5);
  wrench.ellipse(2, 21, 9, 9);
  wrench.polygon({{20, 6}, {25, 11}, {33, 3}, {28, -2}}, false);
  wrench.ellipse(5, 24, 3, 3, false);
  img.shape(wrench, pal::silver, pal::black, pal::white, pal::gray);
  return img;
}

// Power button.
Image bootIcon() {
  Image img = blankIcon();
  Mask button = img.blankMask();
  button.ellipse(1, 1, 30, 30);
  img.shape(button, pal::silver, pal::black, pal::white, pal::gray);
  Mask face = img.blankMask();
  face.ellipse(5, 5, 22, 22);
  img.shape(face, pal::dark, pal::gray);
  Mask symbol = img.blankMask();
  symbol.ellipse(8, 8, 16, 16).subtract(img.blankMask().ellipse(12, 12, 8, 8));
  symbol.rect(12, 6, 8, 9, false);
  symbol.rect(14, 5, 4, 12);
  img.shape(symbol, pal::green, pal::black);
  return img;
}

// Globe with a cable and plug.
Image internetIcon() {
  Image img = blankIcon();
  Mask cable = img.blankMask();
  cable.stroke({12, 22}, {12, 27}, 3).stroke({12, 27}, {21, 27}, 3);
  img.shape(cable, pal::gray, pal::black);
  Mask plug = img.blankMask();
  plug.rect(20, 23, 8, 8);
  img.shape(plug, pal::silver, pal::black, pal::white, pal::gray);
  img.fill(28, 24, 3, 2, pal::black);
  img.fill(28, 28, 3, 2, pal::black);
  img.fill(29, 24, 2, 1, pal::yellow);
  img.fill(29, 28, 2, 1, pal::yellow);

  Mask globe = img.blankMask();
  globe.ellipse(1, 1, 23, 23);
  img.shape(globe, pal::blue, pal::black, pal::sky, pal::navy);
  Mask land = img.blankMask();
  land.ellipse(4, 4, 8, 6).ellipse(7, 8, 5, 8).polygon({{9, 15}, {12, 15}, {10, 21}});
  land.ellipse(14, 3, 6, 4).ellipse(13, 9, 8, 6).ellipse(17, 13, 4, 6);
  Mask inner = globe;
  inner.subtract(globe.edge());
  land.intersect(inner);
  img.shape(land, pal::green, pal::green, pal::lime, pal::green);
  img.paint(land.edge(), pal::green);
  return img;
}

// A bare footprint, toes up: a right foot, or mirrored a left one.
Mask footprint(const Image& img, int x, int y, bool left) {
  static const char* const kRows[] = {
      ".##.#...", ".##..#.#", "........", "..#####.", ".#######", ".#######",
      ".#######", "..######", "..#####.", "...####.", "...####.", "...####.",
      "..#####.", "..#####.", "..#####.", "...###..",
  };
  Mask m = img.blankMask();
  int dy = 0;
  for (const char* row : kRows) {
    for (int dx = 0; dx < 8; ++dx)
      if (row[dx] == '#') m.set(left ? x + 7 - dx : x + dx, y + dy);
    ++dy;
  }
  return m;
}

// Footprints with an eraser.
Image trackingIcon() {
  Image img = blankIcon();
  img.paint(footprint(img, 14, 1, false), pal::dark);
  img.paint(footprint(img, 3, 9, true), pal::dark);
  Mask rubber = img.blankMask();
  rubber.polygon({{14, 24}, {20, 18}, {26, 24}, {20, 30}});
  img.shape(rubber, pal::pink, pal::black, pal::white, pal::rose);
  Mask sleeve = img.blankMask();
  sleeve.polygon({{19, 19}, {25, 13}, {31, 19}, {25, 25}});
  img.shape(sleeve, pal::blue, pal::black, pal::sky, pal::navy);
  return img;
}

// A cardboard box in oblique view: front w by h, depth d.
void box(Image& img, int x, int y, int w, int h, int d) {
  Mask top = img.blankMask();
  top.polygon({{x, y + d}, {x + d, y}, {x + w + d, y}, {x + w, y + d}});
  Mask side = img.blankMask();
  side.polygon({{x + w - 1, y + d}, {x + w + d, y}, {x + w + d, y + h}, {x + w - 1, y + d + h}});
  Mask front = img.blankMask();
  front.rect(x, y + d, w, h);
  img.shape(top, pal::tan, pal::umber);
  img.shape(side, pal::brown, pal::umber);
  img.shape(front, pal::tan, pal::umber, pal::cream, pal::brown);
  // Tape over the lid and down the front.
  const int mid = x + w / 2;
  Mask tape = img.blankMask();
  tape.polygon({{mid - 1, y + d}, {mid - 1 + d, y}, {mid + 1 + d, y}, {mid + 1, y + d}});
  tape.rect(mid - 1, y + d, 2, h / 3);
  img.paint(tape, pal::brown);
  img.paint(top.edge(), pal::umber);
  img.paint(front.edge(), pal::umber);
}

// Stacked package boxes.
Image componentsIcon() {
  Image img = blankIcon();
  box(img, 13, 1, 12, 9, 5);
  box(img, 2, 12, 17, 13, 6);
  box(img, 22, 20, 8, 10, 0);
  return img;
}

// Shield with a key.
Image securityIcon() {
  Image img = blankIcon();
  Mask shield = img.blankMask();
  shield.polygon({{3, 2}, {29, 2}, {29, 15}, {26, 22}, {16, 31}, {6, 22}, {3, 15}});
  img.shape(shield, pal::blue, pal::black, pal::sky, pal::navy);
  Mask quarter = shield;
  quarter.subtract(shield.edge());
  Mask q1 = img.blankMask();
  q1.rect(16, 0, 16, 16).rect(0, 16, 16, 16);
  quarter.intersect(q1);
  quarter.subtract(quarter.edge());
  img.paint(quarter, pal::navy);
  Mask key = img.blankMask();
  key.ellipse(5, 5, 12, 12);
  key.stroke({14, 14}, {27, 27}, 3);
  key.stroke({21, 21}, {24, 18}, 3);
  key.stroke({25, 25}, {28, 22}, 3);
  key.ellipse(8, 8, 4, 4, false);
  img.shape(key, pal::yellow, pal::black, pal::white, pal::olive);
  return img;
}

Image tabIcon(int page) {
  switch (page) {
  case 0: return desktopIcon();
  case 1: return accessIcon();
  case 2: return registryIcon();
  case 3: return oemIcon();
  case 4: return troubleIcon();
  case 5: return bootIcon();
  case 6: return internetIcon();
  case 7: return trackingIcon();
  case 8: return componentsIcon();
  default: return securityIcon();
  }
}

// The lit face: every colour one step brighter, and a yellow halo.
Color brighter(Color c) {
  static const std::pair<Color, Color> kSteps[] = {
      {pal::navy, pal::blue},         {pal::blue, rgb(96, 160, 255)},
      {pal::teal, pal::aqua},         {pal::green, pal::lime},
      {pal::olive, pal::yellow},      {pal::maroon, pal::red},
      {pal::red, rgb(255, 112, 112)}, {pal::gray, pal::silver},
      {pal::silver, pal::light},      {pal::light, pal::white},
      {pal::dark, pal::gray},         {pal::sky, rgb(216, 236, 255)},
      {pal::tan, rgb(248, 212, 152)}, {pal::brown, pal::tan},
      {pal::umber, pal::brown},       {pal::pink, rgb(255, 200, 208)},
      {pal::rose, pal::pink},         {pal::medium, pal::light},
  };
  for (const auto& [from, to] : kSteps)
    if (c == from) return to;
  return c; // black, white, the key
}

Image litIcon(const Image& normal) {
  Image img = normal;
  Mask drawn = img.blankMask();
  for (int y = 0; y < kIcon; ++y)
    for (int x = 0; x < kIcon; ++x)
      if (normal.at(x, y) != pal::key) {
        drawn.set(x, y);
        img.set(x, y, brighter(normal.at(x, y)));
      }
  Mask halo = drawn.grown();
  halo.subtract(drawn);
  img.paint(halo, pal::yellow);
  return img;
}

// --- Buttons ---------------------------------------------------------------

// Sets the '#' pixels of a row picture, its top left at (x, y).
template <std::size_t N> void stamp(Mask& m, int x, int y, const char* const (&rows)[N]) {
  for (std::size_t j = 0; j < N; ++j)
    for (int i = 0; rows[j][i] != '\0'; ++i)
      if (rows[j][i] == '#') m.set(x + i, y + static_cast<int>(j));
}

// Faces of the picture buttons: silver, or pale blue while the mouse is on
// them.
Image buttonFace(int w, int h, bool lit) {
  Image img(w, h, lit ? pal::sky : pal::silver);
  img.bevel(0, 0, w, h);
  return img;
}

enum class Corner { Help, About, Minimise, Exit };

Image cornerButton(Corner which, bool lit) {
  const int w = 28, h = which == Corner::Exit ? 30 : 28;
  Image img = buttonFace(w, h, lit);
  const Color ink = lit ? pal::navy : pal::black;
  const int cy = h / 2; // glyphs are centred on (14, cy)
  static const char* const kQuestion[] = {
      "..######..", ".########.", "###....###", "###....###", ".......###", "......###.",
      ".....###..", "....###...", "....###...", "..........", "....###...", "....###...",
  };
  static const char* const kInfo[] = {
      "...###..", "...###..", "........", ".#####..", ".#####..", "...###..",
      "...###..", "...###..", "...###..", "...###..", ".#######", ".#######",
  };
  Mask glyph = img.blankMask();
  switch (which) {
  case Corner::Help: stamp(glyph, 9, cy - 6, kQuestion); break;
  case Corner::About: stamp(glyph, 10, cy - 6, kInfo); break;
  case Corner::Minimise: glyph.rect(8, cy + 4, 12, 3); break;
  case Corner::Exit:
    glyph.stroke({9, cy - 5}, {18, cy + 4}, 3).stroke({18, cy - 5}, {9, cy + 4}, 3);
    break;
  }
  // Drawn one pixel down and right in white first, as an embossed shadow.
  Image shadowed = img;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      if (glyph.at(x, y)) shadowed.set(x + 1, y + 1, pal::white);
  img = shadowed;
  Color glyphColor = ink;
  if (which == Corner::Exit) glyphColor = lit ? pal::red : pal::maroon;
  img.paint(glyph, glyphColor);
  return img;
}

enum class PageButton { Refresh, Apply };

Image pageButton(PageButton which, bool lit) {
  const int w = 71, h = 30;
  Image img = buttonFace(w, h, lit);
  const TextStyle style{lit ? pal::navy : pal::black, 1, true};
  const std::string label = which == PageButton::Refresh ? "Refresh" : "Apply";
  const int iconW = 12, spacing = 5;
  const int total = iconW + spacing + textWidth(label, style);
  const int x = (w - total) / 2, top = (h - 12) / 2;
  Mask icon = img.blankMask();
  if (which == PageButton::Refresh) {
    // A ring open at the upper right, its end an arrow turning clockwise.
    icon.ellipse(x, top, 12, 12).subtract(img.blankMask().ellipse(x + 2, top + 2, 8, 8));
    icon.rect(x + 6, top, 6, 6, false);
    icon.polygon({{x + 6, top - 3}, {x + 6, top + 5}, {x + 10, top + 1}});
  } else {
    icon.stroke({x + 1, top + 6}, {x + 4, top + 9}, 3)
        .stroke({x + 4, top + 9}, {x + 10, top + 2}, 3);
  }
  img.paint(icon, pal::green);
  drawText(img, x + iconW + spacing, (h - kCapHeight) / 2, label, style);
  return img;
}

// --- Wordmarks -------------------------------------------------------------

// Threads woven on a loom: upright teal threads and yellow cross threads
// pass over and under in turn; where a thread goes under, a pixel of the
// ground shows on each side of the one on top. Only VGA colours are used.
struct Weave {
  int width;                 // of a thread
  int firstX, stepX, countX; // the upright threads
  int firstY, stepY, countY; // the cross threads
};

void weave(Image& img, int x0, int y0, int w, int h, const Weave& p) {
  // Which thread a coordinate lies on, and where across it; -1 if none.
  auto threadAt = [&](int v, int first, int step, int count, int& offset) {
    for (int k = 0; k < count; ++k) {
      offset = v - (first + k * step);
      if (offset >= 0 && offset < p.width) return k;
    }
    return -1;
  };
  auto uprightAt = [&](int x, int& o) { return threadAt(x, p.firstX, p.stepX, p.countX, o); };
  auto acrossAt = [&](int y, int& o) { return threadAt(y, p.firstY, p.stepY, p.countY, o); };
  // Edge pixels: lit on the upper left, dark on the lower right of wide
  // threads.
  auto tone = [&](int offset, Color lit, Color fill, Color dark) {
    if (offset == 0) return lit;
    if (offset == p.width - 1 && p.width > 3) return dark;
    return fill;
  };
  // Upright i lies on top at crossing (i, j) when i + j is even.
  auto uprightOver = [](int i, int j) { return (i + j) % 2 == 0; };
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      int ox = 0, oy = 0, o = 0;
      const int i = uprightAt(x, ox), j = acrossAt(y, oy);
      const Color upright = tone(ox, pal::aqua, pal::teal, pal::black);
      const Color across = tone(oy, pal::white, pal::yellow, pal::olive);
      if (i >= 0 && j >= 0) {
        img.set(x0 + x, y0 + y, uprightOver(i, j) ? upright : across);
      } else if (j >= 0) { // on a cross thread, between uprights
        const int next = uprightAt(x + 1, o), prev = uprightAt(x - 1, o);
        if (!(next >= 0 && uprightOver(next, j)) && !(prev >= 0 && uprightOver(prev, j)))
          img.set(x0 + x, y0 + y, across);
      } else if (i >= 0) { // on an upright, between cross threads
        const int next = acrossAt(y + 1, o), prev = acrossAt(y - 1, o);
        if (!(next >= 0 && !uprightOver(i, next)) && !(prev >= 0 && !uprightOver(i, prev)))
          img.set(x0 + x, y0 + y, upright);
      }
    }
}

// The program's emblem, also its icon: a small piece of weave on a navy
// tile.
Image emblem(int size) {
  Image img(size, size, pal::key);
  Mask tile = img.blankMask();
  tile.rect(0, 0, size, size);
  tile.set(0, 0, false);
  tile.set(size - 1, 0, false);
  tile.set(0, size - 1, false);
  tile.set(size - 1, size - 1, false);
  img.shape(tile, pal::navy, pal::black);
  const Weave p = size < 24 ? Weave{2, 1, 5, 3, 1, 5, 3} : Weave{4, 4, 9, 3, 4, 9, 3};
  weave(img, 1, 1, size - 2, size - 2, p);
  return img;
}

// Text with a dark shadow one step down and right.
void shadowText(Image& img, int x, int y, const std::string& text, TextStyle style, Color shadow,
                int offset) {
  TextStyle back = style;
  back.color = shadow;
  drawText(img, x + offset, y + offset, text, back);
  drawText(img, x, y, text, style);
}

void shadowTextCentred(Image& img, int cx, int y, const std::string& text, TextStyle style,
                       Color shadow, int offset) {
  shadowText(img, cx - textWidth(text, style) / 2, y, text, style, shadow, offset);
}

// Title band of the main form, 485 by 36. The right end stays plain: the
// corner buttons stand on it.
Image titleBand() {
  const int w = 485, h = 36;
  Image img(w, h, pal::navy);
  img.gradientH(0, 0, w, h, pal::navy, rgb(16, 132, 208));
  img.fill(0, 0, w, 1, rgb(64, 96, 176));
  img.fill(0, h - 1, w, 1, pal::black);
  img.blit(emblem(32), 4, 2, pal::key);
  const TextStyle mark{pal::white, 3, true};
  shadowText(img, 46, 7, "Tweakloom 99", mark, pal::black, 2);
  const int x = 46 + textWidth("Tweakloom 99", mark) + 12;
  const TextStyle small{pal::sky, 1, false};
  drawText(img, x, 9, "System tweaks", small);
  drawText(img, x, 20, "for Windows 98", small);
  return img;
}

// --- About picture -----------------------------------------------------------
//
// The About window is 373 by 464 pixels. Its outline cuts the picture to a
// rounded shape: a few pixels go at the sides, the upper 28 window pixels go
// with the caption, and below about 320 pixels the lower edge bends into a
// wide arc. The text therefore keeps to the middle and stays above 400.

Image aboutPicture() {
  const int w = 373, h = 464;
  Image img(w, h, pal::navy);
  img.gradientV(0, 0, w, h, pal::navy, rgb(0, 88, 152));
  const int cx = w / 2;

  // A woven band across the picture, as on the emblem.
  const int bandTop = 206, bandH = 26;
  img.fill(0, bandTop, w, bandH, pal::navy);
  img.fill(0, bandTop, w, 1, pal::black);
  img.fill(0, bandTop + bandH - 1, w, 1, pal::black);
  weave(img, 0, bandTop + 1, w, bandH - 2, Weave{4, 4, 9, 41, 4, 9, 2});

  img.blit(emblem(32).scaled(3), cx - 48, 20, pal::key);
  shadowTextCentred(img, cx, 132, "Tweakloom 99", {pal::white, 4, true}, pal::black, 2);
  shadowTextCentred(img, cx, 174, "Version " TL99_VERSION_TEXT, {pal::sky, 2, true}, pal::black, 1);
  shadowTextCentred(img, cx, 254, "System tweaks for Windows 98", {pal::white, 2, false},
                    pal::black, 1);
  img.fill(cx - 130, 284, 260, 1, rgb(0, 40, 96));
  img.fill(cx - 130, 285, 260, 1, rgb(64, 136, 200));
  shadowTextCentred(img, cx, 306, "Click or press a key to continue", {pal::sky, 1, false},
                    pal::black, 1);
  img.blit(emblem(32), cx - 16, 356, pal::key);
  return img;
}

// --- OEM logo ------------------------------------------------------------------
//
// 160 by 100: the picture the OEM Info page copies to oemlogo.bmp, which the
// System control panel shows beside the maker's lines (it has room for about
// 180 by 114), and the sample the page itself shows.

Image oemLogo() {
  const int w = 160, h = 100;
  Image img(w, h, pal::white);
  img.gradientV(0, 0, w, 62, pal::navy, rgb(0, 88, 152));
  img.fill(0, 62, w, 1, pal::black);
  img.fill(0, 63, w, 12, pal::navy);
  weave(img, 0, 63, w, 12, Weave{4, 4, 9, 18, 4, 9, 1});
  img.fill(0, 75, w, 1, pal::black);
  img.blit(emblem(32), 8, 15, pal::key);
  shadowText(img, 48, 16, "Tweakloom", {pal::white, 2, true}, pal::black, 1);
  drawText(img, 48, 38, "99", {pal::sky, 2, true});
  const TextStyle small{pal::navy, 1, false};
  drawTextCentred(img, w / 2, 83, "System tweaks for Windows 98", small);
  img.frame(0, 0, w, h, pal::gray);
  return img;
}

// --- Exit picture ------------------------------------------------------------
//
// 117 by 112 on the dialog colour; the dialog's edge covers the lower right,
// so the drawing keeps to the upper left 110 by 100.

Image exitPicture() {
  const int w = 117, h = 112;
  Image img(w, h, pal::silver);
  // Monitor.
  Mask body = img.blankMask();
  body.rect(12, 6, 88, 68);
  img.shape(body, pal::silver, pal::black, pal::white, pal::gray);
  img.fill(19, 13, 74, 1, pal::gray);
  img.fill(19, 13, 1, 54, pal::gray);
  img.fill(20, 66, 73, 1, pal::white);
  img.fill(92, 14, 1, 52, pal::white);
  img.gradientV(20, 14, 72, 52, pal::navy, rgb(16, 132, 208));
  // Power symbol on the screen.
  Mask symbol = img.blankMask();
  symbol.ellipse(40, 22, 32, 32).subtract(img.blankMask().ellipse(47, 29, 18, 18));
  symbol.rect(48, 16, 16, 18, false);
  symbol.rect(53, 18, 6, 20);
  img.shape(symbol, pal::white, pal::black);
  img.fill(88, 69, 4, 2, pal::lime);
  // Stand.
  img.fill(44, 74, 24, 6, pal::gray);
  img.fill(44, 74, 24, 1, pal::black);
  Mask foot = img.blankMask();
  foot.rect(30, 80, 52, 8);
  img.shape(foot, pal::silver, pal::black, pal::white, pal::gray);
  return img;
}

// --- The slider's knob faces and track ---------------------------------------
//
// A knob is 195 x 315 twips (13 x 21 pixels): a raised thumb whose lower end
// points down at the track, with three grip lines. The disabled face has a
// grey outline and no grip. The track is 3200 x 105 twips (213 x 7 pixels): a
// sunken groove.

Image knobFace(bool enabled) {
  const int w = 13, h = 21;
  Image img(w, h, pal::silver);
  const std::vector<Point> outline = {{0, 0},         {w, 0},     {w, h - 6},
                                      {w / 2 + 1, h}, {w / 2, h}, {0, h - 6}};
  Mask thumb = img.blankMask();
  thumb.polygon(outline);
  img.fill(0, 0, w, h, pal::silver);
  if (enabled)
    img.shape(thumb, pal::silver, pal::black, pal::white, pal::gray);
  else
    img.shape(thumb, pal::light, pal::gray, pal::white, pal::medium);
  if (enabled) {
    for (int y : {5, 8, 11}) {
      img.fill(3, y, w - 6, 1, pal::gray);
      img.fill(3, y + 1, w - 6, 1, pal::white);
    }
    img.fill(w / 2 - 1, 14, 3, 1, pal::navy);
  }
  return img;
}

Image trackPicture() {
  const int w = 213, h = 7;
  Image img(w, h, pal::silver);
  img.fill(0, 1, w, 5, pal::white);
  img.fill(0, 1, w - 1, 1, pal::gray);
  img.fill(0, 1, 1, 5, pal::gray);
  img.fill(1, 2, w - 2, 1, pal::black);
  img.fill(1, 2, 1, 3, pal::black);
  img.fill(2, 3, w - 3, 2, pal::light);
  img.fill(w - 1, 1, 1, 5, pal::white);
  img.fill(0, 5, w, 1, pal::white);
  // A tick under every step of 1024 units (320 twips, 21.3 pixels).
  for (int step = 0; step <= 10; ++step)
    img.fill(step * (w - 1) / 10, 6, 1, 1, pal::gray);
  return img;
}

} // namespace

std::vector<OutputFile> allFiles() {
  std::vector<OutputFile> files;
  auto add = [&](const std::string& name, const Image& img) {
    files.push_back({name, encodeBmp(img)});
  };
  for (int page = 0; page < 10; ++page) {
    const Image normal = tabIcon(page);
    add("tab" + std::to_string(page) + ".bmp", normal);
    add("tab" + std::to_string(page) + "_hi.bmp", litIcon(normal));
  }
  const std::array<std::pair<Corner, const char*>, 4> corners = {{{Corner::Help, "help"},
                                                                  {Corner::About, "about"},
                                                                  {Corner::Minimise, "min"},
                                                                  {Corner::Exit, "exit"}}};
  for (const auto& [which, name] : corners) {
    add(std::string(name) + "_n.bmp", cornerButton(which, false));
    add(std::string(name) + "_h.bmp", cornerButton(which, true));
  }
  add("refresh_n.bmp", pageButton(PageButton::Refresh, false));
  add("refresh_h.bmp", pageButton(PageButton::Refresh, true));
  add("apply_n.bmp", pageButton(PageButton::Apply, false));
  add("apply_h.bmp", pageButton(PageButton::Apply, true));
  add("title.bmp", titleBand());
  add("about.bmp", aboutPicture());
  add("exit.bmp", exitPicture());
  add("oemlogo.bmp", oemLogo());
  add("knob_on.bmp", knobFace(true));
  add("knob_off.bmp", knobFace(false));
  add("track.bmp", trackPicture());
  files.push_back({"tweakloom99.ico", encodeIco({emblem(32), emblem(16)}, pal::key)});
  return files;
}

} // namespace artgen
