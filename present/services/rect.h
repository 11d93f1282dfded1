#pragma once

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

}  // namespace glonks
