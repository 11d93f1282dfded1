#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/gametick.h"
#include "game/loadresources.h"
#include "game/model.h"
#include "present/console.h"
#include "present/display.h"
#include "present/keys.h"
#include "storage/scrambledfiles.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/random.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/toolkit.h"
#include "tests/fakes/window.h"
#include "tests/tempfolder.h"

namespace glonks {

using Sounds = std::vector<std::string>;

// A game that is set up, with an empty field, a silent list of sounds, a
// clock at 1000 ms and no draws queued.
class EngineTest : public TempFolder {
 protected:
  EngineTest() {
    fake::resetClock();
    fake::resetRandom();
    fake::resetSound();
    fake::resetToolkit();
    fake::resetWindow();
    resetModel();
    gameOver = False;
    fConsole_Show(readKeys);
    initDX();
    loadSamples();
    fake::resetSound();
  }
  ~EngineTest() override {
    gameOver = True;
    destroy();
    EXPECT_TRUE(fake::draws.empty()) << fake::draws.size() << " queued draws were not taken";
  }

  // Everything that a test may have left behind, as at the program's start.
  static void resetModel() {
    for (Row& row : playfield) row = Row{};
    pieceCatalog.fill(Piece{});
    pieceCatalogUpper = -1;
    fallingPieces.clear();
    fallingPiecesUpper = -1;
    itemStock.fill(0);
    notesCollected = 0;
    bank = 0;
    score = 0;
    selectedRow = 0;
    modeName.clear();
    pendingSpawns = 0;
    pythagoreanDone = False;
    pythagoreanSum = 0;
    frogBonusOn = False;
    paused = False;
    lastKeyTick = 0;
    tickBase = 0;
    songIndex = -1;
    songTitle.clear();
    themeName = "Cells";
    landOn = False;
    landLeft = -1;
    landName = noName;
  }

  // The key tables of the data files, for tests that read real or scrambled ones.
  static void makeRealKeys() {
    fake::useGenerator();
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fake::resetRandom();
  }

  static Cell& cellAt(i32 row, i32 column) {
    return playfield[static_cast<std::size_t>(row)][column];
  }

  // A piece at rest.
  static Cell& put(i16 row, i16 column, const std::string& name = "Glonk", i16 variety = 1) {
    Cell& cell = cellAt(row, column);
    cell = Cell{};
    cell.occupied = True;
    cell.name = name;
    cell.variety = variety;
    cell.column = column;
    cell.y = floorOf(row);
    return cell;
  }
  static void fillColumn(i16 column, i16 rows) {
    for (i16 row = 0; row < rows; ++row) put(row, column);
  }

  // A piece in flight, as it is spawned.
  static Piece& drop(i16 column, const std::string& name = "Glonk") {
    Piece& piece = grow(fallingPieces, fallingPiecesUpper);
    piece.name = name;
    piece.alive = True;
    piece.column = column;
    piece.velocity = 1;
    return piece;
  }

  // The field as text, top row first: "." for a free cell, else the first letter of the name.
  static std::string field() {
    std::string text;
    for (i32 row = rowCount - 1; row >= 0; --row) {
      for (i32 column = 0; column < columnCount; ++column) {
        const Cell& cell = cellAt(row, column);
        text += cell.occupied == True ? cell.name.substr(0, 1) : ".";
      }
      text += row > 0 ? "/" : "";
    }
    return text;
  }

  static void passTime(u32 milliseconds) { fake::clockNow += milliseconds; }
};

}  // namespace glonks
