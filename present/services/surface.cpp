#include "present/services/surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "base/errors.h"
#include "present/services/gamefont.h"
#include "present/services/picturescaler.h"
#include "present/services/pixels.h"
#include "present/services/screen.h"

namespace glonks {

// A part of a surface as one kind of blit needs it: scaled to the pixels of the target, and the
// runs that are to be drawn. Blits repeat themselves frame after frame, so the last few are kept:
// an explosion has six sizes, and where the scale isn't whole each has up to four forms, by the
// pixels that its edges are rounded to.
struct DirectDrawSurface7::Prepared {
  struct Run {
    i32 x;
    i32 y;
    i32 length;
    bool solid;  // hides what is under it, so it is copied; others are laid over it
  };
  Rect from;
  i32 width;  // pixels
  i32 height;
  bool keyed;
  std::vector<u32> pixels;  // width * height; colours multiplied by alpha, solid ones 0x00RRGGBB
  std::vector<Run> runs;    // by rows from the top, within a row from the left
};

// A text that has been drawn, and the pixels that it left.
struct DirectDrawSurface7::StandingText {
  i32 x;  // pixels
  i32 y;
  std::string text;
  std::vector<u32> pixels;
};

namespace {

constexpr std::size_t mostPrepared = 32;
constexpr std::size_t mostStanding = 32;
constexpr std::size_t mostKept = 1U << 20U;  // pixels of a picture that stay in memory

std::size_t area(i32 width, i32 height) { return static_cast<std::size_t>(width) * height; }

// The pixel edge of a logical one. Rounding edges instead of sizes leaves neither seams nor
// overlaps between neighbours.
i32 edge(i32 place, double scale) { return static_cast<i32>(std::floor(place * scale + 0.5)); }

std::vector<u32> scaled(const u32* pixels, i32 width, i32 height, i32 newWidth, i32 newHeight) {
  std::vector<u32> result(area(newWidth, newHeight));
  PictureScaler(width, height, newWidth, newHeight)
      .scale(pixels, result.data(), newWidth, {0, 0, newWidth, newHeight});
  return result;
}

Rect clipped(const Rect& rect, i32 width, i32 height) {
  return {std::clamp(rect.left, 0, width), std::clamp(rect.top, 0, height),
          std::clamp(rect.right, 0, width), std::clamp(rect.bottom, 0, height)};
}

enum class Cover { none, partly, whole };

Cover coverOf(u32 pixel) {
  const u32 alpha = pixel >> alphaShift;
  return alpha == 0 ? Cover::none : alpha == 255 ? Cover::whole : Cover::partly;
}

}  // namespace

DirectDrawSurface7::DirectDrawSurface7(i32 width, i32 height, double scale)
    : width_(width),
      height_(height),
      scale_(scale),
      pixelWidth_(edge(width, scale)),
      pixelHeight_(edge(height, scale)),
      pixels_(area(pixelWidth_, pixelHeight_), 0) {}

DirectDrawSurface7::DirectDrawSurface7(PictureFile file, double targetScale)
    : DirectDrawSurface7(0, 0) {
  file_ = std::move(file);
  take(decodePicture(file_));
  if (pixels_.size() <= mostKept) {
    file_ = {};
  } else {
    prepared(wholeIfZero({}), edge(width_, targetScale), edge(height_, targetScale), hasAlpha_);
  }
}

DirectDrawSurface7::~DirectDrawSurface7() = default;

void DirectDrawSurface7::take(Picture picture) {
  scale_ = picture.density;
  pixelWidth_ = picture.width;
  pixelHeight_ = picture.height;
  width_ = (pixelWidth_ + picture.density - 1) / picture.density;
  height_ = (pixelHeight_ + picture.density - 1) / picture.density;
  hasAlpha_ = picture.hasAlpha;
  pixels_ = std::move(picture.pixels);
}

void DirectDrawSurface7::setScale(double scale) {
  const i32 newWidth = edge(width_, scale);
  const i32 newHeight = edge(height_, scale);
  pixels_ = scaled(pixels_.data(), pixelWidth_, pixelHeight_, newWidth, newHeight);
  pixelWidth_ = newWidth;
  pixelHeight_ = newHeight;
  scale_ = scale;
  if (!font_.name.empty()) SetFont(font_);
  changed();
}

void DirectDrawSurface7::SetColorKey(i32 flags, const ColorKey& key) {
  hasKey_ = (flags & sourceBlitKey) != 0;
  key_ = key;
  if (!hasAlpha_) changed();
}

bool DirectDrawSurface7::isKey(u32 pixel) const {
  const auto color = static_cast<i32>(pixel & colorBits);
  return color >= key_.low && color <= key_.high;
}

void DirectDrawSurface7::changed() {
  prepared_.clear();
  nextPrepared_ = 0;
}

Rect DirectDrawSurface7::wholeIfZero(const Rect& rect) const {
  return rect == Rect{} ? Rect{0, 0, width_, height_} : rect;
}

Rect DirectDrawSurface7::onPixels(const Rect& rect) const {
  return {edge(rect.left, scale_), edge(rect.top, scale_), edge(rect.right, scale_),
          edge(rect.bottom, scale_)};
}

// What lies outside the surface shows nothing, and neither do key colours.
std::vector<u32> DirectDrawSurface7::cutOut(const Rect& from, bool keyed) const {
  const i32 width = from.right - from.left;
  std::vector<u32> result(area(width, from.bottom - from.top), 0);
  const Rect inside = clipped(from, pixelWidth_, pixelHeight_);
  const bool byKey = keyed && hasKey_ && !hasAlpha_;
  for (i32 y = inside.top; y < inside.bottom; ++y) {
    const u32* row = &pixels_[area(pixelWidth_, y)];
    u32* to = &result[area(width, y - from.top)] - from.left;
    for (i32 x = inside.left; x < inside.right; ++x) {
      if (byKey && isKey(row[x])) continue;
      to[x] = hasAlpha_ ? row[x] : row[x] | opaqueBits;
    }
  }
  return result;
}

const DirectDrawSurface7::Prepared& DirectDrawSurface7::prepared(const Rect& from, i32 width,
                                                                 i32 height, bool keyed) {
  for (const Prepared& known : prepared_) {
    if (known.from == from && known.width == width && known.height == height &&
        known.keyed == keyed) {
      return known;
    }
  }
  if (pixels_.empty()) take(decodePicture(file_));
  const Rect part = onPixels(from);
  const i32 partWidth = part.right - part.left;
  const i32 partHeight = part.bottom - part.top;
  Prepared fresh{from, width, height, keyed, {}, {}};
  if (hasAlpha_ && part == Rect{0, 0, pixelWidth_, pixelHeight_}) {
    fresh.pixels = scaled(pixels_.data(), partWidth, partHeight, width, height);
  } else {
    fresh.pixels = cutOut(part, keyed);
    if (partWidth != width || partHeight != height) {
      fresh.pixels = scaled(fresh.pixels.data(), partWidth, partHeight, width, height);
    }
  }
  if (!file_.bytes.empty()) pixels_ = {};

  for (i32 y = 0; y < height; ++y) {
    u32* row = &fresh.pixels[area(width, y)];
    for (i32 x = 0; x < width;) {
      const i32 start = x;
      const Cover cover = keyed ? coverOf(row[x]) : Cover::whole;
      for (; x < width && (!keyed || coverOf(row[x]) == cover); ++x) {
        if (cover == Cover::whole) row[x] &= colorBits;
      }
      if (cover != Cover::none) fresh.runs.push_back({start, y, x - start, cover == Cover::whole});
    }
  }
  if (prepared_.size() < mostPrepared) {
    prepared_.push_back(std::move(fresh));
    return prepared_.back();
  }
  Prepared& oldest = prepared_[nextPrepared_++ % mostPrepared];
  oldest = std::move(fresh);
  return oldest;
}

i32 DirectDrawSurface7::Blt(const Rect& to, const Surface& source, const Rect& from, i32 flags) {
  constexpr i32 nothingDrawn = 1;
  constexpr i32 largest = 8192;
  if (!source) return nothingDrawn;
  const Rect target = onPixels(wholeIfZero(to));
  const Rect part = source->wholeIfZero(from);
  const i32 width = target.right - target.left;
  const i32 height = target.bottom - target.top;
  if (width <= 0 || height <= 0 || width > largest || height > largest) return nothingDrawn;
  if (part.right <= part.left || part.bottom <= part.top) return nothingDrawn;
  const Rect shown = clipped(target, pixelWidth_, pixelHeight_);
  if (shown.left >= shown.right || shown.top >= shown.bottom) return nothingDrawn;
  const bool keyed = (flags & bltKeyed) == bltKeyed && (source->hasKey_ || source->hasAlpha_);

  const Prepared& picture = source->prepared(part, width, height, keyed);
  const auto draw = [&](const Prepared::Run& run, i32 first, i32 end) {
    u32* under = &pixels_[area(pixelWidth_, run.y + target.top)] + target.left;
    const u32* over = &picture.pixels[area(width, run.y)];
    if (run.solid) {
      std::memcpy(under + first, over + first, static_cast<std::size_t>(end - first) * sizeof(u32));
    } else {
      for (i32 x = first; x < end; ++x) under[x] = laidOver(under[x], over[x]) & colorBits;
    }
  };
  if (shown == target) {
    for (const Prepared::Run& run : picture.runs) draw(run, run.x, run.x + run.length);
  } else {
    const i32 left = shown.left - target.left;  // the part of the picture that shows
    const i32 right = shown.right - target.left;
    for (const Prepared::Run& run : picture.runs) {
      const i32 y = run.y + target.top;
      if (y < shown.top || y >= shown.bottom) continue;
      const i32 first = std::max(run.x, left);
      const i32 end = std::min(run.x + run.length, right);
      if (first < end) draw(run, first, end);
    }
  }
  changed();
  return 0;
}

i32 DirectDrawSurface7::BltColorFill(const Rect& to, i32 color) {
  const Rect filled = clipped(onPixels(wholeIfZero(to)), pixelWidth_, pixelHeight_);
  for (i32 y = filled.top; y < filled.bottom; ++y) {
    u32* row = &pixels_[area(pixelWidth_, y)];
    const auto length = static_cast<std::size_t>(std::max(0, filled.right - filled.left));
    if (color == 0) {  // each frame begins so, and this way takes half its time off
      std::memset(row + filled.left, 0, length * sizeof(u32));
    } else {
      std::fill_n(row + filled.left, length, static_cast<u32>(color));
    }
  }
  changed();
  return 0;
}

void DirectDrawSurface7::SetFont(const GameFont& font) {
  loadFont(font.name, font.size, scale_);
  font_ = font;
  standing_.clear();
}

void DirectDrawSurface7::SetForeColor(i32 color) {
  foreColor_ = color;
  standing_.clear();
}

void DirectDrawSurface7::SetFontTransparency(Flag transparent) {
  transparent_ = transparent;
  standing_.clear();
}

void DirectDrawSurface7::DrawText(i32 left, i32 top, const std::string& text, Flag /*atCursor*/) {
  if (text.empty()) return;
  const TextPicture& picture = textPicture(font_.name, font_.size, scale_, text);
  const i32 x = edge(left, scale_);
  const i32 y = edge(top, scale_);
  const Rect shown =
      clipped({x, y, x + picture.width, y + picture.height}, pixelWidth_, pixelHeight_);
  if (shown.left >= shown.right || shown.top >= shown.bottom) return;

  const auto length = static_cast<std::size_t>(shown.right - shown.left);
  const auto rowAt = [&](i32 row) { return &pixels_[area(pixelWidth_, row)] + shown.left; };
  const auto known =
      std::find_if(standing_.begin(), standing_.end(), [&](const StandingText& standing) {
        return standing.x == x && standing.y == y && standing.text == text;
      });
  if (known != standing_.end()) {
    bool stands = true;
    const u32* standing = known->pixels.data();
    for (i32 row = shown.top; row < shown.bottom && stands; ++row, standing += length) {
      stands = std::equal(standing, standing + length, rowAt(row));
    }
    if (stands) return;
  }

  StandingText drawn{x, y, text, {}};
  for (i32 row = shown.top; row < shown.bottom; ++row) {
    u32* to = rowAt(row);
    const unsigned char* coverage =
        &picture.coverage[static_cast<std::size_t>(row - y) * picture.width + (shown.left - x)];
    for (std::size_t i = 0; i < length; ++i) {
      const u32 under = transparent_ != False ? to[i] : 0;
      if (coverage[i] != 0 || transparent_ == False) {
        const u32 over = faded(static_cast<u32>(foreColor_) | opaqueBits, coverage[i]);
        to[i] = laidOver(under, over) & colorBits;
      }
    }
    drawn.pixels.insert(drawn.pixels.end(), to, to + length);
  }
  changed();
  if (known != standing_.end()) {
    *known = std::move(drawn);
  } else if (standing_.size() < mostStanding) {
    standing_.push_back(std::move(drawn));
  } else {
    standing_[nextStanding_++ % mostStanding] = std::move(drawn);
  }
}

Surface DirectDrawSurface7::GetAttachedSurface(i32 /*caps*/) { return backBuffer_; }

void DirectDrawSurface7::attachBackBuffer(Surface backBuffer) {
  backBuffer_ = std::move(backBuffer);
}

void DirectDrawSurface7::Flip(const Surface& overrideSurface, i32 /*flags*/) {
  const Surface& shown = overrideSurface ? overrideSurface : backBuffer_;
  if (!shown) {
    throw RuntimeError(ErrorNumber::serviceFailed, "Flip: the surface has no back buffer.");
  }
  showPicture(shown->pixels(), shown->pixelWidth(), shown->pixelHeight());
  const double wanted = screenScale();
  if (shown->scale() != wanted) shown->setScale(wanted);
}

}  // namespace glonks
