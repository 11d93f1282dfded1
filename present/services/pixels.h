#pragma once

#include "base/types.h"

// Inside the services: arithmetic on pixels of four parts of eight bits, alpha in the uppermost.
namespace glonks {

inline constexpr u32 alphaShift = 24;
inline constexpr u32 opaqueBits = 0xFF000000;  // alpha of a pixel that hides what is under it
inline constexpr u32 colorBits = 0x00FFFFFF;

inline constexpr u32 evenParts = 0x00FF00FF;  // every other one, so that products have room

// All parts of a pixel times `share` / 255, rounded.
inline u32 faded(u32 pixel, u32 share) {
  const auto product = [share](u32 two) {
    const u32 exact = two * share + 0x00800080;
    return exact + (exact >> 8U & evenParts);
  };
  return (product(pixel & evenParts) >> 8U & evenParts) |
         (product(pixel >> 8U & evenParts) & ~evenParts);
}

// Two pixels mixed, all parts: `weight` / 256 of the second.
inline u32 mixed(u32 first, u32 second, u32 weight) {
  const u32 rest = 256 - weight;
  const u32 low = (first & evenParts) * rest + (second & evenParts) * weight;
  const u32 high = (first >> 8U & evenParts) * rest + (second >> 8U & evenParts) * weight;
  return (low >> 8U & evenParts) | (high & ~evenParts);
}

// A pixel whose colours are multiplied by its alpha, laid over another one.
inline u32 laidOver(u32 under, u32 over) { return over + faded(under, 255 - (over >> alphaShift)); }

}  // namespace glonks
