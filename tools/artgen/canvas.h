// Pixel canvas of the artwork generator: an RGB image, a coverage mask and
// the few drawing operations the pictures are made of. All arithmetic is
// integer, so the same program always draws the same pixels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace artgen {

using Color = std::uint32_t; // 0xRRGGBB

constexpr Color rgb(int r, int g, int b) {
  return (static_cast<Color>(r) << 16) | (static_cast<Color>(g) << 8) | static_cast<Color>(b);
}
constexpr int red(Color c) { return static_cast<int>((c >> 16) & 0xFF); }
constexpr int green(Color c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int blue(Color c) { return static_cast<int>(c & 0xFF); }

// The sixteen VGA colours, the four further fixed colours of a 256-colour
// Windows display, and the few warm tones the pictograms need.
namespace pal {
constexpr Color black = rgb(0, 0, 0);
constexpr Color maroon = rgb(128, 0, 0);
constexpr Color green = rgb(0, 128, 0);
constexpr Color olive = rgb(128, 128, 0);
constexpr Color navy = rgb(0, 0, 128);
constexpr Color purple = rgb(128, 0, 128);
constexpr Color teal = rgb(0, 128, 128);
constexpr Color gray = rgb(128, 128, 128);
constexpr Color silver = rgb(192, 192, 192);
constexpr Color red = rgb(255, 0, 0);
constexpr Color lime = rgb(0, 255, 0);
constexpr Color yellow = rgb(255, 255, 0);
constexpr Color blue = rgb(0, 0, 255);
constexpr Color fuchsia = rgb(255, 0, 255);
constexpr Color aqua = rgb(0, 255, 255);
constexpr Color white = rgb(255, 255, 255);
constexpr Color sky = rgb(166, 202, 240);
constexpr Color cream = rgb(255, 251, 240);
constexpr Color medium = rgb(160, 160, 164);
constexpr Color light = rgb(223, 223, 223);
constexpr Color dark = rgb(64, 64, 64);
constexpr Color tan = rgb(224, 176, 104);
constexpr Color brown = rgb(168, 112, 48);
constexpr Color umber = rgb(104, 64, 24);
constexpr Color pink = rgb(248, 152, 168);
constexpr Color rose = rgb(200, 88, 112);
// Background of images that are drawn with a mask: never used for a
// visible pixel.
constexpr Color key = fuchsia;
} // namespace pal

// Linear mix of two colours, t out of n.
Color mix(Color a, Color b, int t, int n);

struct Point {
  int x, y;
};

// Which pixels a shape covers.
class Mask {
public:
  Mask(int width, int height);
  int width() const { return w_; }
  int height() const { return h_; }
  bool at(int x, int y) const;
  void set(int x, int y, bool on = true);

  Mask& rect(int x, int y, int w, int h, bool on = true);
  // The ellipse inscribed in the box; a pixel is in when its centre is.
  Mask& ellipse(int x, int y, int w, int h, bool on = true);
  // Even-odd polygon in pixel-corner coordinates; a pixel is in when its
  // centre is.
  Mask& polygon(const std::vector<Point>& points, bool on = true);
  // A straight stroke of the given width between two pixel centres.
  Mask& stroke(Point a, Point b, int width, bool on = true);
  Mask& unite(const Mask& other);
  Mask& subtract(const Mask& other);
  Mask& intersect(const Mask& other);
  // Pixels of the mask that touch a pixel outside it (4-neighbourhood).
  Mask edge() const;
  // The mask grown by one pixel (8-neighbourhood).
  Mask grown() const;

private:
  int w_, h_;
  std::vector<std::uint8_t> bits_;
};

class Image {
public:
  Image() : w_(0), h_(0) {}
  Image(int width, int height, Color fill);
  int width() const { return w_; }
  int height() const { return h_; }
  Color at(int x, int y) const { return px_[static_cast<std::size_t>(y * w_ + x)]; }
  void set(int x, int y, Color c);
  Mask blankMask() const { return Mask(w_, h_); }

  void fill(int x, int y, int w, int h, Color c);
  void frame(int x, int y, int w, int h, Color c);
  void line(Point a, Point b, Color c);
  void paint(const Mask& m, Color c);
  // Fills a shape and gives it a one-pixel outline; with light and shade
  // the pixels just inside the outline take them on the upper left and the
  // lower right, which lends the shape the usual raised look.
  void shape(const Mask& m, Color fill, Color outline);
  void shape(const Mask& m, Color fill, Color outline, Color lit, Color shade);
  // Gradients across the box, from a to b.
  void gradientH(int x, int y, int w, int h, Color a, Color b);
  void gradientV(int x, int y, int w, int h, Color a, Color b);
  // Raised (or sunken) two-pixel edge around the box, as on a push button.
  void bevel(int x, int y, int w, int h, bool raised = true);
  // Draws src at (x, y), leaving out the pixels of colour key.
  void blit(const Image& src, int x, int y, Color key);
  Image scaled(int factor) const;
  // Every pixel of colour from becomes to.
  void replace(Color from, Color to);

private:
  int w_, h_;
  std::vector<Color> px_;
};

// The built-in proportional font: capitals 7 pixels high, descenders 2 more.
struct TextStyle {
  Color color = pal::black;
  int scale = 1;
  bool bold = false;
};
int textWidth(const std::string& text, const TextStyle& style);
constexpr int kCapHeight = 7;
void drawText(Image& img, int x, int y, const std::string& text, const TextStyle& style);
// Centred on x; y is the top of the capitals.
void drawTextCentred(Image& img, int x, int y, const std::string& text, const TextStyle& style);

} // namespace artgen
