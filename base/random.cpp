#include "base/random.h"

#include "base/errors.h"
#include "base/randomgenerator.h"

namespace glonks {
namespace {
RandomGenerator generator;
}

void rtcRandomize(i32 number) { generator.randomize(number); }

float rtcRandomNext(float argument) {
  if (!(argument > 0)) {
    throw RuntimeError(ErrorNumber::badCall, "rtcRandomNext: the argument has to be positive");
  }
  return generator.next();
}

}  // namespace glonks
