#pragma once

#include <optional>

namespace glonks {

// What this process has used so far.
struct Spent {
  double cpu = 0;                 // seconds
  double peakMemory = 0;          // bytes
  std::optional<double> wakeups;  // times that a thread went on after waiting, if the system counts
};
Spent spentSoFar();

}  // namespace glonks
