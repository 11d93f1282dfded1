#pragma once

#include "base/types.h"

// Who reads and writes on which text channel. Those with the same number are never open together.
// The log takes the lowest free one.
namespace glonks {

inline constexpr i16 pieceChannel = 3;
inline constexpr i16 levelChannel = 4;
inline constexpr i16 bandsChannel = 4;
inline constexpr i16 playersChannel = 4;  // all files of the player
inline constexpr i16 tipChannel = 7;
inline constexpr i16 sourceChannel = 24;  // a file that is being scrambled, unscrambled or salvaged
inline constexpr i16 targetChannel = 25;  // what it becomes

}  // namespace glonks
