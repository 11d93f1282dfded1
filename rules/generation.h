#pragma once

// How pieces come into play.
namespace glonks {

// Adds one piece to fallingPieces: its kind drawn by the level's ranges, its column drawn, its
// timer armed. A Bowling Ball drawn for a column that is full to the top takes the top piece at
// once.
void spawnPiece();

// Adds a Music note in a column drawn, whatever the level's ranges are. Raises badFile if the
// catalogue has no "Music".
void spawnMusicNote();

}  // namespace glonks
