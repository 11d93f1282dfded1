#include "base/randomgenerator.h"

namespace glonks {

void RandomGenerator::randomize(i32 number) {
  const auto first = static_cast<u32>(engine_());
  const auto second = static_cast<u32>(engine_());
  std::seed_seq mixed{first, second, static_cast<u32>(number)};
  engine_.seed(mixed);
}

float RandomGenerator::next() {
  const auto bits = static_cast<u32>(engine_()) >> 8;
  return static_cast<float>(bits) * 0x1p-24F;
}

}  // namespace glonks
