#pragma once

#include <set>
#include <string>
#include <vector>

#include "base/types.h"

// Lists of what has been heard, linked in the place of the sound device.
namespace glonks::fake {

struct Heard {
  // Samples by the name of their file, "_pop01", in the order of playing; "stop _moverow" where one
  // was cut off.
  std::vector<std::string> sounds;
  std::set<std::string> brokenSamples;     // playing one of these raises an error
  std::vector<std::string> samplesLoaded;  // in the order of loading
  bool musicReady = false;                 // between BASS_Init and BASS_Free
  std::vector<std::string> songsOpened;    // paths, also of songs that failed
  std::set<std::string> brokenSongs;       // paths that can't be opened
  u32 songPlaying = 0;                     // handle
  bool songEnded = false;                  // the song that plays has come to its end
  bool musicHalted = false;
  i32 songVolume = -1;
};
inline Heard heard;
inline void resetSound() { heard = {}; }

// The record's fields by their own names, in its order.
[[maybe_unused]] static auto& [sounds, brokenSamples, samplesLoaded, musicReady, songsOpened,
                               brokenSongs, songPlaying, songEnded, musicHalted, songVolume] =
    heard;

}  // namespace glonks::fake
