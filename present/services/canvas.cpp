#include "present/services/canvas.h"

#include <algorithm>
#include <utility>

#include "present/services/gamefont.h"
#include "present/services/pixels.h"

namespace glonks {
namespace {

constexpr i32 tileWidth = 32;  // pixels
constexpr i32 tileHeight = 32;
constexpr u64 nothing = 1;                 // a tile's digest before the first step
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
  takenTiles_.assign(tiles_.size(), nothing);
  changed_.assign(tiles_.size(), 0);
  upToDate_ = false;
}

void Canvas::setScale(double scale) {
  scale_ = scale;
  setUp();
  for (Entry& entry : entries_) entry.area = areaOf(entry.step);
  taken_ = entries_;
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

Canvas::Cover::Cover(const Entry& entry)
    : area_(entry.step.kind == DrawStep::Kind::text ? Rect{} : entry.area),
      picture_(entry.step.keyed ? &preparedFor(entry) : nullptr) {}

bool Canvas::Cover::hides(const Rect& part) const {
  if (!contains(area_, part)) return false;
  return picture_ == nullptr || picture_->hides({part.left - area_.left, part.top - area_.top,
                                                 part.right - area_.left, part.bottom - area_.top});
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
  if (Cover(entry).hides(raster_->whole())) {
    // Another scene: the pictures of the old one aren't kept any longer.
    if (!taken_.empty() && taken_.front().digest != entry.digest) taken_.clear();
    entries_.clear();
  } else if (entries_.size() >= mostEntries) {
    flatten();
  }
  entries_.push_back(std::move(entry));
  upToDate_ = false;
  ahead_ = false;
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
  for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
    changed_[tile] = tiles_[tile] == takenTiles_[tile] ? 0 : 1;
  }
  taken_ = entries_;
  takenTiles_ = tiles_;
  std::vector<Rect> changes;
  for (const Part& part : partsOf(changed_)) changes.push_back(part.area);
  return changes;
}

std::shared_ptr<const Raster> Canvas::takenRaster() {
  if (tiles_ != takenTiles_) {
    compose(taken_, std::vector<u32>(tiles_.size(), 1));
    upToDate_ = false;
  }
  return raster_;
}

// The tiles that an area touches: columns and rows, right and bottom exclusive.
Rect Canvas::tilesOf(const Rect& area) const {
  const Rect shown = common(area, raster_->whole());
  if (isEmpty(shown)) return {};
  return {shown.left / tileWidth, shown.top / tileHeight, (shown.right - 1) / tileWidth + 1,
          (shown.bottom - 1) / tileHeight + 1};
}

Rect Canvas::placeOf(i32 column, i32 row) const {
  return common(
      {column * tileWidth, row * tileHeight, (column + 1) * tileWidth, (row + 1) * tileHeight},
      raster_->whole());
}

// All tiles of a kind other than 0: neighbours of the same kind joined along rows, and rows of the
// same width joined.
std::vector<Canvas::Part> Canvas::partsOf(const std::vector<u32>& kinds) const {
  std::vector<Part> parts;
  for (i32 row = 0; row < tileRows_; ++row) {
    const i32 top = row * tileHeight;
    const i32 bottom = std::min(top + tileHeight, raster_->height);
    const u32* tiles = &kinds[Raster::size(tileColumns_, row)];
    for (i32 column = 0; column < tileColumns_;) {
      const i32 begin = column;
      const u32 kind = tiles[begin];
      while (column < tileColumns_ && tiles[column] == kind) ++column;
      if (kind == 0) continue;
      const i32 left = begin * tileWidth;
      const i32 right = std::min(column * tileWidth, raster_->width);
      const auto above = std::find_if(parts.begin(), parts.end(), [&](const Part& part) {
        return part.kind == kind && part.area.bottom == top && part.area.left == left &&
               part.area.right == right;
      });
      if (above != parts.end()) {
        above->area.bottom = bottom;
      } else {
        parts.push_back({{left, top, right, bottom}, kind});
      }
    }
  }
  return parts;
}

// Makes the tiles of which `where` isn't 0 show what some steps lead to. What is hidden doesn't
// count: a tile's digest begins anew with each step that hides all before it there. Where a tile
// stands as some of the steps have left it, only the others are carried out.
void Canvas::compose(const std::vector<Entry>& entries, const std::vector<u32>& where) {
  std::vector<u64> wanted(tiles_.size(), nothing);
  std::vector<u32> done(tiles_.size(), 1);  // steps that a tile shows already, and 1
  for (u32 number = 1; number <= entries.size(); ++number) {
    const Entry& entry = entries[number - 1];
    const Rect touched = tilesOf(entry.area);
    const Cover cover(entry);
    for (i32 row = touched.top; row < touched.bottom; ++row) {
      for (i32 column = touched.left; column < touched.right; ++column) {
        const std::size_t tile = tileAt(column, row);
        if (cover.hides(placeOf(column, row))) {
          wanted[tile] = nothing;
          done[tile] = 1;
        }
        wanted[tile] = mixedIn(wanted[tile], entry.digest);
        if (wanted[tile] == tiles_[tile]) done[tile] = number + 1;
      }
    }
  }
  for (std::size_t tile = 0; tile < tiles_.size(); ++tile) {
    if (where[tile] == 0 || wanted[tile] == tiles_[tile]) {
      done[tile] = 0;
    } else {
      tiles_[tile] = wanted[tile];
    }
  }
  for (const Part& part : partsOf(done)) {
    auto entry = entries.begin() + part.kind - 1;
    if (part.kind == 1) {  // what lies under a cover isn't seen
      entry = entries.end();
      while (entry != entries.begin() && !Cover(*--entry).hides(part.area)) {
      }
    }
    for (; entry != entries.end(); ++entry) {
      const Rect shown = common(entry->area, part.area);
      if (!isEmpty(shown)) carryOut(*entry, shown);
    }
  }
}

void Canvas::update() {
  if (upToDate_) return;
  compose(entries_, std::vector<u32>(tiles_.size(), 1));
  upToDate_ = true;
  ahead_ = true;
}

void Canvas::composeAhead() {
  if (!ahead_ && !taken_.empty()) compose(entries_, changed_);
  ahead_ = true;
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
