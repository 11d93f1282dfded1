#include "rules/fruit.h"

#include <array>
#include <string>

#include "base/errors.h"
#include "game/model/model.h"
#include "present/screen/display.h"
#include "present/screen/keyedpicture.h"
#include "rules/points.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

constexpr std::array<const char*, 4> fruitPictures = {"apple", "orange", "cherry", "grapes"};

// Only the catalogue's pictures are ever drawn. Oddity 25: every Glonk of the game gets one of its
// own, from the file again.
void turnToFruit(Piece& piece) {
  if (piece.name != "Glonk") return;
  const auto fruit = static_cast<std::size_t>(piece.variety) - 1;  // by variety, from 1
  if (fruit < fruitPictures.size()) {
    piece.surface = loadKeyedPicture(fruitPictures[fruit], piece.surfaceDesc);
  }
  piece.value = clamped<i32>(i64{piece.value} + fruitPoints);
}

void turnAllToFruit() {
  for (i16 slot = 0; slot <= pieceCatalogUpper; ++slot) {
    turnToFruit(catalogEntry(slot));
  }
  for (Piece& piece : fallingPieces) turnToFruit(piece);
  forEachPieceAtRest(turnToFruit);
}

}  // namespace

void fruitize() {
  if (!dd) return;  // an earlier cocktail of this frame has failed and given the screen back
  try {
    turnAllToFruit();
  } catch (const std::exception& error) {
    logLine("error occured in fruitize function.");
    logLine(numberAndText(error));
    gameOver = True;
    destroy();
  }
}

}  // namespace glonks
