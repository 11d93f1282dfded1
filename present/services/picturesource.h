#pragma once

#include <vector>

#include "base/types.h"
#include "present/services/picturefile.h"
#include "present/services/raster.h"
#include "present/services/rect.h"

// Inside the services: what blits come from.
namespace glonks {

// A part of a picture as one kind of blit needs it: scaled to the pixels of the target, and the
// runs that are to be drawn.
struct PreparedPicture {
  struct Run {
    i32 x;
    i32 length;
    bool solid;  // hides what is under it, so it is copied; others are laid over it
  };
  Rect from;  // logical
  i32 width = 0;
  i32 height = 0;
  bool keyed = false;
  Raster raster;                  // colours multiplied by alpha, solid pixels 0x00RRGGBB
  std::vector<Run> runs;          // by rows from the top, within a row from the left
  std::vector<std::size_t> rows;  // the first run of each row, and the end
  std::vector<char> solidBlocks;  // by rows: whether a square of pixels is solid all over

  // Draws the picture with its top left at (left, top), as far as it lies in `clip`, which lies in
  // the target.
  void draw(Raster& target, i32 left, i32 top, const Rect& clip) const;

  // True if nothing under a part of the picture can be seen; false if that can't be told quickly.
  bool hides(const Rect& part) const;
};

// A picture of `scale` pixels to a logical one, each way.
class PictureSource {
 public:
  explicit PictureSource(Picture picture);
  // Pixels 0x00RRGGBB as they are.
  PictureSource(const Raster& raster, double scale);

  i32 width() const { return width_; }  // logical
  i32 height() const { return height_; }
  bool hasAlpha() const { return picture_.hasAlpha; }
  u32 number() const { return number_; }  // no two sources have the same

  // Keyed blits leave out the colours from `low` to `high`, unless the file says itself what can be
  // seen through.
  void setKey(i32 low, i32 high);

  // The logical part `from` at `width` by `height` pixels. Outside the picture there is nothing to
  // be seen, which is black where `keyed` is false. Valid until the next call.
  const PreparedPicture& prepared(const Rect& from, i32 width, i32 height, bool keyed);

 private:
  Raster cutOut(const Rect& from, bool byKey) const;
  bool isKey(u32 pixel) const;

  Picture picture_;
  double scale_;
  i32 width_;
  i32 height_;
  bool hasKey_ = false;
  i32 low_ = 0;
  i32 high_ = 0;
  u32 number_;
  std::vector<PreparedPicture> prepared_;  // what blits from here have used lately
  std::size_t nextPrepared_ = 0;
};

// The pixel edge of a logical one, at `scale` pixels to a logical one. Rounding edges instead of
// sizes leaves neither seams nor overlaps between neighbours.
i32 edgeAt(i32 place, double scale);
Rect edgesAt(const Rect& rect, double scale);

}  // namespace glonks
