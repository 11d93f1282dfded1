#pragma once

#include <string>

#include "game/model/model.h"

// The piece files: what each kind of piece is.
namespace glonks {

// The piece of the file "\init\" and a four-digit id, with its picture. Raises fileNotFound,
// fileAccess, inputPastEnd, overflow or badFile, naming file and field.
Piece loadPiece(const std::string& fileId);

// Gives the catalogue's piece of a name the picture "\images\" and `picture`: for the kinds that
// loadPieces leaves without one. Raises fileNotFound, fileAccess or badFile, naming the file.
void loadPictureOf(const std::string& name, const std::string& picture);

// Fills pieceCatalog from the 19 piece files, and slot 19 with its picture. Needs initDX and
// initVariables. Raises as loadPiece does.
void loadPieces();

}  // namespace glonks
