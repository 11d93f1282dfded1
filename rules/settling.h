#pragma once

namespace glonks {

// Lifts every piece above a free cell back into fallingPieces, lowest row first, so that it drops
// and stops at its first contact.
void settlePieces();

}  // namespace glonks
