#include "canvas.h"

#include "font.h"

#include <algorithm>
#include <cstdlib>

namespace artgen {

Color mix(Color a, Color b, int t, int n) {
  if (n <= 0) return a;
  const auto one = [&](int ca, int cb) {
    return ca + ((cb - ca) * t + (cb >= ca ? n / 2 : -n / 2)) / n;
  };
  return rgb(one(red(a), red(b)), one(green(a), green(b)), one(blue(a), blue(b)));
}

// --- Mask ------------------------------------------------------------------

Mask::Mask(int width, int height)
    : w_(width), h_(height), bits_(static_cast<std::size_t>(width * height), 0) {}

bool Mask::at(int x, int y) const {
  if (x < 0 || y < 0 || x >= w_ || y >= h_) return false;
  return bits_[static_cast<std::size_t>(y * w_ + x)] != 0;
}

void Mask::set(int x, int y, bool on) {
  if (x < 0 || y < 0 || x >= w_ || y >= h_) return;
  bits_[static_cast<std::size_t>(y * w_ + x)] = on ? 1 : 0;
}

Mask& Mask::rect(int x, int y, int w, int h, bool on) {
  for (int j = y; j < y + h; ++j)
    for (int i = x; i < x + w; ++i)
      set(i, j, on);
  return *this;
}

Mask& Mask::ellipse(int x, int y, int w, int h, bool on) {
  // Doubled coordinates keep the centre of an even box on a whole number.
  const long long cx = 2LL * x + w, cy = 2LL * y + h;
  const long long ww = static_cast<long long>(w) * w, hh = static_cast<long long>(h) * h;
  for (int j = y; j < y + h; ++j)
    for (int i = x; i < x + w; ++i) {
      const long long dx = 2LL * i + 1 - cx, dy = 2LL * j + 1 - cy;
      if (dx * dx * hh + dy * dy * ww <= ww * hh + (ww + hh) / 2) set(i, j, on);
    }
  return *this;
}

Mask& Mask::polygon(const std::vector<Point>& points, bool on) {
  const std::size_t n = points.size();
  if (n < 3) return *this;
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i) {
      const long long px = 2LL * i + 1, py = 2LL * j + 1;
      bool inside = false;
      for (std::size_t k = 0, l = n - 1; k < n; l = k++) {
        const long long xk = 2LL * points[k].x, yk = 2LL * points[k].y;
        const long long xl = 2LL * points[l].x, yl = 2LL * points[l].y;
        if ((yk > py) == (yl > py)) continue;
        // Is the crossing of the edge with this row right of the centre?
        const long long lhs = (px - xk) * (yl - yk), rhs = (py - yk) * (xl - xk);
        if (yl > yk ? lhs < rhs : lhs > rhs) inside = !inside;
      }
      if (inside) set(i, j, on);
    }
  return *this;
}

Mask& Mask::stroke(Point a, Point b, int width, bool on) {
  // Doubled coordinates; an even width runs between two pixel rows.
  const long long off = width % 2 == 0 ? 2 : 1;
  const long long ax = 2LL * a.x + off, ay = 2LL * a.y + off;
  const long long bx = 2LL * b.x + off, by = 2LL * b.y + off;
  const long long dx = bx - ax, dy = by - ay, len2 = dx * dx + dy * dy;
  const long long limit = static_cast<long long>(width) * width;
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i) {
      const long long px = 2LL * i + 1 - ax, py = 2LL * j + 1 - ay;
      const long long dot = px * dx + py * dy;
      bool in;
      if (len2 == 0 || dot <= 0) {
        in = px * px + py * py <= limit;
      } else if (dot >= len2) {
        const long long qx = 2LL * i + 1 - bx, qy = 2LL * j + 1 - by;
        in = qx * qx + qy * qy <= limit;
      } else {
        in = (px * px + py * py) * len2 - dot * dot <= limit * len2;
      }
      if (in) set(i, j, on);
    }
  return *this;
}

Mask& Mask::unite(const Mask& other) {
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i)
      if (other.at(i, j)) set(i, j);
  return *this;
}

Mask& Mask::subtract(const Mask& other) {
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i)
      if (other.at(i, j)) set(i, j, false);
  return *this;
}

Mask& Mask::intersect(const Mask& other) {
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i)
      if (!other.at(i, j)) set(i, j, false);
  return *this;
}

Mask Mask::edge() const {
  Mask out(w_, h_);
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i)
      if (at(i, j) && (!at(i - 1, j) || !at(i + 1, j) || !at(i, j - 1) || !at(i, j + 1)))
        out.set(i, j);
  return out;
}

Mask Mask::grown() const {
  Mask out(w_, h_);
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i) {
      bool near = false;
      for (int dj = -1; dj <= 1 && !near; ++dj)
        for (int di = -1; di <= 1 && !near; ++di)
          near = at(i + di, j + dj);
      if (near) out.set(i, j);
    }
  return out;
}

// --- Image -----------------------------------------------------------------

Image::Image(int width, int height, Color fill)
    : w_(width), h_(height), px_(static_cast<std::size_t>(width * height), fill) {}

void Image::set(int x, int y, Color c) {
  if (x < 0 || y < 0 || x >= w_ || y >= h_) return;
  px_[static_cast<std::size_t>(y * w_ + x)] = c;
}

void Image::fill(int x, int y, int w, int h, Color c) {
  for (int j = y; j < y + h; ++j)
    for (int i = x; i < x + w; ++i)
      set(i, j, c);
}

void Image::frame(int x, int y, int w, int h, Color c) {
  fill(x, y, w, 1, c);
  fill(x, y + h - 1, w, 1, c);
  fill(x, y, 1, h, c);
  fill(x + w - 1, y, 1, h, c);
}

void Image::line(Point a, Point b, Color c) {
  int x = a.x, y = a.y;
  const int dx = std::abs(b.x - a.x), sx = a.x < b.x ? 1 : -1;
  const int dy = -std::abs(b.y - a.y), sy = a.y < b.y ? 1 : -1;
  int err = dx + dy;
  for (;;) {
    set(x, y, c);
    if (x == b.x && y == b.y) break;
    const int e2 = 2 * err;
    if (e2 >= dy) {
      err += dy;
      x += sx;
    }
    if (e2 <= dx) {
      err += dx;
      y += sy;
    }
  }
}

void Image::paint(const Mask& m, Color c) {
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i)
      if (m.at(i, j)) set(i, j, c);
}

void Image::shape(const Mask& m, Color fillColor, Color outline) {
  paint(m, fillColor);
  paint(m.edge(), outline);
}

void Image::shape(const Mask& m, Color fillColor, Color outline, Color lit, Color shade) {
  Mask inner = m;
  inner.subtract(m.edge());
  paint(m, fillColor);
  paint(m.edge(), outline);
  const Mask rim = inner.edge();
  for (int j = 0; j < h_; ++j)
    for (int i = 0; i < w_; ++i) {
      if (!rim.at(i, j)) continue;
      if (!inner.at(i - 1, j) || !inner.at(i, j - 1))
        set(i, j, lit);
      else
        set(i, j, shade);
    }
}

void Image::gradientH(int x, int y, int w, int h, Color a, Color b) {
  for (int i = 0; i < w; ++i)
    fill(x + i, y, 1, h, mix(a, b, i, std::max(1, w - 1)));
}

void Image::gradientV(int x, int y, int w, int h, Color a, Color b) {
  for (int j = 0; j < h; ++j)
    fill(x, y + j, w, 1, mix(a, b, j, std::max(1, h - 1)));
}

void Image::bevel(int x, int y, int w, int h, bool raised) {
  const Color outerLit = raised ? pal::white : pal::gray;
  const Color outerShade = raised ? pal::black : pal::white;
  const Color innerLit = raised ? pal::light : pal::black;
  const Color innerShade = raised ? pal::gray : pal::light;
  fill(x, y, w, 1, outerLit);
  fill(x, y, 1, h, outerLit);
  fill(x, y + h - 1, w, 1, outerShade);
  fill(x + w - 1, y, 1, h, outerShade);
  fill(x + 1, y + 1, w - 2, 1, innerLit);
  fill(x + 1, y + 1, 1, h - 2, innerLit);
  fill(x + 1, y + h - 2, w - 2, 1, innerShade);
  fill(x + w - 2, y + 1, 1, h - 2, innerShade);
}

void Image::blit(const Image& src, int x, int y, Color key) {
  for (int j = 0; j < src.height(); ++j)
    for (int i = 0; i < src.width(); ++i)
      if (src.at(i, j) != key) set(x + i, y + j, src.at(i, j));
}

Image Image::scaled(int factor) const {
  Image out(w_ * factor, h_ * factor, pal::black);
  for (int j = 0; j < out.h_; ++j)
    for (int i = 0; i < out.w_; ++i)
      out.set(i, j, at(i / factor, j / factor));
  return out;
}

void Image::replace(Color from, Color to) {
  for (Color& c : px_)
    if (c == from) c = to;
}

// --- Text ------------------------------------------------------------------

namespace {

// Space between letters, before scaling.
constexpr int kGap = 1;

int glyphAdvance(const Glyph& g, const TextStyle& style) {
  return (g.width + kGap) * style.scale + (style.bold ? 1 : 0);
}

} // namespace

int textWidth(const std::string& text, const TextStyle& style) {
  int width = 0;
  for (char ch : text)
    width += glyphAdvance(glyphFor(ch), style);
  if (!text.empty()) width -= kGap * style.scale;
  return width;
}

void drawText(Image& img, int x, int y, const std::string& text, const TextStyle& style) {
  const int s = style.scale;
  for (char ch : text) {
    const Glyph& g = glyphFor(ch);
    for (int row = 0; row < kGlyphRows; ++row)
      for (int col = 0; col < g.width; ++col) {
        if (g.rows[row][col] != '#') continue;
        img.fill(x + col * s, y + row * s, s, s, style.color);
        if (style.bold) img.fill(x + col * s + 1, y + row * s, s, s, style.color);
      }
    x += glyphAdvance(g, style);
  }
}

void drawTextCentred(Image& img, int x, int y, const std::string& text, const TextStyle& style) {
  drawText(img, x - textWidth(text, style) / 2, y, text, style);
}

} // namespace artgen
