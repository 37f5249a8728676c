#include "frame/regions.h"

#include "runtime/value.h"

namespace frame {

using runtime::RegionShape;

namespace {
constexpr int kRgnOr = 2;
constexpr int kRgnXor = 3;

int rounded(double number) { return static_cast<int>(runtime::roundHalfEven(number)); }
} // namespace

runtime::WindowRegion ShapeMainForm(int formWidthTwips, int twipsPerPixel) {
  const int w = formWidthTwips / twipsPerPixel;
  // The first region: a thin rectangle that lies below the window's lower
  // edge. The second: the rounded outline from w / 21 down to w - 59, which
  // cuts the frame and the caption bar away.
  const RegionShape belowLowerEdge{RegionShape::Kind::Rect, 6, w, w - 6, w - 6, 0, 0};
  const RegionShape roundedOutline{
      RegionShape::Kind::RoundRect, 6, w - 59, w - 6, rounded(w / 21.0), 34, 50};
  // CombineRgn(result, second, first, RGN_XOR).
  return {roundedOutline, belowLowerEdge, kRgnXor};
}

runtime::WindowRegion ShapeAboutForm(int formWidthTwips, int twipsPerPixel) {
  const int w = formWidthTwips / twipsPerPixel;
  // The first region: a rectangle from the caption's foot to w * 0.9. The
  // second: a rounded outline over the same width down to w * 1.25.
  const RegionShape upperRectangle{RegionShape::Kind::Rect, 4, 28, w - 4, rounded(w * 0.9), 0, 0};
  const RegionShape roundedOutline{
      RegionShape::Kind::RoundRect, 4, 28, w - 4, rounded(w * 1.25), 440, 240};
  // CombineRgn(result, second, first, RGN_OR).
  return {roundedOutline, upperRectangle, kRgnOr};
}

} // namespace frame
