#pragma once

namespace glonks {

// Module mInit: makes a clean game. Empties board and lists, resets counters and level fields, and
// loads all samples and pictures. Needs initDX, themeName and the selection in tMode. Raises as
// loadSamples and loadPictures do.
void initVariables();

}  // namespace glonks
