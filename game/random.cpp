#include "game/random.h"

#include "game/errors.h"
#include "game/randomgenerator.h"

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
