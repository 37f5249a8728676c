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
  const RegionShape first{RegionShape::Kind::Rect, 6, w, w - 6, w - 6, 0, 0};
  const RegionShape second{
      RegionShape::Kind::RoundRect, 6, w - 59, w - 6, rounded(w / 21.0), 34, 50};
  return {second, first, kRgnXor};
}

runtime::WindowRegion ShapeAboutForm(int formWidthTwips, int twipsPerPixel) {
  const int w = formWidthTwips / twipsPerPixel;
  const RegionShape first{RegionShape::Kind::Rect, 4, 28, w - 4, rounded(w * 0.9), 0, 0};
  const RegionShape second{RegionShape::Kind::RoundRect, 4, 28, w - 4, rounded(w * 1.25), 440, 240};
  return {second, first, kRgnOr};
}

} // namespace frame
