#include "codec.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace artgen {

namespace {

void put16(Bytes& out, unsigned v) {
  out.push_back(static_cast<std::uint8_t>(v & 0xFF));
  out.push_back(static_cast<std::uint8_t>((v >> 8) & 0xFF));
}

void put32(Bytes& out, std::uint32_t v) {
  put16(out, v & 0xFFFF);
  put16(out, v >> 16);
}

void putColor(Bytes& out, Color c) { // RGBQUAD
  out.push_back(static_cast<std::uint8_t>(blue(c)));
  out.push_back(static_cast<std::uint8_t>(green(c)));
  out.push_back(static_cast<std::uint8_t>(red(c)));
  out.push_back(0);
}

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::int32_t kPixelsPerMetre = 3780; // 96 dots per inch

constexpr std::uint32_t kBiRgb = 0;
constexpr std::uint32_t kBiRle8 = 1;

void putInfoHeader(Bytes& out, int width, int height, int bits, std::uint32_t compression,
                   std::uint32_t imageSize, std::uint32_t colorsUsed) {
  put32(out, kInfoHeaderSize);
  put32(out, static_cast<std::uint32_t>(width));
  put32(out, static_cast<std::uint32_t>(height));
  put16(out, 1); // planes
  put16(out, static_cast<unsigned>(bits));
  put32(out, compression);
  put32(out, imageSize);
  put32(out, kPixelsPerMetre);
  put32(out, kPixelsPerMetre);
  put32(out, colorsUsed);
  put32(out, 0); // all colours important
}

// Bytes per row, padded to four.
std::uint32_t stride(int width, int bits) {
  return static_cast<std::uint32_t>((width * bits + 31) / 32 * 4);
}

const Color kVga[16] = {pal::black, pal::maroon,  pal::green, pal::olive, pal::navy, pal::purple,
                        pal::teal,  pal::silver,  pal::gray,  pal::red,   pal::lime, pal::yellow,
                        pal::blue,  pal::fuchsia, pal::aqua,  pal::white};

// One row of palette indexes in BI_RLE8 form: runs of one index as (count,
// index), stretches of differing indexes as absolute groups (0, count, the
// indexes, padded to a word), then the end-of-line mark.
void putRle8Row(Bytes& out, const std::vector<std::uint8_t>& row) {
  std::size_t x = 0;
  const auto runAt = [&](std::size_t at) {
    std::size_t n = 1;
    while (at + n < row.size() && row[at + n] == row[at] && n < 255)
      ++n;
    return n;
  };
  while (x < row.size()) {
    const std::size_t run = runAt(x);
    if (run >= 2) {
      out.push_back(static_cast<std::uint8_t>(run));
      out.push_back(row[x]);
      x += run;
      continue;
    }
    std::size_t end = x;
    while (end < row.size() && end - x < 255 && runAt(end) < 3)
      ++end;
    const std::size_t count = end - x;
    if (count < 3) {
      for (; x < end; ++x) {
        out.push_back(1);
        out.push_back(row[x]);
      }
      continue;
    }
    out.push_back(0);
    out.push_back(static_cast<std::uint8_t>(count));
    out.insert(out.end(), row.begin() + static_cast<std::ptrdiff_t>(x),
               row.begin() + static_cast<std::ptrdiff_t>(end));
    if (count % 2) out.push_back(0);
    x = end;
  }
  out.push_back(0);
  out.push_back(0); // end of line
}

} // namespace

Bytes encodeBmp(const Image& img) {
  const int w = img.width(), h = img.height();
  std::vector<Color> colors;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      colors.push_back(img.at(x, y));
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
  const bool indexed = colors.size() <= 256;
  const int bits = indexed ? 8 : 24;
  const std::uint32_t rowBytes = stride(w, bits);
  // Palette images go run-length encoded when that is smaller.
  Bytes rle;
  if (indexed) {
    for (int y = h - 1; y >= 0; --y) {
      std::vector<std::uint8_t> row;
      for (int x = 0; x < w; ++x)
        row.push_back(static_cast<std::uint8_t>(
            std::lower_bound(colors.begin(), colors.end(), img.at(x, y)) - colors.begin()));
      putRle8Row(rle, row);
    }
    rle.push_back(0);
    rle.push_back(1); // end of bitmap
  }
  const bool compressed = indexed && rle.size() < rowBytes * static_cast<std::uint32_t>(h);
  const std::uint32_t imageSize = compressed ? static_cast<std::uint32_t>(rle.size())
                                             : rowBytes * static_cast<std::uint32_t>(h);
  const std::uint32_t paletteSize = indexed ? static_cast<std::uint32_t>(colors.size()) * 4 : 0;
  const std::uint32_t offset = kFileHeaderSize + kInfoHeaderSize + paletteSize;

  Bytes out;
  out.reserve(offset + imageSize);
  out.push_back('B');
  out.push_back('M');
  put32(out, offset + imageSize);
  put32(out, 0); // reserved
  put32(out, offset);
  putInfoHeader(out, w, h, bits, compressed ? kBiRle8 : kBiRgb, imageSize,
                indexed ? static_cast<std::uint32_t>(colors.size()) : 0);
  if (indexed)
    for (Color c : colors)
      putColor(out, c);
  if (compressed) {
    out.insert(out.end(), rle.begin(), rle.end());
    return out;
  }
  for (int y = h - 1; y >= 0; --y) { // bottom-up
    const std::size_t start = out.size();
    for (int x = 0; x < w; ++x) {
      const Color c = img.at(x, y);
      if (indexed) {
        const auto it = std::lower_bound(colors.begin(), colors.end(), c);
        out.push_back(static_cast<std::uint8_t>(it - colors.begin()));
      } else {
        out.push_back(static_cast<std::uint8_t>(blue(c)));
        out.push_back(static_cast<std::uint8_t>(green(c)));
        out.push_back(static_cast<std::uint8_t>(red(c)));
      }
    }
    out.resize(start + rowBytes, 0);
  }
  return out;
}

Bytes encodeIco(const std::vector<Image>& pictures, Color key) {
  constexpr std::uint32_t kDirSize = 6, kEntrySize = 16;
  std::vector<Bytes> images;
  for (const Image& img : pictures) {
    const int w = img.width(), h = img.height();
    const std::uint32_t xorRow = stride(w, 4), andRow = stride(w, 1);
    const std::uint32_t size = (xorRow + andRow) * static_cast<std::uint32_t>(h);
    Bytes data;
    // The height of an icon image counts the colour rows and the mask rows.
    putInfoHeader(data, w, 2 * h, 4, kBiRgb, size, 0);
    for (Color c : kVga)
      putColor(data, c);
    for (int y = h - 1; y >= 0; --y) {
      const std::size_t start = data.size();
      for (int x = 0; x < w; x += 2) {
        int pair = 0;
        for (int k = 0; k < 2; ++k) {
          const Color c = x + k < w ? img.at(x + k, y) : key;
          int index = 0; // transparent pixels are black under the mask
          if (c != key) {
            const auto it = std::find(std::begin(kVga), std::end(kVga), c);
            if (it == std::end(kVga))
              throw std::runtime_error("icon pixel outside the 16 VGA colours at " +
                                       std::to_string(x + k) + "," + std::to_string(y));
            index = static_cast<int>(it - std::begin(kVga));
          }
          pair = (pair << 4) | index;
        }
        data.push_back(static_cast<std::uint8_t>(pair));
      }
      data.resize(start + xorRow, 0);
    }
    for (int y = h - 1; y >= 0; --y) {
      const std::size_t start = data.size();
      for (int x = 0; x < w; x += 8) {
        int bitsByte = 0;
        for (int k = 0; k < 8; ++k)
          bitsByte = (bitsByte << 1) | (x + k >= w || img.at(x + k, y) == key ? 1 : 0);
        data.push_back(static_cast<std::uint8_t>(bitsByte));
      }
      data.resize(start + andRow, 0);
    }
    images.push_back(std::move(data));
  }

  Bytes out;
  put16(out, 0);
  put16(out, 1); // icon
  put16(out, static_cast<unsigned>(images.size()));
  std::uint32_t offset = kDirSize + kEntrySize * static_cast<std::uint32_t>(images.size());
  for (std::size_t i = 0; i < images.size(); ++i) {
    out.push_back(static_cast<std::uint8_t>(pictures[i].width()));
    out.push_back(static_cast<std::uint8_t>(pictures[i].height()));
    out.push_back(16); // colours
    out.push_back(0);
    put16(out, 1); // planes
    put16(out, 4); // bits per pixel
    put32(out, static_cast<std::uint32_t>(images[i].size()));
    put32(out, offset);
    offset += static_cast<std::uint32_t>(images[i].size());
  }
  for (const Bytes& data : images)
    out.insert(out.end(), data.begin(), data.end());
  return out;
}

} // namespace artgen
