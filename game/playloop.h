#pragma once

#include <vector>

// The loop that all modes play in, with the order of a frame.
namespace glonks {

// One step of the loop.
using Statement = void (*)();

// How a loop runs a statement that may fail.
using Runner = void (*)(Statement statement);

// What a mode's loop does in its own way. The lists may be empty.
struct LoopMode {
  Runner run = nullptr;                     // all statements go through it
  std::vector<Statement> start = {};        // right after gameOver has been cleared
  Statement spawn = nullptr;                // a spawn that has fallen due
  std::vector<Statement> texts = {};        // the last things drawn before the Flip
  std::vector<Statement> behindFrame = {};  // drawn between the plate and the frame picture
  std::vector<Statement> endOfFrame = {};   // after all drawing
};

// Runs the statement and passes on what it raises.
void runPlainly(Statement statement);

// Plays until gameOver. Needs the game's resources, its catalogue and spawnInterval.
void runLoop(const LoopMode& mode);

// For a mode whose games are decided: once levelOver is set, ends the game when the ticker is
// empty. Tells whether it is set.
bool endOnceDecided();

// The rules of one frame: physics, queued spawns, compaction, the scan of the board.
void stepRules(Runner run);

// All that moves and lies over the background, up to the texts of the mode.
void drawMovingThings(Runner run);

}  // namespace glonks
