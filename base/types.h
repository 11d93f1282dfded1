#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

// The number types that every module shares, and the ways between them.
namespace glonks {

using i16 = std::int16_t;
using i32 = std::int32_t;
using u32 = std::uint32_t;
using i64 = std::int64_t;
using u64 = std::uint64_t;

// A truth value of 16 bits. Stored flags hold only False or True, and rules test against these two.
using Flag = i16;
inline constexpr Flag False = 0;
inline constexpr Flag True = -1;

constexpr Flag flagOf(bool condition) { return condition ? True : False; }

// Rounds to the nearest integer, halves to the even neighbour: 2.5 becomes 2, 3.5 becomes 4. The
// only rounding in the program. Done by hand, so that no floating-point mode of a library can
// change it.
inline double roundHalfEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

// The value of `Whole` nearest to `number`: amounts that leave their width stay at its end.
template <typename Whole>
constexpr Whole clamped(i64 number) {
  static_assert(std::is_integral_v<Whole> && sizeof(Whole) < sizeof(i64));
  constexpr i64 low = std::numeric_limits<Whole>::min();
  constexpr i64 high = std::numeric_limits<Whole>::max();
  return static_cast<Whole>(number < low ? low : number > high ? high : number);
}

}  // namespace glonks
