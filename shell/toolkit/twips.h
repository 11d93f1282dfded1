#pragma once

#include "base/types.h"

namespace glonks {

inline constexpr i32 twipsPerPixel = 15;  // logical pixels; lengths of controls are in twips

}  // namespace glonks
