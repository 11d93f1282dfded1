#pragma once

#include <vector>

// The loop that the modes play in, with the order of a frame.
namespace glonks {

// One step of the loop.
using Statement = void (*)();

// How a loop runs a statement that may fail.
using Runner = void (*)(Statement statement);

// What a mode's loop does in its own way.
struct LoopMode {
  Runner run;                          // all statements go through it
  Statement spawn;                     // a spawn that has fallen due
  std::vector<Statement> texts;        // the last things drawn before the Flip
  std::vector<Statement> behindFrame;  // drawn between plate and frame picture
  std::vector<Statement> endOfFrame;   // behind all drawing
};

// Lets what a statement raises pass.
void runPlainly(Statement statement);

// Plays until gameOver. Needs the game's resources, its catalogue and spawnInterval.
void runLoop(const LoopMode& mode);

// The rules of one frame: physics, queued spawns, compaction, the scan of the board.
void stepRules(Runner run);

// All that moves and lies over the background, up to the texts of the mode.
void drawMovingThings(Runner run);

}  // namespace glonks
