#include "present/services/picturescaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "present/services/pixels.h"
#include "present/services/raster.h"

namespace glonks {
namespace {

constexpr i32 partsOfPixel = 4;

}  // namespace

PictureScaler::PictureScaler(i32 width, i32 height, i32 newWidth, i32 newHeight)
    : sameSize_(width == newWidth && height == newHeight),
      columns_(side(width, newWidth)),
      rows_(side(height, newHeight)) {}

PictureScaler::Side PictureScaler::side(i32 size, i32 newSize) {
  Side result{{}, {}, newSize < size};
  result.taps.reserve(static_cast<std::size_t>(newSize));
  const double step = static_cast<double>(size) / newSize;
  for (i32 i = 0; i < newSize; ++i) {
    Tap tap{0, 0, 0, result.weights.size()};
    if (result.shrinks) {
      const double begin = i * step;
      const double end = std::min((i + 1) * step, static_cast<double>(size));
      tap.first = static_cast<i32>(begin);
      tap.last = std::max(tap.first, static_cast<i32>(std::ceil(end - 1e-6)) - 1);
      for (i32 old = tap.first; old <= tap.last; ++old) {
        const double covered = std::min(end, old + 1.0) - std::max<double>(begin, old);
        result.weights.push_back(static_cast<float>(covered / (end - begin)));
      }
    } else {
      // Centres of pixels fall on centres of pixels.
      const double within = std::clamp((i + 0.5) * step - 0.5, 0.0, size - 1.0);
      tap.first = static_cast<i32>(within);
      tap.last = std::min(tap.first + 1, size - 1);
      const double weight = within - tap.first;
      tap.weightOfLast = static_cast<u32>(std::lround(weight * 256));
      if (tap.last > tap.first) result.weights.push_back(static_cast<float>(1 - weight));
      result.weights.push_back(static_cast<float>(tap.last > tap.first ? weight : 1));
    }
    result.taps.push_back(tap);
  }
  return result;
}

void PictureScaler::influence(const std::vector<Tap>& taps, i32 begin, i32 end, i32& first,
                              i32& last) {
  const auto from = std::partition_point(taps.begin(), taps.end(),
                                         [&](const Tap& tap) { return tap.last < begin; });
  const auto to =
      std::partition_point(from, taps.end(), [&](const Tap& tap) { return tap.first < end; });
  first = static_cast<i32>(from - taps.begin());
  last = static_cast<i32>(to - taps.begin());
}

Rect PictureScaler::influenced(const Rect& part) const {
  Rect result;
  influence(columns_.taps, part.left, part.right, result.left, result.right);
  influence(rows_.taps, part.top, part.bottom, result.top, result.bottom);
  return result;
}

void PictureScaler::scale(const RowOf& rowOf, u32* to, i32 toPitch, const Rect& part) const {
  if (sameSize_) {
    const i32 width = part.right - part.left;
    const auto targetOf = [&](i32 y) {
      return to + static_cast<std::ptrdiff_t>(y) * toPitch + part.left;
    };
    for (i32 y = part.top; y < part.bottom; ++y) {
      if (y + rowsAhead < part.bottom) fetch(targetOf(y + rowsAhead), width);
      std::memcpy(targetOf(y), rowOf(y) + part.left, static_cast<std::size_t>(width) * sizeof(u32));
    }
  } else if (columns_.shrinks || rows_.shrinks) {
    scaleByAreas(rowOf, to, toPitch, part);
  } else {
    scaleByMixing(rowOf, to, toPitch, part);
  }
}

void PictureScaler::scaleByMixing(const RowOf& rowOf, u32* to, i32 toPitch,
                                  const Rect& part) const {
  for (i32 y = part.top; y < part.bottom; ++y) {
    const Tap& row = rows_.taps[static_cast<std::size_t>(y)];
    const u32* upper = rowOf(row.first);
    const u32* lower = rowOf(row.last);
    u32* target = to + static_cast<std::ptrdiff_t>(y) * toPitch;
    for (i32 x = part.left; x < part.right; ++x) {
      const Tap& column = columns_.taps[static_cast<std::size_t>(x)];
      const u32 above = mixed(upper[column.first], upper[column.last], column.weightOfLast);
      const u32 below = mixed(lower[column.first], lower[column.last], column.weightOfLast);
      target[x] = mixed(above, below, row.weightOfLast);
    }
  }
}

// Row by row: first the old rows added up by their weights, then that row's pixels.
void PictureScaler::scaleByAreas(const RowOf& rowOf, u32* to, i32 toPitch, const Rect& part) const {
  if (part.left >= part.right) return;
  const i32 firstColumn = columns_.taps[static_cast<std::size_t>(part.left)].first;
  const i32 lastColumn = columns_.taps[static_cast<std::size_t>(part.right) - 1].last;
  const i32 partsInRow = (lastColumn - firstColumn + 1) * partsOfPixel;
  std::vector<float> sums(static_cast<std::size_t>(partsInRow));
  for (i32 y = part.top; y < part.bottom; ++y) {
    const Tap& row = rows_.taps[static_cast<std::size_t>(y)];
    std::fill(sums.begin(), sums.end(), 0.0F);
    for (i32 old = row.first; old <= row.last; ++old) {
      const float weight = rows_.weights[row.weights + static_cast<std::size_t>(old - row.first)];
      const auto* bytes = reinterpret_cast<const unsigned char*>(rowOf(old) + firstColumn);
      for (i32 i = 0; i < partsInRow; ++i) sums[static_cast<std::size_t>(i)] += weight * bytes[i];
    }
    u32* target = to + static_cast<std::ptrdiff_t>(y) * toPitch;
    for (i32 x = part.left; x < part.right; ++x) {
      const Tap& column = columns_.taps[static_cast<std::size_t>(x)];
      std::array<float, partsOfPixel> sum = {0.5F, 0.5F, 0.5F, 0.5F};
      for (i32 old = column.first; old <= column.last; ++old) {
        const float weight =
            columns_.weights[column.weights + static_cast<std::size_t>(old - column.first)];
        const float* four = &sums[static_cast<std::size_t>(old - firstColumn) * partsOfPixel];
        for (std::size_t i = 0; i < partsOfPixel; ++i) sum[i] += weight * four[i];
      }
      std::array<unsigned char, partsOfPixel> bytes{};
      for (std::size_t i = 0; i < partsOfPixel; ++i) {
        bytes[i] = static_cast<unsigned char>(std::min(sum[i], 255.0F));
      }
      std::memcpy(target + x, bytes.data(), partsOfPixel);
    }
  }
}

}  // namespace glonks
