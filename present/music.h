#pragma once

namespace glonks {

// Ends the song and starts another one of songNames, drawn at random, never the same twice in a row
// unless the list has only one. A song that can't be opened leaves a line in the log, once in a
// game, and silence.
void nextSong();

// Draws songTitle at the foot of the screen, and starts the next song when the last one has ended.
// When no song of the list can be opened it stops asking for them.
void showSongLine();

// Gives all songs a new chance, at the start of a game.
void forgetFailedSongs();

}  // namespace glonks
