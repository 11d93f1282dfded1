#include "present/services/surface.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>

#include "present/services/failure.h"
#include "present/services/gamefont.h"
#include "present/services/screen.h"
#include "present/services/sdlsurface.h"

namespace glonks {

// A part of a surface as one kind of blit needs it: stretched to the size on the target, and the
// runs of pixels that are to be copied. Blits repeat themselves frame after frame, so the last few
// are kept.
struct DirectDrawSurface7::Prepared {
  struct Run {
    i32 x;
    i32 y;
    i32 length;
  };
  Rect from;
  i32 width;
  i32 height;
  bool keyed;
  std::vector<u32> pixels;  // width * height
  std::vector<Run> runs;    // by rows from the top, within a row from the left
};

// A text that has been drawn, and the pixels that it left.
struct DirectDrawSurface7::StandingText {
  i32 x;
  i32 y;
  std::string text;
  std::vector<u32> pixels;
};

namespace {

constexpr std::size_t mostPrepared = 12;
constexpr std::size_t mostStanding = 32;

SdlSurface wrapped(std::vector<u32>& pixels, i32 width, i32 height) {
  return SdlSurface(SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), width, height, 32, width * 4,
                                                       SDL_PIXELFORMAT_RGB888));
}

// A picture stretched to another size: smoothly, or by the nearest pixels, so that none takes a
// mixture with a key colour.
std::vector<u32> stretched(std::vector<u32>& pixels, i32 width, i32 height, i32 newWidth,
                           i32 newHeight, bool smooth) {
  std::vector<u32> result(static_cast<std::size_t>(newWidth) * newHeight);
  const SdlSurface source = wrapped(pixels, width, height);
  const SdlSurface target = wrapped(result, newWidth, newHeight);
  const auto stretch = smooth ? SDL_SoftStretchLinear : SDL_SoftStretch;
  if (!source || !target || stretch(source.get(), nullptr, target.get(), nullptr) != 0) {
    fail(ErrorNumber::serviceFailed, "Blt: a picture can't be stretched");
  }
  return result;
}

u32 blended(u32 under, u32 over, u32 coverage) {
  u32 result = 0;
  for (u32 shift = 0; shift < 24; shift += 8) {
    const u32 a = under >> shift & 0xFFU;
    const u32 b = over >> shift & 0xFFU;
    result |= (a * (255 - coverage) + b * coverage + 127) / 255 << shift;
  }
  return result;
}

Rect clipped(const Rect& rect, i32 width, i32 height) {
  return {std::clamp(rect.left, 0, width), std::clamp(rect.top, 0, height),
          std::clamp(rect.right, 0, width), std::clamp(rect.bottom, 0, height)};
}

}  // namespace

DirectDrawSurface7::DirectDrawSurface7(i32 width, i32 height)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * height, 0) {}

DirectDrawSurface7::~DirectDrawSurface7() = default;

void DirectDrawSurface7::setPixels(std::vector<u32> pixels) {
  if (pixels.size() != pixels_.size()) {
    throw RuntimeError(ErrorNumber::badCall, "setPixels: the picture has another size.");
  }
  pixels_ = std::move(pixels);
  changed();
}

void DirectDrawSurface7::SetColorKey(i32 flags, const ColorKey& key) {
  hasKey_ = (flags & sourceBlitKey) != 0;
  key_ = key;
  changed();
}

bool DirectDrawSurface7::isKey(u32 pixel) const {
  const auto color = static_cast<i32>(pixel & 0xFFFFFFU);
  return color >= key_.low && color <= key_.high;
}

void DirectDrawSurface7::changed() {
  prepared_.clear();
  nextPrepared_ = 0;
}

Rect DirectDrawSurface7::wholeIfZero(const Rect& rect) const {
  return rect == Rect{} ? Rect{0, 0, width_, height_} : rect;
}

const DirectDrawSurface7::Prepared& DirectDrawSurface7::prepared(const Rect& from, i32 width,
                                                                 i32 height, bool keyed) {
  for (const Prepared& known : prepared_) {
    if (known.from == from && known.width == width && known.height == height &&
        known.keyed == keyed) {
      return known;
    }
  }
  Prepared fresh{from, width, height, keyed, {}, {}};
  const i32 fromWidth = from.right - from.left;
  const i32 fromHeight = from.bottom - from.top;
  // What lies outside the picture shows nothing.
  const u32 outside = keyed ? static_cast<u32>(key_.low) : 0;
  fresh.pixels.assign(static_cast<std::size_t>(fromWidth) * fromHeight, outside);
  const Rect inside = clipped(from, width_, height_);
  for (i32 y = inside.top; y < inside.bottom && inside.left < inside.right; ++y) {
    const u32* row = &pixels_[static_cast<std::size_t>(y) * width_];
    std::copy(row + inside.left, row + inside.right,
              &fresh.pixels[static_cast<std::size_t>(y - from.top) * fromWidth +
                            (inside.left - from.left)]);
  }
  if (fromWidth != width || fromHeight != height) {
    fresh.pixels = stretched(fresh.pixels, fromWidth, fromHeight, width, height, !keyed);
  }
  for (i32 y = 0; y < height; ++y) {
    const u32* row = &fresh.pixels[static_cast<std::size_t>(y) * width];
    for (i32 x = 0; x < width;) {
      const i32 start = x;
      const bool leftOut = keyed && isKey(row[x]);
      while (x < width && (keyed && isKey(row[x])) == leftOut) ++x;
      if (!leftOut) fresh.runs.push_back({start, y, x - start});
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
  const Rect target = wholeIfZero(to);
  const Rect part = source->wholeIfZero(from);
  const i32 width = target.right - target.left;
  const i32 height = target.bottom - target.top;
  if (width <= 0 || height <= 0 || width > largest || height > largest) return nothingDrawn;
  if (part.right <= part.left || part.bottom <= part.top) return nothingDrawn;
  const Rect shown = clipped(target, width_, height_);
  if (shown.left >= shown.right || shown.top >= shown.bottom) return nothingDrawn;
  const bool keyed = (flags & bltKeyed) == bltKeyed && source->hasKey_;

  const Prepared& picture = source->prepared(part, width, height, keyed);
  const auto copy = [&](i32 x, i32 y, i32 length) {
    std::memcpy(&pixels_[static_cast<std::size_t>(y + target.top) * width_ + (x + target.left)],
                &picture.pixels[static_cast<std::size_t>(y) * width + x],
                static_cast<std::size_t>(length) * sizeof(u32));
  };
  if (shown == target) {
    for (const Prepared::Run& run : picture.runs) copy(run.x, run.y, run.length);
  } else {
    const i32 left = shown.left - target.left;  // the part of the picture that shows
    const i32 right = shown.right - target.left;
    for (const Prepared::Run& run : picture.runs) {
      const i32 y = run.y + target.top;
      if (y < shown.top || y >= shown.bottom) continue;
      const i32 first = std::max(run.x, left);
      const i32 end = std::min(run.x + run.length, right);
      if (first < end) copy(first, run.y, end - first);
    }
  }
  changed();
  return 0;
}

i32 DirectDrawSurface7::BltColorFill(const Rect& to, i32 color) {
  const Rect area = clipped(wholeIfZero(to), width_, height_);
  for (i32 y = area.top; y < area.bottom; ++y) {
    u32* row = &pixels_[static_cast<std::size_t>(y) * width_];
    const auto length = static_cast<std::size_t>(std::max(0, area.right - area.left));
    if (color == 0) {  // each frame begins so, and this way takes half its time off
      std::memset(row + area.left, 0, length * sizeof(u32));
    } else {
      std::fill_n(row + area.left, length, static_cast<u32>(color));
    }
  }
  changed();
  return 0;
}

void DirectDrawSurface7::SetFont(const GameFont& font) {
  loadFont(font.name, font.size);
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

void DirectDrawSurface7::DrawText(i32 x, i32 y, const std::string& text, Flag /*atCursor*/) {
  if (text.empty()) return;
  const TextPicture& picture = textPicture(font_.name, font_.size, text);
  const Rect area = clipped({x, y, x + picture.width, y + picture.height}, width_, height_);
  if (area.left >= area.right || area.top >= area.bottom) return;

  const auto areaWidth = static_cast<std::size_t>(area.right - area.left);
  const auto rowAt = [&](i32 row) {
    return &pixels_[static_cast<std::size_t>(row) * width_ + area.left];
  };
  const auto known =
      std::find_if(standing_.begin(), standing_.end(), [&](const StandingText& standing) {
        return standing.x == x && standing.y == y && standing.text == text;
      });
  if (known != standing_.end()) {
    bool stands = true;
    const u32* left = known->pixels.data();
    for (i32 row = area.top; row < area.bottom && stands; ++row, left += areaWidth) {
      stands = std::equal(left, left + areaWidth, rowAt(row));
    }
    if (stands) return;
  }

  StandingText drawn{x, y, text, {}};
  for (i32 row = area.top; row < area.bottom; ++row) {
    u32* to = rowAt(row);
    const unsigned char* coverage =
        &picture.coverage[static_cast<std::size_t>(row - y) * picture.width + (area.left - x)];
    for (std::size_t i = 0; i < areaWidth; ++i) {
      const u32 under = transparent_ != False ? to[i] : 0;
      if (coverage[i] != 0 || transparent_ == False) {
        to[i] = blended(under, static_cast<u32>(foreColor_), coverage[i]);
      }
    }
    drawn.pixels.insert(drawn.pixels.end(), to, to + areaWidth);
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
  showPicture(shown->pixels());
}

}  // namespace glonks
