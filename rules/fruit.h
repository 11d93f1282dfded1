#pragma once

namespace glonks {

// Turns every Glonk of the game into fruit, worth 100 points more. An error in it ends the game.
void fruitize();

}  // namespace glonks
