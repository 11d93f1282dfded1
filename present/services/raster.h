#pragma once

#include <vector>

#include "base/types.h"
#include "present/services/rect.h"

// Inside the services: pixels in memory.
namespace glonks {

struct Raster {
  i32 width = 0;  // pixels
  i32 height = 0;
  std::vector<u32> pixels;  // rows from the top

  Raster() = default;
  Raster(i32 columns, i32 rows) : width(columns), height(rows), pixels(size(columns, rows), 0) {}

  static std::size_t size(i32 columns, i32 rows) {
    return static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
  }
  u32* row(i32 y) { return pixels.data() + size(width, y); }
  const u32* row(i32 y) const { return pixels.data() + size(width, y); }
  Rect whole() const { return {0, 0, width, height}; }
};

inline constexpr i32 rowsAhead = 4;

// Begins to fetch pixels into the processor's cache that are to be read or written `rowsAhead` rows
// from now. After a wait they are no longer there, and short rows lie too far from each other for
// the processor to see by itself what comes next. In long ones it does.
inline void fetch(const u32* pixels, i32 count) {
  constexpr i32 pixelsInLine = 16;
  constexpr i32 longRow = 256;  // pixels
  if (count > longRow) return;
  for (i32 i = 0; i < count; i += pixelsInLine) __builtin_prefetch(pixels + i);
}

}  // namespace glonks
