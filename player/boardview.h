#pragma once

#include <map>
#include <vector>

#include "player/position.h"

// What a person sees of the game that is being played, and remembers of it.
namespace glonks {

struct SeenFalling {
  Kind kind = 0;
  i32 column = 0;
  bool isBall = false;
  i32 landsIn = 0;  // ms, about, if its column stays as it is
};

struct BoardView {
  Position position;                  // pieces at rest
  std::vector<SeenFalling> incoming;  // pieces in flight for the first time, by when they land
  bool settling = false;              // pieces that had been at rest are coming down again
  i32 pointer = 0;                    // row
};

// An eye that follows a game from its start.
class Eye {
 public:
  // Takes in what has come since the last look; to be called in each pass.
  void follow();

  BoardView look() const;

 private:
  bool isRipe(const Piece& bomb) const;

  // Since when each Bomb has been in view. The time at which it goes off, which nobody sees, serves
  // for nothing but to know a Bomb again, as an eye that follows it does.
  std::map<i32, i32> bombs_;
};

}  // namespace glonks
