#pragma once

#include <string>
#include <vector>

#include "game/model/model.h"

namespace glonks {

// What can happen in a level with the pieces that come in it. Goods don't count: a player may have
// none.
class LevelReach {
 public:
  // A piece that comes. A piece that only comes by draw 0 because the level doesn't name it isn't
  // one: that is once in a thousand spawns, and no level is made for it. Gorgons are bred only
  // where one comes.
  void add(const Piece& piece) { pieces_.push_back(piece); }

  bool comes(const std::string& name) const;

  // Whether a piece of this name can come to rest.
  bool lands(const std::string& name) const;

  // Whether a piece of this name can be removed: by a slam, a Bomb, a Bowling Ball or a Pin. A
  // Bauble that leaves by its own timer isn't removed.
  bool canBeRemoved(const std::string& name) const;

  // At most so many pieces of a name come in `time`, with a spawn every `interval`, both in ms. See
  // docs/data-files.md for both bounds; they are infinite if a Pin comes, which may count often.
  double mostPieces(const std::string& name, double time, i32 interval) const;

  // At most so many points can be made in that time.
  double mostPoints(double time, i32 interval) const;

 private:
  template <typename Holds>
  bool some(Holds holds) const;
  bool some(Flag Piece::*flag) const;
  bool isRemovable(const Piece& piece) const;
  double spawns(double time, i32 interval) const;
  bool hasCocktails() const;

  std::vector<Piece> pieces_;
};

}  // namespace glonks
