#include "present/fielddrawing.h"

#include "game/model/model.h"
#include "game/model/resources.h"
#include "present/screen/display.h"

namespace glonks {
namespace {

constexpr Rect pieceSource{0, 0, pieceSize, pieceSize};
constexpr Rect pointerSource{0, 0, 70, 45};
constexpr Rect plateSource{0, 0, 500, 350};
constexpr Rect plateTarget{81, 80, 934, 690};
constexpr Rect whole{};
constexpr i32 pointerLeft = 10;
constexpr i32 pointerTop = 620;  // at row 0

void drawPieceOf(const Piece& piece) { drawPiece(piece.imageIndex, piece.column, piece.y); }

}  // namespace

void drawPiece(i16 imageIndex, i16 column, i16 y) {
  const i32 left = column * cellPitch + fieldLeft;
  const i32 top = y + fieldTop;
  backBuffer->Blt({left, top, left + pieceSize, top + pieceSize}, catalogEntry(imageIndex).surface,
                  pieceSource, bltKeyed);
}

void drawField() {
  forEachPieceAtRest(drawPieceOf);
  for (const Piece& piece : fallingPieces) drawPieceOf(piece);
}

void drawPointer() {
  const i32 top = pointerTop - cellPitch * selectedRow;
  backBuffer->Blt({pointerLeft, top, pointerLeft + pointerSource.right, top + pointerSource.bottom},
                  pointerSurface, pointerSource, bltKeyed);
}

void clearBack() { backBuffer->BltColorFill(whole, RGB(0, 0, 0)); }

void layPlate() { backBuffer->Blt(plateTarget, plateSurface, plateSource, bltOpaque); }

void layFrame() { backBuffer->Blt(whole, frameSurface, whole, bltKeyed); }

}  // namespace glonks
