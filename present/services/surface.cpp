#include "present/services/surface.h"

#include <utility>

#include "base/errors.h"
#include "present/services/gamefont.h"
#include "present/services/screen.h"

namespace glonks {
namespace {

constexpr i32 drawn = 0;
constexpr i32 nothingDrawn = 1;
constexpr i32 largestBlit = 8192;  // logical pixels of width or height

}  // namespace

DirectDrawSurface7::DirectDrawSurface7(i32 width, i32 height, double scale)
    : width_(width), height_(height), canvas_(std::make_shared<Canvas>(width, height, scale)) {}

DirectDrawSurface7::DirectDrawSurface7(std::shared_ptr<PictureSource> picture)
    : width_(picture->width()), height_(picture->height()), picture_(std::move(picture)) {}

DirectDrawSurface7::~DirectDrawSurface7() = default;

double DirectDrawSurface7::scale() const { return canvas_->scale(); }

std::shared_ptr<const Raster> DirectDrawSurface7::raster() const { return canvas_->raster(); }

void DirectDrawSurface7::SetColorKey(i32 flags, const ColorKey& key) {
  hasKey_ = (flags & sourceBlitKey) != 0;
  key_ = key;
  if (picture_ && hasKey_) picture_->setKey(key.low, key.high);
}

// What a blit from here takes; of a surface to draw on, how it looks now.
std::shared_ptr<PictureSource> DirectDrawSurface7::source() const {
  if (picture_) return picture_;
  auto source = std::make_shared<PictureSource>(*canvas_->raster(), canvas_->scale());
  if (hasKey_) source->setKey(key_.low, key_.high);
  return source;
}

i32 DirectDrawSurface7::add(DrawStep step) {
  return canvas_ && canvas_->draw(std::move(step)) ? drawn : nothingDrawn;
}

i32 DirectDrawSurface7::Blt(const Rect& to, const Surface& source, const Rect& from, i32 flags) {
  if (!source) return nothingDrawn;
  const Rect whole{0, 0, source->width(), source->height()};
  DrawStep step;
  step.kind = DrawStep::Kind::picture;
  step.to = to == Rect{} ? Rect{0, 0, width_, height_} : to;
  step.from = from == Rect{} ? whole : from;
  const bool tooLarge =
      step.to.right - step.to.left > largestBlit || step.to.bottom - step.to.top > largestBlit;
  if (tooLarge || isEmpty(step.to) || isEmpty(step.from)) return nothingDrawn;
  step.source = source->source();
  step.keyed = (flags & bltKeyed) == bltKeyed && (source->hasKey_ || step.source->hasAlpha());
  return add(std::move(step));
}

void DirectDrawSurface7::ComposeAhead() { canvas_->composeAhead(); }

i32 DirectDrawSurface7::BltColorFill(const Rect& to, i32 color) {
  DrawStep step;
  step.to = to;
  step.color = color;
  return add(std::move(step));
}

void DirectDrawSurface7::SetFont(const GameFont& font) {
  loadFont(font.name, font.size, scale());
  font_ = font;
}

void DirectDrawSurface7::SetForeColor(i32 color) { foreColor_ = color; }

void DirectDrawSurface7::SetFontTransparency(Flag transparent) { transparent_ = transparent; }

void DirectDrawSurface7::DrawText(i32 x, i32 y, const std::string& text, Flag /*atCursor*/) {
  if (text.empty()) return;
  DrawStep step;
  step.kind = DrawStep::Kind::text;
  step.to = {x, y, 0, 0};
  step.text = text;
  step.font = font_;
  step.boxed = transparent_ == False;
  step.color = foreColor_;
  add(std::move(step));
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
  const std::shared_ptr<Canvas> canvas = shown->canvas_;
  const std::vector<Rect> changes = canvas->takeChanges();
  showPicture({canvas->raster(), changes, [canvas] { return canvas->takenRaster(); }});
  const double wanted = screenScale();
  if (canvas->scale() != wanted) canvas->setScale(wanted);
}

}  // namespace glonks
