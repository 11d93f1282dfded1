#include "player/kinds.h"

namespace glonks {
namespace {

// Slots of the catalogue run from 0 to 19, with few that can be slammed.
i32 numberOf(const Piece& piece) {
  i32 number = 1;
  for (i16 slot = 0; slot < piece.imageIndex; ++slot) {
    if (catalogEntry(slot).slammable == True) ++number;
  }
  return number;
}

bool isWanted(const Piece& piece) {
  return piece.name == "BType" || (piece.name == goalPieceName && goalPieceCount > 0);
}

bool isForbidden(const Piece& piece) { return avoidOn == True && piece.name == avoidName; }

// A negative Calculator takes points, a Gorgon breeds, a Shifter upsets what has been lined up.
bool isHarmful(const Piece& piece) {
  if (landOn == True && piece.name == landName) return false;
  return piece.imageIndex == negativeCalculatorSlot || piece.isGorgon == True ||
         piece.isShifter == True;
}

}  // namespace

Kind kindOf(const Piece& piece) {
  const bool slammable = piece.slammable == True;
  return static_cast<Kind>(
      (slammable ? numberOf(piece) : 0) | bitIf(slammable, slammableTrait) |
      bitIf(piece.isSlammer == True, slammerTrait) | bitIf(piece.bombable == True, bombableTrait) |
      bitIf(piece.isBomb == True, bombTrait) | bitIf(isWanted(piece), wantedTrait) |
      bitIf(isForbidden(piece), forbiddenTrait) |
      bitIf(piece.isBauble == True && !isWanted(piece), costlyTrait) |
      bitIf(isHarmful(piece), harmfulTrait) | bitIf(true, occupiedTrait));
}

}  // namespace glonks
