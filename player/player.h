#pragma once

#include "player/search.h"

// A player that plays through keys alone.
namespace glonks {

// DirectInput scan codes of the keys that it presses.
enum ScanCode : i32 { keyUp = 200, keyLeft = 203, keyRight = 205, keyDown = 208 };

// The key that a plan asks for next, and takes a step off once it is a turn; 0 when the plan has
// been carried out.
i32 nextKeyOf(Plan& plan);

struct Strength {
  const char* name;
  Foresight foresight;
};

// Presses nothing: what a level does by itself.
inline constexpr Strength idle = {"no key", {.keyPause = 450, .turns = 0}};
inline constexpr Strength beginner = {"beginner", {.keyPause = 450}};
inline constexpr Strength good = {"good",
                                  {.keyPause = 250,
                                   .slides = columnCount / 2,
                                   .turns = 3,
                                   .kept = 10,
                                   .lineUp = true,
                                   .incoming = true,
                                   .judges = true}};

class Player {
 public:
  explicit Player(const Strength& strength) : foresight_(strength.foresight) {}

  // The key to press now, 0 for none; to be asked in each pass of a game.
  i32 nextKey();

 private:
  const Foresight foresight_;
  Eye eye_;
  Plan plan_;
  i32 nextLook_ = 0;  // game tick before which nothing new is thought of
};

}  // namespace glonks
