#pragma once

#include "player/boardview.h"

// What to do next.
namespace glonks {

// How a player thinks ahead.
struct Foresight {
  i32 keyPause = 0;       // ms that a key takes
  i32 slides = 1;         // columns by which a row is turned at most before the next one
  i32 turns = 1;          // rows turned, one after the other
  i32 kept = 1;           // boards that are thought on from, after each turn
  bool lineUp = false;    // plans runs up a column from turns of all their rows
  bool incoming = false;  // counts on where and when pieces in flight come down
  bool judges = false;    // sees more in a board than pairs and high columns
};

// A row to turn first.
struct Plan {
  i32 row = 0;
  i32 steps = 0;  // to the right; below 0 to the left; 0: nothing is worth doing
};

Plan bestPlan(const BoardView& view, const Foresight& foresight);

}  // namespace glonks
