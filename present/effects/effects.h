#pragma once

#include "base/types.h"

// Effects that the rules raise: impacts, zaps and score popups. Drawing ages them.
namespace glonks {

struct Piece;

// An explosion at effect coordinates, with `_pop01` unless `silent`.
void pushImpact(i16 x, i16 y, Flag silent);

// A flash over a slammed piece at screen coordinates, with `_slam01`.
void pushZap(i16 x, i16 y, Flag horizontal);

// Points that climb from effect coordinates and enter `score` when they have climbed out; clamped
// to 16 bits.
void pushPopup(i16 x, i16 y, i32 points);

// The same at a piece on the board.
void impactAt(const Piece& piece, Flag silent);
void popupAt(const Piece& piece, i32 points);

}  // namespace glonks
