#include "game/loading/pieces.h"

#include "game/model/catalogue.h"
#include "game/model/model.h"
#include "game/model/piecefields.h"
#include "present/screen/keyedpicture.h"
#include "storage/files/channels.h"
#include "storage/files/datafiles.h"
#include "storage/files/fieldreader.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

constexpr i16 lastPieceSlot = pieceFileIds.size() - 1;

// Returns the picture's name.
std::string readPiece(i16 channel, Piece& piece) {
  piece.name = readField(channel, "name");
  if (piece.name.empty()) badField(channel, "name", "is empty.");
  piece.variety = readI16(channel, "variety");
  std::string picture = readField(channel, "picture");
  for (const auto& [name, flag] : pieceFlags) piece.*flag = readFlag(channel, name);
  for (const auto& [name, number] : pieceNumbers) piece.*number = readI32(channel, name);
  piece.isPin = readFlag(channel, "isPin");
  return picture;
}

}  // namespace

Piece loadPiece(const std::string& fileId) {
  Piece piece;
  ScrambledReader file("\\init\\" + fileId, pieceChannel);
  const std::string picture = readPiece(pieceChannel, piece);
  file.close();
  if (piece.name != "BType" && piece.name != "Pin") {
    piece.surface = loadKeyedPicture(picture, piece.surfaceDesc);
  }
  return piece;
}

void loadPictureOf(const std::string& name, const std::string& picture) {
  Piece& entry = catalogEntry(slotNamed(name));
  entry.surface = loadKeyedPicture(picture, entry.surfaceDesc);
}

void loadPieces() {
  pieceCatalogUpper = lastPieceSlot;
  for (std::size_t slot = 0; slot < pieceFileIds.size(); ++slot) {
    pieceCatalog[slot] = loadPiece(pieceFileIds[slot]);
  }
  for (i16 slot = 0; slot <= lastPieceSlot; ++slot) {
    catalogEntry(slot).imageIndex = slot;
  }
  Piece& negative = catalogEntry(negativeCalculatorSlot);
  negative.surface = loadKeyedPicture("calculator_02", negative.surfaceDesc);
}

}  // namespace glonks
