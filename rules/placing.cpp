#include "rules/placing.h"

#include "game/model/catalogue.h"
#include "game/model/model.h"

namespace glonks {

void placeAtRest(const std::string& name, i16 row, i16 column) {
  Cell& cell = cellAt(row, column);
  static_cast<Piece&>(cell) = catalogEntry(slotNamed(name));
  cell.column = column;
  cell.y = floorOf(row);
  cell.tallied = True;
  cell.occupied = True;
}

}  // namespace glonks
