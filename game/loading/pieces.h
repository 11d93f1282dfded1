#pragma once

#include <array>
#include <string>

#include "game/model/model.h"

// The piece files: what each kind of piece is.
namespace glonks {

// The ids of the piece files, by slot.
inline constexpr std::array<const char*, 19> pieceFileIds = {
    "1980", "0018", "1281", "9234", "4742", "9338", "0634", "6768", "5156", "0876",
    "8624", "8752", "2137", "5493", "7147", "7045", "9201", "6337", "8269"};

// The piece of the file "\init\" and a four-digit id, with its picture. Raises fileNotFound,
// inputPastEnd, overflow or badFile, naming file and field.
Piece loadPiece(const std::string& fileId);

// Fills pieceCatalog from the 19 piece files, and slot 19 with its picture. Needs initDX and
// initVariables. Raises as loadPiece does.
void loadPieces();

}  // namespace glonks
