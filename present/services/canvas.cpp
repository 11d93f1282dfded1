#include "present/services/canvas.h"

#include <algorithm>
#include <utility>

#include "present/services/gamefont.h"
#include "present/services/pixels.h"

namespace glonks {
namespace {

constexpr i32 tileWidth = 32;  // pixels
constexpr i32 tileHeight = 32;
constexpr std::size_t mostEntries = 2000;  // several times those of the busiest frame

// Mixes a number into a digest; the order counts. The constants are those of the hash FNV-1a and of
// the mixing step of splitmix64.
u64 mixedIn(u64 digest, u64 number) {
  digest = (digest ^ number) * 0x100000001B3U;
  digest = (digest ^ digest >> 30U) * 0xBF58476D1CE4E5B9U;
  return digest ^ digest >> 27U;
}

u64 mixedIn(u64 digest, const Rect& rect) {
  for (const i32 side : {rect.left, rect.top, rect.right, rect.bottom}) {
    digest = mixedIn(digest, static_cast<u64>(static_cast<i64>(side)));
  }
  return digest;
}

u64 mixedIn(u64 digest, const std::string& text) {
  for (const char c : text) digest = mixedIn(digest, static_cast<unsigned char>(c));
  return mixedIn(digest, text.size());
}

u64 digestOf(const DrawStep& step) {
  u64 digest = mixedIn(static_cast<u64>(step.kind), step.to);
  digest = mixedIn(digest, static_cast<u64>(static_cast<u32>(step.color)) << 2U |
                               (step.keyed ? 1U : 0U) | (step.boxed ? 2U : 0U));
  if (step.source) digest = mixedIn(mixedIn(digest, step.source->number()), step.from);
  if (step.kind != DrawStep::Kind::text) return digest;
  digest = mixedIn(mixedIn(digest, step.text), step.font.name);
  return mixedIn(digest, static_cast<u64>(step.font.size));
}

void fill(Raster& raster, const Rect& part, i32 color) {
  for (i32 y = part.top; y < part.bottom; ++y) {
    u32* row = raster.row(y);
    std::fill(row + part.left, row + part.right, static_cast<u32>(color));
  }
}

}  // namespace

Canvas::Canvas(i32 width, i32 height, double scale)
    : width_(width), height_(height), scale_(scale) {
  setUp();
  draw({});
}

void Canvas::setUp() {
  raster_ = std::make_shared<Raster>(edgeAt(width_, scale_), edgeAt(height_, scale_));
  tileColumns_ = (raster_->width + tileWidth - 1) / tileWidth;
  tileRows_ = (raster_->height + tileHeight - 1) / tileHeight;
  tiles_.assign(Raster::size(tileColumns_, tileRows_), 0);
  changed_.assign(tiles_.size(), 0);
  upToDate_ = false;
}

void Canvas::setScale(double scale) {
  scale_ = scale;
  setUp();
  for (Entry& entry : entries_) entry.area = areaOf(entry.step);
}

Rect Canvas::areaOf(const DrawStep& step) const {
  if (step.to == Rect{} && step.kind != DrawStep::Kind::text) return raster_->whole();
  Rect area = edgesAt(step.to, scale_);
  if (step.kind != DrawStep::Kind::text || area.left >= raster_->width) return area;
  const TextPicture& picture = textPicture(step.font.name, step.font.size, scale_, step.text);
  area.right = area.left + picture.width;
  area.bottom = area.top + picture.height;
  return area;
}

bool Canvas::covers(const Entry& entry, const Rect& part) const {
  if (entry.step.kind == DrawStep::Kind::text || !contains(entry.area, part)) return false;
  if (!entry.step.keyed) return true;
  return preparedFor(entry).hides({part.left - entry.area.left, part.top - entry.area.top,
                                   part.right - entry.area.left, part.bottom - entry.area.top});
}

const PreparedPicture& Canvas::preparedFor(const Entry& entry) {
  const Rect& area = entry.area;
  return entry.step.source->prepared(entry.step.from, area.right - area.left,
                                     area.bottom - area.top, entry.step.keyed);
}

bool Canvas::standsAlready(const Entry& entry) const {
  if (entry.step.kind != DrawStep::Kind::text) return false;
  for (auto known = entries_.rbegin(); known != entries_.rend(); ++known) {
    if (known->digest == entry.digest && known->step == entry.step) return true;
    if (!isEmpty(common(known->area, entry.area))) return false;
  }
  return false;
}

bool Canvas::draw(DrawStep step) {
  const Rect area = areaOf(step);
  if (isEmpty(common(area, raster_->whole()))) return false;
  const u64 digest = digestOf(step);
  Entry entry{std::move(step), area, digest};
  if (standsAlready(entry)) return true;
  if (covers(entry, raster_->whole())) {
    entries_.clear();
  } else if (entries_.size() >= mostEntries) {
    flatten();
  }
  entries_.push_back(std::move(entry));
  upToDate_ = false;
  return true;
}

// Puts the picture that all steps have led to in their place.
void Canvas::flatten() {
  update();
  DrawStep step;
  step.kind = DrawStep::Kind::picture;
  step.source = std::make_shared<PictureSource>(*raster_, scale_);
  step.from = {0, 0, step.source->width(), step.source->height()};
  draw(std::move(step));
}

std::shared_ptr<const Raster> Canvas::raster() {
  update();
  return raster_;
}

std::vector<Rect> Canvas::takeChanges() {
  update();
  std::vector<Rect> parts = partsWhere([this](std::size_t tile) { return changed_[tile] != 0; });
  std::fill(changed_.begin(), changed_.end(), 0);
  return parts;
}

// The tiles that an area touches: columns and rows, right and bottom exclusive.
Rect Canvas::tilesOf(const Rect& area) const {
  const Rect shown = common(area, raster_->whole());
  if (isEmpty(shown)) return {};
  return {shown.left / tileWidth, shown.top / tileHeight, (shown.right - 1) / tileWidth + 1,
          (shown.bottom - 1) / tileHeight + 1};
}

// All tiles of which something is true, joined along rows, and rows of the same width joined.
template <typename Is>
std::vector<Rect> Canvas::partsWhere(Is is) const {
  std::vector<Rect> parts;
  for (i32 row = 0; row < tileRows_; ++row) {
    const i32 top = row * tileHeight;
    const i32 bottom = std::min(top + tileHeight, raster_->height);
    for (i32 column = 0; column < tileColumns_;) {
      const i32 begin = column;
      const std::size_t first = Raster::size(tileColumns_, row);
      while (column < tileColumns_ && is(first + static_cast<std::size_t>(column))) ++column;
      if (column == begin) {
        ++column;
        continue;
      }
      const i32 left = begin * tileWidth;
      const i32 right = std::min(column * tileWidth, raster_->width);
      const auto above = std::find_if(parts.begin(), parts.end(), [&](const Rect& part) {
        return part.bottom == top && part.left == left && part.right == right;
      });
      if (above != parts.end()) {
        above->bottom = bottom;
      } else {
        parts.push_back({left, top, right, bottom});
      }
    }
  }
  return parts;
}

void Canvas::update() {
  if (upToDate_) return;
  std::vector<u64> wanted(tiles_.size(), 1);
  for (const Entry& entry : entries_) {
    const Rect touched = tilesOf(entry.area);
    for (i32 row = touched.top; row < touched.bottom; ++row) {
      u64* tile = &wanted[Raster::size(tileColumns_, row)];
      for (i32 column = touched.left; column < touched.right; ++column) {
        tile[column] = mixedIn(tile[column], entry.digest);
      }
    }
  }
  const auto differs = [&](std::size_t tile) { return wanted[tile] != tiles_[tile]; };
  for (const Rect& part : partsWhere(differs)) redraw(part);
  for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
    if (differs(tile)) changed_[tile] = 1;
  }
  tiles_ = std::move(wanted);
  upToDate_ = true;
}

void Canvas::redraw(const Rect& part) {
  auto entry = entries_.end();
  while (entry != entries_.begin()) {  // what lies under a cover isn't seen
    --entry;
    if (covers(*entry, part)) break;
  }
  for (; entry != entries_.end(); ++entry) {
    const Rect shown = common(entry->area, part);
    if (!isEmpty(shown)) carryOut(*entry, shown);
  }
}

void Canvas::carryOut(const Entry& entry, const Rect& part) {
  const DrawStep& step = entry.step;
  const Rect& area = entry.area;
  if (step.kind == DrawStep::Kind::fill) {
    fill(*raster_, part, step.color);
  } else if (step.kind == DrawStep::Kind::picture) {
    preparedFor(entry).draw(*raster_, area.left, area.top, part);
  } else {
    if (step.boxed) fill(*raster_, part, 0);
    const TextPicture& picture = textPicture(step.font.name, step.font.size, scale_, step.text);
    for (i32 y = part.top; y < part.bottom; ++y) {
      u32* row = raster_->row(y);
      const unsigned char* coverage =
          picture.coverage.data() + Raster::size(picture.width, y - area.top);
      for (i32 x = part.left; x < part.right; ++x) {
        const u32 covered = coverage[x - area.left];
        if (covered == 0) continue;
        const u32 over = faded(static_cast<u32>(step.color) | opaqueBits, covered);
        row[x] = laidOver(row[x], over) & colorBits;
      }
    }
  }
}

}  // namespace glonks
