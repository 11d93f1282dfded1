#pragma once

#include <array>
#include <cstdint>

#include "game/model/model.h"

// What a playing program knows about the kinds of pieces.
namespace glonks {

// What is so of a piece or not. The first four together tell apart the kinds that can be slammed.
enum Trait : std::uint8_t {
  kindBit0,
  kindBit1,
  kindBit2,
  kindBit3,
  slammableTrait,
  slammerTrait,
  bombableTrait,
  bombTrait,
  wantedTrait,     // a goal asks for its removal
  forbiddenTrait,  // the level fails by its removal
  costlyTrait,     // its removal brings more pieces
  harmfulTrait,    // does harm while it stays
  ripeTrait,       // a Bomb that will go off soon
  occupiedTrait,
  traitCount
};
inline constexpr std::uint16_t kindNumbers = 16;  // of kinds that can be slammed, from 1 on

// A piece by its traits, one bit for each; 0: none.
using Kind = std::uint16_t;
constexpr Kind bitIf(bool condition, Trait trait) {
  return static_cast<Kind>(condition ? 1 << trait : 0);
}
constexpr bool has(Kind kind, Trait trait) { return (kind & bitIf(true, trait)) != 0; }

// A piece at rest or in flight, by the goals that the game shows now; never ripe.
Kind kindOf(const Piece& piece);

}  // namespace glonks
