#pragma once

#include <string>

#include "base/text.h"

// The lines of the goal display that grow with a level's names and numbers.
namespace glonks {

inline std::string countLine(const std::string& name, i32 count) {
  return name + "s:  " + signedNumber(count);
}

inline std::string scoreLine(i32 points, i32 goal) {
  return "Score: " + signedNumber(points) + "/" + signedNumber(goal);
}

}  // namespace glonks
