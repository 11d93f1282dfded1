#include "present/services/picturesource.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

#include "present/services/picturescaler.h"
#include "present/services/pixels.h"

namespace glonks {
namespace {

// Blits repeat themselves frame after frame, so the last few forms are kept: an explosion has six
// sizes, and where the scale isn't whole each has up to four, by the pixels that its edges are
// rounded to.
constexpr std::size_t mostPrepared = 32;

constexpr i32 blockSize = 16;  // pixels of a block's edge

i32 blocksAlong(i32 pixels) { return (pixels + blockSize - 1) / blockSize; }

u32 sources = 0;  // made so far

Raster scaled(const PictureScaler::RowOf& rowOf, i32 oldWidth, i32 oldHeight, i32 width,
              i32 height) {
  Raster result(width, height);
  PictureScaler(oldWidth, oldHeight, width, height)
      .scale(rowOf, result.pixels.data(), width, result.whole());
  return result;
}

// Logical pixels, of which the last may be covered only partly.
i32 logical(i32 pixels, double scale) { return static_cast<i32>(std::ceil(pixels / scale - 0.01)); }

enum class Cover { none, partly, whole };

Cover coverOf(u32 pixel) {
  const u32 alpha = pixel >> alphaShift;
  return alpha == 0 ? Cover::none : alpha == 255 ? Cover::whole : Cover::partly;
}

// The runs, and the blocks of which they leave nothing open.
void findRuns(PreparedPicture& prepared) {
  const i32 columns = blocksAlong(prepared.width);
  prepared.solidBlocks.assign(Raster::size(columns, blocksAlong(prepared.height)), 1);
  for (i32 y = 0; y < prepared.height; ++y) {
    prepared.rows.push_back(prepared.runs.size());
    u32* row = prepared.raster.row(y);
    for (i32 x = 0; x < prepared.width;) {
      const i32 start = x;
      const Cover cover = coverOf(row[x]);
      for (; x < prepared.width && coverOf(row[x]) == cover; ++x) {
      }
      const bool solid = cover == Cover::whole;
      if (!solid) {
        char* blocks = &prepared.solidBlocks[Raster::size(columns, y / blockSize)];
        std::fill(blocks + start / blockSize, blocks + blocksAlong(x), 0);
      }
      if (cover == Cover::none) continue;
      for (i32 i = start; solid && i < x; ++i) row[i] &= colorBits;
      prepared.runs.push_back({start, x - start, solid});
    }
  }
  prepared.rows.push_back(prepared.runs.size());
}

}  // namespace

i32 edgeAt(i32 place, double scale) { return static_cast<i32>(std::floor(place * scale + 0.5)); }

Rect edgesAt(const Rect& rect, double scale) {
  return {edgeAt(rect.left, scale), edgeAt(rect.top, scale), edgeAt(rect.right, scale),
          edgeAt(rect.bottom, scale)};
}

void PreparedPicture::draw(Raster& target, i32 left, i32 top, const Rect& clip) const {
  const Rect shown = common({left, top, left + width, top + height}, clip);
  for (i32 y = shown.top; y < shown.bottom; ++y) {
    u32* under = target.row(y);
    const u32* over = raster.row(y - top);
    const auto row = static_cast<std::size_t>(y - top);
    if (y + rowsAhead < shown.bottom && rows[row + rowsAhead] < rows[row + rowsAhead + 1]) {
      fetch(target.row(y + rowsAhead) + shown.left, shown.right - shown.left);
      fetch(raster.row(y - top + rowsAhead) + shown.left - left, shown.right - shown.left);
    }
    for (std::size_t i = rows[row]; i < rows[row + 1]; ++i) {
      const i32 first = std::max(runs[i].x, shown.left - left);
      const i32 end = std::min(runs[i].x + runs[i].length, shown.right - left);
      if (first >= end) continue;
      if (runs[i].solid) {
        std::memcpy(under + left + first, over + first,
                    static_cast<std::size_t>(end - first) * sizeof(u32));
      } else {
        for (i32 x = first; x < end; ++x) {
          under[left + x] = laidOver(under[left + x], over[x]) & colorBits;
        }
      }
    }
  }
}

bool PreparedPicture::hides(const Rect& part) const {
  for (i32 row = part.top / blockSize; row < blocksAlong(part.bottom); ++row) {
    const char* blocks = &solidBlocks[Raster::size(blocksAlong(width), row)];
    const char* end = blocks + blocksAlong(part.right);
    if (std::find(blocks + part.left / blockSize, end, 0) != end) return false;
  }
  return true;
}

PictureSource::PictureSource(Picture picture)
    : picture_(std::move(picture)),
      scale_(picture_.density),
      width_(logical(picture_.width, scale_)),
      height_(logical(picture_.height, scale_)),
      number_(++sources) {}

PictureSource::PictureSource(const Raster& raster, double scale)
    : PictureSource({raster.width, raster.height, 1, false, raster.pixels, {}}) {
  for (u32& color : picture_.colors) color |= opaqueBits;
  scale_ = scale;
  width_ = static_cast<i32>(std::lround(raster.width / scale));
  height_ = static_cast<i32>(std::lround(raster.height / scale));
}

void PictureSource::setKey(i32 low, i32 high) {
  if (hasAlpha()) return;
  hasKey_ = true;
  low_ = low;
  high_ = high;
  prepared_.clear();
  nextPrepared_ = 0;
}

bool PictureSource::isKey(u32 pixel) const {
  const auto color = static_cast<i32>(pixel & colorBits);
  return color >= low_ && color <= high_;
}

Raster PictureSource::cutOut(const Rect& from, bool byKey) const {
  Raster result(from.right - from.left, from.bottom - from.top);
  const Rect inside = common(from, {0, 0, picture_.width, picture_.height});
  std::vector<u32> space;
  for (i32 y = inside.top; y < inside.bottom; ++y) {
    const u32* row = picture_.row(y, space);
    u32* to = result.row(y - from.top);
    for (i32 x = inside.left; x < inside.right; ++x) {
      if (!byKey || !isKey(row[x])) to[x - from.left] = row[x];
    }
  }
  return result;
}

const PreparedPicture& PictureSource::prepared(const Rect& from, i32 width, i32 height,
                                               bool keyed) {
  for (const PreparedPicture& known : prepared_) {
    if (known.from == from && known.width == width && known.height == height &&
        known.keyed == keyed) {
      return known;
    }
  }
  const Rect part = edgesAt(from, scale_);
  PreparedPicture fresh{from, width, height, keyed, {}, {}, {}, {}};
  const bool byKey = keyed && hasKey_;
  if (part == Rect{0, 0, picture_.width, picture_.height} && !byKey) {
    std::array<std::vector<u32>, 2> spaces;
    const auto rowOf = [&, next = 0U](i32 y) mutable {
      return picture_.row(y, spaces[++next % 2]);
    };
    fresh.raster = scaled(rowOf, picture_.width, picture_.height, width, height);
  } else {
    const Raster cut = cutOut(part, byKey);
    const auto rowOf = [&](i32 y) { return cut.row(y); };
    fresh.raster = scaled(rowOf, cut.width, cut.height, width, height);
  }
  if (!keyed) {
    for (u32& pixel : fresh.raster.pixels) pixel |= opaqueBits;
  }
  findRuns(fresh);
  if (prepared_.size() < mostPrepared) {
    prepared_.push_back(std::move(fresh));
    return prepared_.back();
  }
  PreparedPicture& oldest = prepared_[nextPrepared_++ % mostPrepared];
  oldest = std::move(fresh);
  return oldest;
}

}  // namespace glonks
