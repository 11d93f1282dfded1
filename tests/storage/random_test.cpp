#include "game/random.h"

#include <cmath>

#include "game/randomgenerator.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

// The next number as the whole number of its 24 bits.
i32 bits(RandomGenerator& generator) {
  const double scaled = std::ldexp(static_cast<double>(generator.next()), 24);
  EXPECT_EQ(scaled, std::floor(scaled)) << "more than 24 bits";
  return static_cast<i32>(scaled);
}

// The key tables, and with them all data files, hang on these numbers: they never change.
TEST(Random, GivesTheSameNumbersForEver) {
  RandomGenerator fresh;
  for (const i32 number : {13668795, 2272926, 15196666, 14009119}) EXPECT_EQ(bits(fresh), number);

  RandomGenerator seeded;
  seeded.randomize(7);
  for (const i32 number : {11095902, 13731332, 12305307}) EXPECT_EQ(bits(seeded), number);
  seeded.randomize(7);  // mixed into the state that it finds, so another sequence
  for (const i32 number : {4215259, 5416748, 11731499}) EXPECT_EQ(bits(seeded), number);

  RandomGenerator negative;
  negative.randomize(-1);
  for (const i32 number : {7721757, 9393811}) EXPECT_EQ(bits(negative), number);
}

TEST(Random, SpreadsOverZeroToOne) {
  RandomGenerator generator;
  constexpr int draws = 100'000;
  int tenths[10] = {};
  for (int i = 0; i < draws; ++i) {
    const float number = generator.next();
    ASSERT_GE(number, 0.0F);
    ASSERT_LT(number, 1.0F);
    ++tenths[static_cast<int>(number * 10)];
  }
  for (const int count : tenths) EXPECT_NEAR(count, draws / 10, 500);
}

TEST(Random, DrawsAskForTheNextNumberOnly) {
  for (const float argument : {0.0F, -1.0F, std::nanf("")}) {
    EXPECT_PRED2(holds, errorOf([&] { rtcRandomNext(argument); }), "rtcRandomNext");
  }
}

}  // namespace
}  // namespace glonks
