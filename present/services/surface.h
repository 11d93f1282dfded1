#pragma once

#include <memory>
#include <string>

#include "base/types.h"
#include "present/services/canvas.h"
#include "present/services/picturesource.h"
#include "present/services/rect.h"

// Surfaces: pictures in memory that can be drawn on and blitted to each other.
namespace glonks {

// A colour of three parts from 0 to 255, as a 32-bit number 0x00RRGGBB.
constexpr i32 RGB(i32 red, i32 green, i32 blue) { return red << 16 | green << 8 | blue; }

// The range of colours that a keyed blit leaves out.
struct ColorKey {
  i32 low = 0;
  i32 high = 0;
};

struct SurfaceDesc {
  i32 flags = 0;  // 0x1 caps, 0x20 back-buffer count
  i32 caps = 0;   // 0x4 back buffer, 0x8 complex, 0x10 flip, 0x200 primary
  i32 backBufferCount = 0;
  i32 width = 0;  // pixels
  i32 height = 0;
};

// Flags of Blt.
inline constexpr i32 bltOpaque = 0x1000000;  // wait
inline constexpr i32 bltKeyed = 0x1008000;   // wait, source key
inline constexpr i32 flipWait = 1;
inline constexpr i32 sourceBlitKey = 8;

class DirectDrawSurface7;
using Surface = std::shared_ptr<DirectDrawSurface7>;

// A surface to draw on, or the picture of a file, which isn't drawn on. Places and sizes are
// logical, as told in canvas.h.
class DirectDrawSurface7 {
 public:
  // A black surface to draw on.
  DirectDrawSurface7(i32 width, i32 height, double scale = 1);
  explicit DirectDrawSurface7(std::shared_ptr<PictureSource> picture);
  ~DirectDrawSurface7();
  DirectDrawSurface7(const DirectDrawSurface7&) = delete;
  DirectDrawSurface7& operator=(const DirectDrawSurface7&) = delete;

  i32 width() const { return width_; }
  i32 height() const { return height_; }

  // Of a surface to draw on: the pixels to a logical one, each way, and all pixels, 0x00RRGGBB.
  double scale() const;
  std::shared_ptr<const Raster> raster() const;

  // `flags` 8, source blit: pixels of the key's colours are left out of keyed blits from here,
  // unless the picture says itself what can be seen through.
  void SetColorKey(i32 flags, const ColorKey& key);

  // Draws the rectangle `from` of `source` into the rectangle `to` of this surface, scaled smoothly
  // where the sizes differ, and cut off at this surface's edges. An empty source draws nothing.
  // Returns 0, or another status if nothing could be drawn.
  i32 Blt(const Rect& to, const Surface& source, const Rect& from, i32 flags);

  // Fills a rectangle with one colour.
  i32 BltColorFill(const Rect& to, i32 color);

  // The font of DrawText. Raises serviceFailed if the system has none at all.
  void SetFont(const GameFont& font);
  void SetForeColor(i32 color);
  // True: no box behind the text. False: a black one.
  void SetFontTransparency(Flag transparent);

  // One line of text with its top left at (x, y), set at the size that the scale asks for. Drawing
  // a text again where it stands already changes nothing, so its smooth edges don't get thicker.
  // Raises serviceFailed if the font can't be had.
  void DrawText(i32 x, i32 y, const std::string& text, Flag atCursor);

  // Of a surface to draw on: works out, as far as that is likely to be of use, what has been drawn
  // since it was shown. It changes nothing that can be seen; it spares the next Flip the time.
  void ComposeAhead();

  // A primary surface's: its back buffer (`caps` 4), and showing that on the screen. If the screen
  // asks for another scale after that, the back buffer takes it. Flip raises serviceFailed if there
  // is no back buffer or the screen can't show it.
  Surface GetAttachedSurface(i32 caps);
  void attachBackBuffer(Surface backBuffer);
  void Flip(const Surface& overrideSurface, i32 flags);

 private:
  std::shared_ptr<PictureSource> source() const;
  i32 add(DrawStep step);

  i32 width_;
  i32 height_;
  std::shared_ptr<Canvas> canvas_;          // of a surface to draw on
  std::shared_ptr<PictureSource> picture_;  // of a file's
  bool hasKey_ = false;
  ColorKey key_;
  Surface backBuffer_;
  GameFont font_;
  i32 foreColor_ = 0;
  Flag transparent_ = True;
};

}  // namespace glonks
