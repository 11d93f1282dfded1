#include "present/services/picturescaler.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace glonks {
namespace {

// Both pixels mixed, two colour parts at a time.
u32 mixed(u32 first, u32 second, u32 weight) {
  constexpr u32 redBlue = 0xFF00FF;
  constexpr u32 green = 0x00FF00;
  const u32 rest = 256 - weight;
  const u32 a = ((first & redBlue) * rest + (second & redBlue) * weight) >> 8U & redBlue;
  const u32 b = ((first & green) * rest + (second & green) * weight) >> 8U & green;
  return a | b;
}

}  // namespace

PictureScaler::PictureScaler(i32 width, i32 height, i32 newWidth, i32 newHeight)
    : width_(width),
      sameSize_(width == newWidth && height == newHeight),
      columns_(taps(width, newWidth)),
      rows_(taps(height, newHeight)) {}

std::vector<PictureScaler::Tap> PictureScaler::taps(i32 size, i32 newSize) {
  std::vector<Tap> result;
  for (i32 i = 0; i < newSize; ++i) {
    // Centres of pixels fall on centres of pixels.
    const double place = (i + 0.5) * size / newSize - 0.5;
    const double within = std::clamp(place, 0.0, static_cast<double>(size - 1));
    const auto first = static_cast<i32>(std::floor(within));
    result.push_back({first, std::min(first + 1, size - 1),
                      static_cast<u32>(std::lround((within - first) * 256))});
  }
  return result;
}

void PictureScaler::influence(const std::vector<Tap>& taps, i32 begin, i32 end, i32& first,
                              i32& last) {
  const auto from = std::partition_point(taps.begin(), taps.end(),
                                         [&](const Tap& tap) { return tap.second < begin; });
  const auto to =
      std::partition_point(from, taps.end(), [&](const Tap& tap) { return tap.first < end; });
  first = static_cast<i32>(from - taps.begin());
  last = static_cast<i32>(to - taps.begin());
}

Rect PictureScaler::influenced(const Rect& part) const {
  Rect result;
  influence(columns_, part.left, part.right, result.left, result.right);
  influence(rows_, part.top, part.bottom, result.top, result.bottom);
  return result;
}

void PictureScaler::scale(const u32* from, u32* to, i32 toPitch, const Rect& part) const {
  for (i32 y = part.top; y < part.bottom; ++y) {
    const Tap& row = rows_[static_cast<std::size_t>(y)];
    const u32* upper = from + static_cast<std::ptrdiff_t>(row.first) * width_;
    const u32* lower = from + static_cast<std::ptrdiff_t>(row.second) * width_;
    u32* target = to + static_cast<std::ptrdiff_t>(y) * toPitch;
    if (sameSize_) {
      std::memcpy(target + part.left, upper + part.left,
                  static_cast<std::size_t>(part.right - part.left) * sizeof(u32));
      continue;
    }
    for (i32 x = part.left; x < part.right; ++x) {
      const Tap& column = columns_[static_cast<std::size_t>(x)];
      const u32 above = mixed(upper[column.first], upper[column.second], column.weight);
      const u32 below = mixed(lower[column.first], lower[column.second], column.weight);
      target[x] = mixed(above, below, row.weight);
    }
  }
}

}  // namespace glonks
