#pragma once

#include "base/types.h"

// What one frame of play shows of the field. All of it is drawn on backBuffer.
namespace glonks {

// The picture of a catalogue slot in a column, `y` pixels below the field's top. A slot without a
// picture shows nothing.
void drawPiece(i16 imageIndex, i16 column, i16 y);

// All pieces: those at rest from the bottom row up and from left to right, then those in flight.
void drawField();

// The pointer at selectedRow.
void drawPointer();

// Black, and the plate over it: the first half of the next frame's background.
void clearBack();
void layPlate();

// The frame picture, over all but its white parts: the second half.
void layFrame();

}  // namespace glonks
