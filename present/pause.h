#pragma once

namespace glonks {

// Starts a pause, and returns when it has ended; called again from within, ends it. After a pause
// game time goes on from where it stood when the pause began, however many others began and ended
// within it: tickBase has moved on by its length.
void togglePause();

// What the close box of fConsole does in play: pauses the game, if it isn't paused yet, and says in
// the window's title how to end it, until the pause is over. Does nothing while no loop is running.
void pauseByCloseBox();

// What unplugging the gamepad in use does: pauses the game, if one is in play and isn't paused.
void pauseByLostPad();

}  // namespace glonks
