#pragma once

#include <gtest/gtest.h>

#include "game/loading/newgame.h"
#include "game/loading/pieces.h"
#include "game/model/gametick.h"
#include "game/model/resources.h"
#include "present/keys.h"
#include "present/pause.h"
#include "present/screen/display.h"
#include "present/screen/fconsole.h"
#include "rules/falling.h"
#include "shell/menucontrols.h"
#include "storage/files/scrambledfiles.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/random.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/toolkit.h"
#include "tests/fakes/window.h"
#include "tests/tempfolder.h"

namespace glonks {

using Names = std::vector<std::string>;
using Numbers = std::vector<i32>;

// A Freestyle game that is set up, with an empty field, a silent list of sounds, no songs, a clock
// at 1000 ms and no draws queued.
class EngineTest : public TempFolder {
 protected:
  EngineTest() {
    fake::resetClock();
    fake::useGenerator();
    makeKeys(keySeed, keyDrawArgument, keyScale);
    fake::resetRandom();
    fake::resetToolkit();
    fake::resetWindow();
    fConsole_Show(readKeys, pauseByCloseBox);
    initDX();
    songNames.clear();
    themeName = "Cells";
    fake::queueDraw(0, 5);  // the plate
    initVariables();
    fake::resetSound();
    // What an earlier test may have left of the values that outlast a game.
    playfield.fill(Row{});
    notesCollected = lastKeyTick = gameOver = 0;
    tickBase = 0;
    songIndex = -1;
    modeName = "Freestyle";
  }
  ~EngineTest() override {
    gameOver = True;
    destroy();
    EXPECT_TRUE(fake::draws.empty()) << "draws were not taken";
  }

  static Piece& entryAt(i16 slot) { return catalogEntry(slot); }

  // A piece at rest.
  static Cell& put(i16 row, i16 column, const std::string& name = "Glonk") {
    Cell& cell = cellAt(row, column);
    cell.occupied = True;
    cell.name = name;
    cell.column = column;
    cell.y = floorOf(row);
    return cell;
  }

  // A piece in flight; as it is spawned, if no more is said.
  static Piece& drop(i16 column, const std::string& name = "Glonk", i16 y = 0, i16 velocity = 1,
                     i16 bounces = 0) {
    Piece& piece = grow(fallingPieces, fallingPiecesUpper);
    piece.name = name;
    piece.alive = True;
    piece.column = column;
    piece.y = y;
    piece.velocity = velocity;
    piece.bounces = bounces;
    return piece;
  }

  // Physics until nothing falls any more, with contact sounds 1, 2, 3, 1 ... in turn. Gives the
  // number of frames.
  static i32 fallToRest() {
    i32 frames = 0;
    for (i32 contact = 0; fallingPiecesUpper >= 0 && frames < 1000; ++frames) {
      for (; fake::draws.size() < 4; ++contact) fake::queueDraw(contact % 3, 3);
      movePieces();
      compactFalling();
    }
    fake::draws.clear();
    return frames;
  }

  // Name, column, y, velocity and bounces.
  static std::string stateOf(const Piece& piece) {
    return piece.name + " " + std::to_string(piece.column) + " " + std::to_string(piece.y) + " " +
           std::to_string(piece.velocity) + " " + std::to_string(piece.bounces);
  }

  // The rows from the highest that holds a piece, each as "A..B......": first letters of names.
  static std::string field() {
    std::string text;
    for (i32 row = rowCount - 1; row >= 0; --row) {
      text += "/";
      for (i32 column = 0; column < columnCount; ++column) {
        text += cellAt(row, column).occupied == True ? cellAt(row, column).name[0] : '.';
      }
      if (text == "/..........") text.clear();
    }
    return text;
  }
};

}  // namespace glonks
