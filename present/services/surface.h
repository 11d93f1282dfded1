#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/types.h"
#include "present/services/picturefile.h"
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

struct GameFont {
  std::string name;
  i32 size = 0;  // points; 72 are 96 pixels
};

// Flags of Blt.
inline constexpr i32 bltOpaque = 0x1000000;  // wait
inline constexpr i32 bltKeyed = 0x1008000;   // wait, source key
inline constexpr i32 flipWait = 1;
inline constexpr i32 sourceBlitKey = 8;

class DirectDrawSurface7;
using Surface = std::shared_ptr<DirectDrawSurface7>;

// Places and sizes are logical: `scale` pixels of a surface, which may be a fraction, lie along
// each logical one. Edges are rounded to pixels, so what meets logically meets on the surface too.
class DirectDrawSurface7 {
 public:
  // A black surface to draw on, of the given logical size.
  DirectDrawSurface7(i32 width, i32 height, double scale = 1);
  // The picture of a file. If it is so large that it is drawn whole or not at all, it is made ready
  // for surfaces of `targetScale` at once, and its own pixels are let go. Raises badFile.
  DirectDrawSurface7(PictureFile file, double targetScale);
  ~DirectDrawSurface7();
  DirectDrawSurface7(const DirectDrawSurface7&) = delete;
  DirectDrawSurface7& operator=(const DirectDrawSurface7&) = delete;

  i32 width() const { return width_; }
  i32 height() const { return height_; }

  double scale() const { return scale_; }
  // What is drawn is kept, scaled.
  void setScale(double scale);

  // The pixels of a surface to draw on: rows from the top, 0x00RRGGBB.
  i32 pixelWidth() const { return pixelWidth_; }
  i32 pixelHeight() const { return pixelHeight_; }
  const u32* pixels() const { return pixels_.data(); }
  u32 pixel(i32 x, i32 y) const { return pixels_[static_cast<std::size_t>(y) * pixelWidth_ + x]; }

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

  // A primary surface's: its back buffer (`caps` 4), and showing that on the screen. If the screen
  // asks for another scale after that, the back buffer takes it. Flip raises serviceFailed if there
  // is no back buffer or the screen can't show it.
  Surface GetAttachedSurface(i32 caps);
  void attachBackBuffer(Surface backBuffer);
  void Flip(const Surface& overrideSurface, i32 flags);

 private:
  struct Prepared;
  struct StandingText;

  Rect wholeIfZero(const Rect& rect) const;
  Rect onPixels(const Rect& rect) const;
  const Prepared& prepared(const Rect& from, i32 width, i32 height, bool keyed);
  std::vector<u32> cutOut(const Rect& from, bool keyed) const;
  bool isKey(u32 pixel) const;
  void take(Picture picture);
  void changed();

  i32 width_;
  i32 height_;
  double scale_;
  i32 pixelWidth_;
  i32 pixelHeight_;
  std::vector<u32> pixels_;  // of a picture: 0xAARRGGBB, colours multiplied by alpha
  PictureFile file_;         // what a picture's pixels can be had from again
  bool isPicture_ = false;
  bool hasAlpha_ = false;
  bool hasKey_ = false;
  ColorKey key_;
  std::vector<Prepared> prepared_;  // what blits from here have used lately
  std::size_t nextPrepared_ = 0;
  Surface backBuffer_;
  GameFont font_;
  i32 foreColor_ = 0;
  Flag transparent_ = True;
  std::vector<StandingText> standing_;
  std::size_t nextStanding_ = 0;
};

}  // namespace glonks
