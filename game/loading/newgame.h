#pragma once

namespace glonks {

// Makes a clean game: empties the board and the lists, resets counters and level fields, and loads
// all samples and pictures. Needs initDX, themeName and gameMode. Raises as loadSamples and
// loadPictures do.
void initVariables();

}  // namespace glonks
