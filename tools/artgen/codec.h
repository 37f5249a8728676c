// File formats that Windows 98 reads: BMP (plain or RLE8) and BMP-based ICO.
#pragma once

#include "canvas.h"

#include <cstdint>
#include <vector>

namespace artgen {

using Bytes = std::vector<std::uint8_t>;

// A bottom-up BMP with a BITMAPINFOHEADER: 8 bits per pixel with a palette
// of the colours used when there are at most 256 of them (run-length encoded,
// BI_RLE8, when that is smaller), 24 bits else.
Bytes encodeBmp(const Image& img);

// An icon file with one 16-colour image (standard VGA palette, AND mask) per
// picture, in the order given. Pixels of colour key are transparent; every
// other pixel must be one of the sixteen VGA colours.
Bytes encodeIco(const std::vector<Image>& pictures, Color key);

} // namespace artgen
