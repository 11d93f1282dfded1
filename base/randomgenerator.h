#pragma once

#include <random>

#include "base/types.h"

namespace glonks {

// A deterministic random generator: the same calls from construction on give the same numbers on
// every machine (std::mt19937 and std::seed_seq are fixed to the bit by the language standard).
class RandomGenerator {
 public:
  // Mixes `number` into the state that it finds: the same number given later starts another
  // sequence.
  void randomize(i32 number);

  // The next number in [0, 1): a multiple of 2^-24, so exact in single precision.
  float next();

 private:
  std::mt19937 engine_;
};

}  // namespace glonks
