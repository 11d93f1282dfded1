#pragma once

// Loads samples and pictures from the folders beside the program. Both routines need initDX, and
// raise fileNotFound, fileAccess or badFile, naming the file.
namespace glonks {

// The 24 samples of a game, from "\sounds\".
void loadSamples();

// The 49 pictures of a game: those of "\images\", the frame of the mode played, and one plate of
// the theme, its number drawn just before it is loaded.
void loadPictures();

}  // namespace glonks
