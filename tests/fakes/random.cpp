#include "tests/fakes/random.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "base/randomgenerator.h"

namespace glonks {
namespace {
RandomGenerator generator;
bool generatorOn = false;
}  // namespace

namespace fake {

float drawFor(i32 result, i32 count) {
  return (static_cast<float>(result) + 0.5F) / static_cast<float>(count);
}

void queueDraw(i32 result, i32 count) { draws.push_back(drawFor(result, count)); }

void useGenerator() {
  generator = RandomGenerator();
  generatorOn = true;
}

void resetRandom() {
  draws.clear();
  seedings = 0;
  generatorOn = false;
}

}  // namespace fake

void rtcRandomize(i32 number) {
  ++fake::seedings;
  if (generatorOn) generator.randomize(number);
}

float rtcRandomNext(float /*argument*/) {
  if (!fake::draws.empty()) {
    const float draw = fake::draws.front();
    fake::draws.pop_front();
    return draw;
  }
  if (generatorOn) return generator.next();
  ADD_FAILURE() << "a random draw that the test doesn't expect";
  return 0;
}

}  // namespace glonks
