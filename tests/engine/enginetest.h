#pragma once

#include <gtest/gtest.h>

#include <map>

#include "base/text.h"
#include "game/loading/newgame.h"
#include "game/loading/pieces.h"
#include "game/model/gametick.h"
#include "game/model/mode.h"
#include "game/model/resources.h"
#include "present/screen/display.h"
#include "rules/falling.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/random.h"
#include "tests/fakes/sound.h"
#include "tests/fakes/surface.h"
#include "tests/fakes/toolkit.h"
#include "tests/fakes/window.h"
#include "tests/tempfolder.h"

namespace glonks {

using Names = std::vector<std::string>;
using Numbers = std::vector<i32>;
using Action = std::function<void()>;

// A Freestyle game that is set up: catalogue loaded, an empty board, no songs, a clock at 1000 ms
// and no draws queued. All state of game and fakes is new in each test.
class EngineTest : public TempFolder {
 protected:
  EngineTest();
  ~EngineTest() override;
};

// All state as a test finds it.
void renew();

// The game's variables as texts, by name; and each of them with another value.
std::map<std::string, std::string> gameState();
void dirtyGame();

// The catalogue's piece of a letter: S Slammer, U Bauble, B Bomb, D Diamond, C Calculator of 30, c
// of -40, G Gorgon, H Shifter, M Money, N Music, T BType, P Pin, R Rock, W Bowling Ball, 1 to 4
// Glonks.
Piece& entryOf(char letter);

// Lays a board of pieces at rest: rows from the top, parted by "/", a letter for each cell, "." for
// a free one. Timers of the letters in `due` have run out, others never do.
void lay(const std::string& rows, const std::string& due = "");

// A piece in flight; as it is spawned, if no more is said.
Piece& drop(char letter, i16 column, i16 y = 0, i16 velocity = 1, i16 bounces = 0);

// The board as `lay` takes it, without free cells at a row's end and free rows at the top.
std::string board();

// Column, y, velocity and bounces: "1 at 3 520 -8 5".
std::string stateOf(const Piece& piece);

// Sounds since the last call without their "_": "slam01*2 coin01".
std::string heard();

// What runs on the ticker; "?" for a character without a picture.
std::string ticker();

// Takes down a remark for the outcome.
void note(const std::string& remark);

// All that has happened since `lay` and the settings, in parts with "; " between them, those left
// out that tell nothing:
//   S1.1S                    the board, if it has changed; "-" for an empty one
//   falls G3@55000 12:435,0,4  letter and column of what falls; "#" for the picture of a negative
//                            Calculator, its value, a timer's length; y, velocity and bounces of
//                            what hasn't just been spawned
//   arms C12000              timers at rest that have been set
//   pops 10 impacts 1 zaps hv hears slam01*2 says VICTORY!
//   score 5000               each variable of the game that has another value
//   and remarks
std::string outcome();

// Plays a table of tables/, one case in a row: the board and the letters whose timers have run out,
// then settings of the game's variables, draws ("~5/1000", "~0.75") and acts ("drop:W,3"), then the
// outcome. Acts of every table: drop:letter,column,y,velocity,bounces; press:keys, with "+" between
// them; wait:ms; rest:frames.
using Words = std::vector<std::string>;
using Acts = std::map<std::string, std::function<void(const Words&)>>;
void playTable(const std::string& name, const Acts& acts = {});

// Sets variables of the game: "goalScore=50 landOn=-1".
void set(const std::string& settings);

// Selects a mode and the level of file 7 on the page of the new game.
void choose(const std::string& mode, const std::string& level);

// What has been drawn since the last call.
Names drawn();

// A key event, well after the last one.
void press(const std::string& keys, u32 wait = 1000);

// The entries of the log since the last call, without their times.
Names logged();

}  // namespace glonks
