#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/growinglist.h"
#include "base/types.h"
#include "present/services/directsound.h"
#include "present/services/surface.h"

// The records and game-wide variables of the play engine: one game at a time, on one thread. A game
// tick is a value of gameTick(): milliseconds of game time. An upper bound of -1 means an empty
// list. "Reset" is the value that initVariables sets at the start of each game.
namespace glonks {

inline constexpr i16 rowCount = 7;       // row 0 at the bottom
inline constexpr i16 columnCount = 10;   // column 0 at the left
inline constexpr i16 cellPitch = 85;     // pixels from cell to cell, both ways
inline constexpr i16 pieceSize = 90;     // pixels, width and height of a piece's picture
inline constexpr i16 fieldLeft = 80;     // screen x of column 0
inline constexpr i16 fieldTop = 80;      // screen y of a piece whose y is 0
inline constexpr i16 bottomFloor = 520;  // resting y in row 0

// Resting y of a piece in a row: 520 for row 0, 10 for row 6.
constexpr i16 floorOf(i16 row) { return static_cast<i16>(bottomFloor - cellPitch * row); }

// Coordinates of effects raised at a piece.
constexpr i16 effectX(i16 column) { return static_cast<i16>(cellPitch * column - 70); }
constexpr i16 effectY(i16 y) { return clamped<i16>(i32{y} - 70); }

// A template in pieceCatalog, a piece in flight in fallingPieces, or the piece in a Cell.
struct Piece {
  std::string name;         // kind of piece, also the word shown to the player
  i16 variety = 0;          // number within a kind; -1 for a Calculator of negative value
  i16 imageIndex = 0;       // catalogue slot whose surface draws this piece
  Surface surface;          // the picture; BType and Pin get theirs in their modes
  SurfaceDesc surfaceDesc;  // filled when the picture is loaded; nothing reads it
  Flag slammable = False;   // can be removed between two Slammers
  Flag bombable = False;    // can be destroyed by a neighbouring explosion
  Flag spareFlagA = False;  // read from the piece file; no rule consults it
  Flag isBomb = False;
  Flag isSlammer = False;
  Flag isShifter = False;
  Flag isBowlingBall = False;
  Flag isBauble = False;
  Flag isGorgon = False;
  Flag spareFlagB = False;  // read from the piece file; no rule consults it
  Flag isDiamond = False;
  Flag isCalculator = False;
  Flag isMoney = False;
  Flag isPin = False;
  i32 timerMax = 0;      // longest timer, ms
  i32 timerMin = 0;      // shortest timer, ms
  i32 expiry = 0;        // game tick at which the timer runs out; -1: a Diamond that has paid
  Flag alive = False;    // in fallingPieces: survives compaction
  i16 column = 0;        // 0 to 9
  i16 y = 0;             // pixels inside the field, growing downward
  i16 velocity = 0;      // pixels a frame, positive downward
  i16 bounces = 0;       // contacts so far; the piece lands at the fifth
  Flag tallied = False;  // has come to rest once
  i32 value = 0;         // points, or a Calculator's amount
  Sample landSound;      // drawn at the last bounce
  i16 direction = 0;     // a Shifter's: 1 moves its row left, -1 right
  i16 spawnLow = 0;      // lowest and highest draw of 0 to 999 that yield this piece,
  i16 spawnHigh = 0;     // from the level file; 0 and 0 for a piece that it doesn't name
};

struct Cell : Piece {
  Flag occupied = False;  // a piece rests here: the only sign of it
};

struct Row {
  std::array<Cell, columnCount> cells;
  Cell& operator[](i32 column) { return cells[static_cast<std::size_t>(column)]; }
  const Cell& operator[](i32 column) const { return cells[static_cast<std::size_t>(column)]; }
};

struct Impact {
  i16 x = 0;  // effect coordinates
  i16 y = 0;
  i16 age = 0;
};

struct Zap {
  Flag horizontal = False;
  i16 age = 0;
  i16 x = 0;  // screen coordinates
  i16 y = 0;
};

struct ScorePopup {
  i16 x = 0;  // effect coordinates
  i16 y = 0;
  i16 points = 0;
};

struct TickerGlyph {
  Surface glyph;  // none for a character without a picture
  i16 x = 0;      // left edge on screen
};

struct Frog {
  i16 picture = 0;  // 1 to 5
  i16 x = 0;        // screen
  i16 y = 0;
  i16 pictureDelay = 0;  // frames for which a picture stays, less one
  i16 pictureCount = 0;  // frames since the picture changed
  i16 speed = 0;         // pixels a frame, to the left and down
};

inline std::array<Row, rowCount> playfield;

inline Row& rowAt(i32 row) { return playfield[static_cast<std::size_t>(row)]; }
inline Cell& cellAt(i32 row, i32 column) { return rowAt(row)[column]; }

// All cells in which a piece rests, from the bottom row up and from left to right.
template <typename Action>
void forEachPieceAtRest(Action action) {
  for (Row& row : playfield) {
    for (Cell& cell : row.cells) {
      if (cell.occupied == True) action(cell);
    }
  }
}

inline constexpr i16 catalogSlots = 20;
inline constexpr i16 negativeCalculatorSlot = 19;  // a picture only, never spawned
inline std::array<Piece, catalogSlots> pieceCatalog;
inline i16 pieceCatalogUpper = -1;  // 18 once loaded

inline Piece& catalogEntry(i32 slot) { return pieceCatalog[static_cast<std::size_t>(slot)]; }

inline std::vector<Piece> fallingPieces;
inline i16 fallingPiecesUpper = -1;

inline Piece& fallingPiece(i32 index) { return fallingPieces[static_cast<std::size_t>(index)]; }

inline std::vector<Impact> impacts;
inline i16 impactsUpper = -1;
inline std::vector<Zap> zaps;
inline i16 zapsUpper = -1;
inline std::vector<ScorePopup> scorePopups;
inline i16 scorePopupsUpper = -1;
inline std::vector<TickerGlyph> tickerLines;
inline i16 tickerUpper = -1;
inline std::vector<Frog> frogs;
inline i16 frogsUpper = -1;

inline constexpr i16 itemKinds = 6;
inline constexpr i16 slammerItem = 0;
inline constexpr i16 bombItem = 1;
inline constexpr i16 detonatorItem = 2;
inline constexpr i16 bowlingBallItem = 3;
inline constexpr i16 bonusSongItem = 4;
inline constexpr i16 midnightBowlingItem = 5;

inline i32 score = 0;                              // reset: 0
inline i16 bank = 0;                               // credits; kept from game to game
inline std::array<i16, itemKinds> itemStock = {};  // goods held; kept
inline i16& stockOf(i32 item) { return itemStock[static_cast<std::size_t>(item)]; }
inline i32 notesCollected = 0;           // Music pieces removed so far; kept
inline i16 selectedRow = 0;              // row under the pointer, 0 to 6; reset: 0
inline std::string modeName;             // set by the Play button; item keys need "Freestyle"
inline i32 spawnInterval = 0;            // ms between two spawns; set by the level file
inline Flag gameOver = False;            // ends the play loop at the top of its next pass
inline Flag inPlay = False;              // a play loop is running, or has raised; set by it
inline Flag paused = False;              // a pause is in force
inline i32 lastKeyTick = 0;              // game tick of the last key handled
inline i32 nextPointsTick = 0;           // game tick at which the next time points fall due
inline i16 pendingSpawns = 0;            // extra pieces queued
inline Flag frogBonusOn = False;         // reset: False
inline i32 frogBonusUntil = 0;           // game tick; not reset
inline Flag pythagoreanDone = False;     // bonus paid in this game; reset: False
inline i16 pythagoreanSum = 0;           // what Calculators have paid; reset: 0
inline i16 bTypeLeft = 0;                // BType pieces on the field; not reset
inline std::vector<i16> bowlingRolls;    // Pins that each ball has taken; set by Midnight Bowling
inline std::string themeName = "Cells";  // folder of the chosen theme; kept
inline constexpr i16 loudest = 100;
inline i16 musicVolume = 70;                // 0 to loudest, for the next song; kept
inline std::vector<std::string> songNames;  // rows of the list `songs`; kept
inline i16 songIndex = -1;                  // position in songNames; kept
inline std::string songTitle;               // line at the foot of the screen; kept
inline u32 tickBase = 0;                    // what gameTick takes off the clock, ms; kept

// Adds points, which may be negative, to `score` at once.
inline void payScore(i64 points) { score = clamped<i32>(score + points); }

// Takes one off a count; it stays at the end of its 16 bits.
inline void countDown(i16& count) { count = clamped<i16>(i32{count} - 1); }

inline constexpr i32 longestInterval = 3'600'000;  // ms; the largest spawnInterval of a level

// How "no goal" reads in the level fields; for a piece goal either word.
inline const std::string noName = "-1";
inline const std::string nothingName = "Nothing";

inline std::string levelTitle;              // reset: empty
inline std::string rewardLevelName;         // level that winning opens; reset: empty
inline i16 rewardLevelFile = 0;             // its file number; reset: 0
inline i16 goalPieceCount = -1;             // pieces of goalPieceName still to remove; reset: -1
inline std::string goalPieceName = noName;  // reset: "-1"
inline i32 goalScore = -1;                  // score to reach; reset: -1
inline Flag limitOn = False;                // time limit; reset: False, -1, -1
inline i16 limitMinutes = -1;
inline i16 limitSeconds = -1;
inline Flag surviveOn = False;  // survival timer; reset: False, -1, -1
inline i16 surviveMinutes = -1;
inline i16 surviveSeconds = -1;
inline Flag avoidOn = False;  // removals of avoidName that may still happen;
inline i16 avoidLeft = -1;    // reset: False, -1, "-1"
inline std::string avoidName = noName;
inline Flag landOn = False;  // pieces named landName that must still land;
inline i16 landLeft = -1;    // reset: False, -1, "-1"
inline std::string landName = noName;
inline i32 minuteStart = 0;     // game tick at which a timer's minute began; reset: 0
inline Flag levelOver = False;  // the outcome is decided; cleared by loading a level and by Arcade
inline Flag levelWon = False;   // the level was won; cleared by loading a level

}  // namespace glonks
