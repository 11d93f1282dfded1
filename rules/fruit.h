#pragma once

namespace glonks {

// Turns every Glonk of the game into fruit, worth fruitPoints more. An error ends the game: it
// stands in the log, and destroy has run.
void fruitize();

}  // namespace glonks
