#pragma once

#include <functional>
#include <vector>

#include "base/types.h"
#include "present/services/rect.h"

namespace glonks {

// Inside the services: scales a picture, or parts of it, which fit together without seams, as if
// the whole had been scaled at once. Along a side that grows, a pixel is a mixture of the two that
// it lies between; along one that shrinks, the mean of the area that it covers. Pixels are
// 0xAARRGGBB with colours multiplied by alpha.
class PictureScaler {
 public:
  // A row of the old picture, which has to stay valid until the second next call.
  using RowOf = std::function<const u32*(i32 y)>;

  // From pictures of `width` by `height` to ones of `newWidth` by `newHeight` pixels.
  PictureScaler(i32 width, i32 height, i32 newWidth, i32 newHeight);

  // The part of the new picture that a part of the old one has an influence on.
  Rect influenced(const Rect& part) const;

  // Fills the rectangle `part` of the new picture at `to`, whose rows are `toPitch` pixels apart.
  void scale(const RowOf& rowOf, u32* to, i32 toPitch, const Rect& part) const;

 private:
  // What a new pixel is made of along one side: neighbouring old ones and their weights.
  struct Tap {
    i32 first, last;      // old pixels, both inclusive
    u32 weightOfLast;     // of two, 0 to 256
    std::size_t weights;  // where the area's weights begin, if more than two count
  };
  struct Side {
    std::vector<Tap> taps;       // by new pixel
    std::vector<float> weights;  // of areas; those of a tap add up to 1
    bool shrinks;
  };
  static Side side(i32 size, i32 newSize);
  static void influence(const std::vector<Tap>& taps, i32 begin, i32 end, i32& first, i32& last);
  void scaleByMixing(const RowOf& rowOf, u32* to, i32 toPitch, const Rect& part) const;
  void scaleByAreas(const RowOf& rowOf, u32* to, i32 toPitch, const Rect& part) const;

  bool sameSize_;
  Side columns_;
  Side rows_;
};

}  // namespace glonks
