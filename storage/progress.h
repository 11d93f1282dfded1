#pragma once

namespace glonks {

// Opens the level that the one just won names as its reward, if it isn't open already.
void awardLevel();

}  // namespace glonks
