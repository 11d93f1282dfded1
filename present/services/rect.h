#pragma once

#include <algorithm>

#include "base/types.h"

namespace glonks {

// Left, top, right, bottom in pixels, right and bottom exclusive. Four zeros: the whole surface.
struct Rect {
  i32 left = 0;
  i32 top = 0;
  i32 right = 0;
  i32 bottom = 0;
  friend bool operator==(const Rect&, const Rect&) = default;
};

// What two rectangles have in common.
inline Rect common(const Rect& a, const Rect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

inline bool isEmpty(const Rect& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

inline bool contains(const Rect& outer, const Rect& inner) { return common(outer, inner) == inner; }

}  // namespace glonks
