#include "tests/fakes/random.h"

#include <gtest/gtest.h>

#include "base/random.h"

namespace glonks {

void rtcRandomize(i32 number) {
  if (fake::generator) fake::generator->randomize(number);
}

float rtcRandomNext(float /*argument*/) {
  if (!fake::draws.empty()) {
    const double draw = fake::draws.front();
    fake::draws.pop_front();
    return static_cast<float>(draw);
  }
  if (fake::generator) return fake::generator->next();
  ADD_FAILURE() << "a random draw that the test doesn't expect";
  return 0;
}

}  // namespace glonks
