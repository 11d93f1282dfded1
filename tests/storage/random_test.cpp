#include "game/random.h"

#include <gtest/gtest.h>

#include <cmath>

#include "game/randomgenerator.h"

namespace glonks {
namespace {

// The next numbers, as the whole numbers of their 24 bits; a finer one would show as a fraction.
void expectNext(RandomGenerator& generator, std::initializer_list<double> numbers) {
  for (const double number : numbers) EXPECT_EQ(std::ldexp(generator.next(), 24), number);
}

// The key tables, and with them all data files, hang on these numbers: they never change.
TEST(Random, GivesTheSameNumbersForEver) {
  RandomGenerator fresh;
  expectNext(fresh, {13668795, 2272926, 15196666, 14009119});
  RandomGenerator seeded;
  seeded.randomize(7);
  expectNext(seeded, {11095902, 13731332, 12305307});
  seeded.randomize(7);  // mixed into the state that it finds, so another sequence
  expectNext(seeded, {4215259, 5416748, 11731499});
  RandomGenerator negative;
  negative.randomize(-1);
  expectNext(negative, {7721757, 9393811});
}

}  // namespace
}  // namespace glonks
