#pragma once

#include <memory>

#include "base/types.h"
#include "present/services/directx.h"

// Takes the screen, input and sound for one game, and gives them back.
namespace glonks {

// All filled by initDX. destroy empties dx and dd; the next initDX replaces the others.
inline std::shared_ptr<DirectX7> dx;
inline std::shared_ptr<DirectDraw7> dd;
inline Surface primarySurface;
inline Surface backBuffer;  // target of all drawing
inline GameFont gameFont;
inline std::shared_ptr<DirectInput> di;
inline std::shared_ptr<DirectInputDevice> keyboard;
inline std::shared_ptr<DirectInputDevice> mouse;  // set up and never read
inline std::shared_ptr<DirectSound> ds;
inline ColorKey colorKey;  // white; for every keyed picture
inline SampleDesc sampleDesc;
inline SampleFormat sampleFormat;
inline i16 screenWidth = 0;  // pixels
inline i16 screenHeight = 0;

// Sets all of it up, with a log line before each step. Expects fConsole to be loaded and shown.
// Raises serviceFailed if the screen or its font can't be had; without sound the game goes on.
void initDX();

// Gives the screen back, closes fConsole and ends the music. Sets gameOver. Called again, it does
// what is left to do.
void destroy();

}  // namespace glonks
