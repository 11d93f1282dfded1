#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/types.h"
#include "present/services/picturesource.h"
#include "present/services/raster.h"
#include "present/services/rect.h"

// Inside the services: what is drawn on.
namespace glonks {

struct GameFont {
  std::string name;
  i32 size = 0;  // points; 72 are 96 logical pixels

  friend bool operator==(const GameFont&, const GameFont&) = default;
};

// One step of drawing, in logical places.
struct DrawStep {
  enum class Kind { fill, picture, text };
  Kind kind = Kind::fill;
  Rect to;  // of a text, its left and top
  // A picture's part, opaque or with what can be seen through.
  std::shared_ptr<PictureSource> source;
  Rect from;
  bool keyed = false;
  // A text.
  std::string text;
  GameFont font;
  bool boxed = false;  // on a black box
  i32 color = 0;       // of the text, or of a fill

  friend bool operator==(const DrawStep&, const DrawStep&) = default;
};

// A black surface that is drawn on. Steps are carried out when the pixels are asked for, and only
// where they lead to something else than those of the time before: most of a game's picture is
// drawn in the same way frame after frame. Places are logical: `scale` pixels, which may be a
// fraction, lie along each logical one. Edges are rounded to pixels, so what meets logically meets
// in pixels too.
class Canvas {
 public:
  Canvas(i32 width, i32 height, double scale);

  double scale() const { return scale_; }
  // The same steps at another scale. Only while the changes that they led to have been taken.
  void setScale(double scale);

  // Adds a step, cut off at the edges. False if nothing of it lies on the canvas. A text that was
  // drawn in the same way, with nothing on it since, stays as it is: its smooth edges don't get
  // thicker. Raises serviceFailed if a text's font can't be had.
  bool draw(DrawStep step);

  // The pixels, 0x00RRGGBB; they change with the next call.
  std::shared_ptr<const Raster> raster();

  // The parts of the pixels that have changed since the last call; the pixels are up to date after
  // it.
  std::vector<Rect> takeChanges();

  // The pixels as they were at the last call of takeChanges; they change with the next call.
  std::shared_ptr<const Raster> takenRaster();

  // Carries out, early, the steps since takeChanges where it has found a change: there the next
  // picture will most likely differ too. Does nothing when another scene has begun, which is when
  // what covers the whole canvas isn't the same as then. For the time when nothing else is due.
  void composeAhead();

 private:
  struct Entry {
    DrawStep step;
    Rect area;  // pixels, not cut off
    u64 digest;
  };
  struct Part {
    Rect area;
    u32 kind;
  };

  // What lies under a step and can't be seen.
  class Cover {
   public:
    explicit Cover(const Entry& entry);
    // False too if it can't be told quickly.
    bool hides(const Rect& part) const;

   private:
    Rect area_;
    const PreparedPicture* picture_;  // of a keyed one
  };

  void setUp();
  Rect areaOf(const DrawStep& step) const;
  static const PreparedPicture& preparedFor(const Entry& entry);
  bool standsAlready(const Entry& entry) const;
  void flatten();
  void update();
  void carryOut(const Entry& entry, const Rect& part);
  Rect tilesOf(const Rect& area) const;
  std::size_t tileAt(i32 column, i32 row) const {
    return Raster::size(tileColumns_, row) + static_cast<std::size_t>(column);
  }
  Rect placeOf(i32 column, i32 row) const;
  void compose(const std::vector<Entry>& entries, const std::vector<u32>& where);
  std::vector<Part> partsOf(const std::vector<u32>& kinds) const;

  i32 width_;  // logical
  i32 height_;
  double scale_;
  std::vector<Entry> entries_;  // the first covers everything, unless the canvas is empty
  bool upToDate_ = false;       // with all steps
  bool ahead_ = false;          // with all steps where changes were found
  std::shared_ptr<Raster> raster_;
  i32 tileColumns_ = 0;
  i32 tileRows_ = 0;
  std::vector<u64> tiles_;  // what each tile shows: a digest of the steps that can be seen in it
  // At the last look at changes: the steps (none once another scene has begun), the tiles, and 1
  // where a tile had changed.
  std::vector<Entry> taken_;
  std::vector<u64> takenTiles_;
  std::vector<u32> changed_;
};

}  // namespace glonks
