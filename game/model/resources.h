#pragma once

#include <array>
#include <string>

#include "base/text.h"
#include "base/types.h"
#include "present/services/directsound.h"
#include "present/services/surface.h"

// Samples and pictures of a game. initVariables loads them all again for each game; a sample is
// named after its wave file.
namespace glonks {

inline Sample _changerow;                     // a row shifts
inline Sample _moverow;                       // the pointer moves
inline Sample _gameover;                      // a piece finds its column full
inline std::array<Sample, 3> connectSounds;   // _connect01 to 03: a piece bounces
inline Sample _pop01;                         // an impact with sound
inline Sample _slam01;                        // a zap
inline Sample _gorgon01;                      // a Gorgon dumps a Gorgon
inline Sample _coin01;                        // a Money piece is removed
inline Sample _gorgon02;                      // a Gorgon is removed
inline Sample _calculate01;                   // a Calculator pays 0 or less
inline Sample _calculate02;                   // a Calculator pays more than 0
inline Sample _bowling01;                     // a Bowling Ball takes a piece off the field
inline std::array<Sample, 3> frogSounds;      // _frog01 to 03
inline Sample _detonate;                      // the Detonator is used
inline Sample _music01;                       // a Music piece is removed
inline Sample _bauble01;                      // a Bauble is bombed or slammed
inline Sample _bauble02;                      // a Bauble's timer runs out
inline std::array<Sample, 3> clappingSounds;  // _clapping01 to 03: applause

inline constexpr i32 letterGlyphs = 26;
inline constexpr i32 glyphCount = 38;  // A to Z, "!", blank, 0 to 9

inline Surface pointerSurface;                         // 70 by 45
inline Surface zapVSurface;                            // 80 by 80
inline Surface zapHSurface;                            // 80 by 80
inline Surface frameSurface;                           // the mode's, 1024 by 768
inline std::array<Surface, glyphCount> glyphSurfaces;  // 50 by 50 each
inline std::array<Surface, 5> frogPictures;            // 100 by 100 each
inline Surface explosionSurface;                       // 300 by 300
inline Surface plateSurface;  // the theme's, 500 by 350, without colour key

// The plates of a theme, numbered from 1, and where one lies.
inline constexpr i16 platesInTheme = 5;
inline std::string platePath(const std::string& theme, i32 number) {
  return "\\themes\\" + theme + "\\plate_0" + plainNumber(number) + ".bmp";
}

}  // namespace glonks
