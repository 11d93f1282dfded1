#pragma once

#include <vector>

#include "base/types.h"
#include "present/services/rect.h"

namespace glonks {

// Inside the services: scales parts of a picture onto a larger or smaller one so that the parts fit
// together without seams, as if the whole had been scaled at once (bilinear).
class PictureScaler {
 public:
  // From pictures of `width` by `height` to ones of `newWidth` by `newHeight` pixels.
  PictureScaler(i32 width, i32 height, i32 newWidth, i32 newHeight);

  // The part of the new picture that a part of the old one has an influence on.
  Rect influenced(const Rect& part) const;

  // Fills the rectangle `part` of the new picture at `to`, whose rows are `toPitch` pixels apart.
  void scale(const u32* from, u32* to, i32 toPitch, const Rect& part) const;

 private:
  struct Tap {
    i32 first, second;  // the two old pixels that a new one lies between
    u32 weight;         // of the second, 0 to 256
  };
  static std::vector<Tap> taps(i32 size, i32 newSize);
  static void influence(const std::vector<Tap>& taps, i32 begin, i32 end, i32& first, i32& last);

  i32 width_;
  bool sameSize_;
  std::vector<Tap> columns_;
  std::vector<Tap> rows_;
};

}  // namespace glonks
