#include "game/midnightbowling.h"

#include <string>

#include "base/text.h"
#include "game/loading/pieces.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "game/playloop.h"
#include "present/effects/applause.h"
#include "present/effects/ticker.h"
#include "present/scoresheet.h"
#include "rules/bowlingscore.h"
#include "rules/generation.h"
#include "rules/lane.h"
#include "rules/settling.h"

namespace glonks {
namespace {

constexpr i32 laneInterval = 700;    // ms between two looks whether the lane is free
constexpr i32 pointsPerCredit = 20;  // of the final score
constexpr i16 rollEnd = floorOf(4);  // the ball rolls down to this y, above the tallest Pins...
constexpr i16 rollVelocity = 1;      // ...by so many pixels a frame, and falls from there on

bool ballThrown = false;  // a ball is on its way
bool rackWanted = false;  // Pins have to be set before the next ball
i16 pinsBefore = 0;       // standing when the ball came

// Runs every laneInterval: the next ball, or the next Pins, as soon as nothing moves any more.
void useFreeLane() {
  if (levelOver == True || fallingPiecesUpper > -1) return;
  if (rackWanted) {
    sweepPins();
    setPins();
    connectSounds[0]->Play(0);
    rackWanted = false;
  } else {
    pinsBefore = pinsStanding();
    dropNamed("Bowling Ball");
    ballThrown = true;
  }
}

// The mark of the last ball on the score sheet.
char lastMark(const BowlingGame& game) {
  char mark = ' ';
  for (const BowlingFrame& frame : game.frames) {
    if (!frame.marks.empty()) mark = frame.marks.back();
  }
  return mark;
}

void tellOfBall(const BowlingGame& game) {
  std::string text;
  switch (lastMark(game)) {
    case 'X':
      text = game.points == perfectGame ? "Perfect game!" : "Strike!";
      applause();
      break;
    case '/':
      text = "Spare!";
      _calculate02->Play(0);
      break;
    case '-':
      _calculate01->Play(0);
      break;
    default:
      break;
  }
  if (game.over) text += (text.empty() ? "" : "  ") + plainNumber(game.points) + " points";
  if (!text.empty()) pushMessage(text);
}

void endBall() {
  ballThrown = false;
  settlePieces();
  bowlingRolls.push_back(static_cast<i16>(pinsBefore - pinsStanding()));
  const BowlingGame game = bowlingGame(bowlingRolls);
  tellOfBall(game);
  rackWanted = game.newRack;
  levelOver = flagOf(game.over);
}

void watchBall() {
  if (endOnceDecided() || !ballThrown) return;
  if (Piece* ball = ballInFlight()) {
    // The next step of physics adds 1.
    if (ball->y < rollEnd) ball->velocity = rollVelocity - 1;
  } else {
    endBall();
  }
}

}  // namespace

void setUpBowling() {
  loadPictureOf("Pin", "pin");
  levelOver = False;
  bowlingRolls.clear();
  ballThrown = false;
  rackWanted = false;
  setPins();
  spawnInterval = laneInterval;
}

void playBowling() {
  runLoop({.run = runPlainly,
           .spawn = useFreeLane,
           .texts = {drawScoreSheet},
           .endOfFrame = {watchBall}});
}

Outcome bowlingOutcome() {
  const i32 points = bowlingGame(bowlingRolls).points;
  const auto prize = static_cast<i16>(points / pointsPerCredit);
  std::string message = "You have bowled " + plainNumber(points) + " points.  ";
  message += prize == 0   ? "There is a credit for each full " + plainNumber(pointsPerCredit) + "."
             : prize == 1 ? "You win a credit!"
                          : "You win " + plainNumber(prize) + " credits!";
  return {prize, message};
}

}  // namespace glonks
