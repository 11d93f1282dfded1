#pragma once

#include <set>
#include <string>
#include <vector>

#include "base/types.h"

// Lists of what has been heard, linked in the place of the sound device.
namespace glonks::fake {

// Samples by the name of their file, "_pop01", in the order of playing; "stop _moverow" where one
// was cut off.
inline std::vector<std::string> sounds;
inline std::set<std::string> brokenSamples;     // playing one of these raises an error
inline std::vector<std::string> samplesLoaded;  // in the order of loading

inline std::vector<std::string> songsOpened;  // paths, also of songs that failed
inline std::set<std::string> brokenSongs;     // paths that can't be opened
inline bool songEnded = false;                // the song that plays has come to its end
inline bool musicReady = false;               // between BASS_Init and BASS_Free
inline bool musicHalted = false;
inline i32 songVolume = -1;
inline std::string soundNotice;

void resetSound();

}  // namespace glonks::fake
