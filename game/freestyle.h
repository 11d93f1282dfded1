#pragma once

namespace glonks {

// Plays a Freestyle game from its first frame to its last. Needs initVariables, loadPieces and
// loadLevel. Returns when gameOver is found set at the top of a pass.
void play();

}  // namespace glonks
