#include "present/services/keyboardstate.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

namespace glonks {
namespace {

constexpr unsigned char down = 0x80;

KeyState keys = {};
KeyState padKeys = {};
KeyState taps = {};
std::array<bool, SDL_NUM_SCANCODES> muted = {};

// The physical keys and their DirectInput scan codes.
// clang-format off
constexpr std::pair<SDL_Scancode, unsigned char> scanCodes[] = {
    {SDL_SCANCODE_ESCAPE, 1}, {SDL_SCANCODE_1, 2}, {SDL_SCANCODE_2, 3}, {SDL_SCANCODE_3, 4},
    {SDL_SCANCODE_4, 5}, {SDL_SCANCODE_5, 6}, {SDL_SCANCODE_6, 7}, {SDL_SCANCODE_7, 8},
    {SDL_SCANCODE_8, 9}, {SDL_SCANCODE_9, 10}, {SDL_SCANCODE_0, 11}, {SDL_SCANCODE_MINUS, 12},
    {SDL_SCANCODE_EQUALS, 13}, {SDL_SCANCODE_BACKSPACE, 14}, {SDL_SCANCODE_TAB, 15},
    {SDL_SCANCODE_Q, 16}, {SDL_SCANCODE_W, 17}, {SDL_SCANCODE_E, 18}, {SDL_SCANCODE_R, 19},
    {SDL_SCANCODE_T, 20}, {SDL_SCANCODE_Y, 21}, {SDL_SCANCODE_U, 22}, {SDL_SCANCODE_I, 23},
    {SDL_SCANCODE_O, 24}, {SDL_SCANCODE_P, 25}, {SDL_SCANCODE_LEFTBRACKET, 26},
    {SDL_SCANCODE_RIGHTBRACKET, 27}, {SDL_SCANCODE_RETURN, 28}, {SDL_SCANCODE_LCTRL, 29},
    {SDL_SCANCODE_A, 30}, {SDL_SCANCODE_S, 31}, {SDL_SCANCODE_D, 32}, {SDL_SCANCODE_F, 33},
    {SDL_SCANCODE_G, 34}, {SDL_SCANCODE_H, 35}, {SDL_SCANCODE_J, 36}, {SDL_SCANCODE_K, 37},
    {SDL_SCANCODE_L, 38}, {SDL_SCANCODE_SEMICOLON, 39}, {SDL_SCANCODE_APOSTROPHE, 40},
    {SDL_SCANCODE_GRAVE, 41}, {SDL_SCANCODE_LSHIFT, 42}, {SDL_SCANCODE_BACKSLASH, 43},
    {SDL_SCANCODE_Z, 44}, {SDL_SCANCODE_X, 45}, {SDL_SCANCODE_C, 46}, {SDL_SCANCODE_V, 47},
    {SDL_SCANCODE_B, 48}, {SDL_SCANCODE_N, 49}, {SDL_SCANCODE_M, 50}, {SDL_SCANCODE_COMMA, 51},
    {SDL_SCANCODE_PERIOD, 52}, {SDL_SCANCODE_SLASH, 53}, {SDL_SCANCODE_RSHIFT, 54},
    {SDL_SCANCODE_KP_MULTIPLY, 55}, {SDL_SCANCODE_LALT, 56}, {SDL_SCANCODE_SPACE, 57},
    {SDL_SCANCODE_CAPSLOCK, 58}, {SDL_SCANCODE_F1, 59}, {SDL_SCANCODE_F2, 60},
    {SDL_SCANCODE_F3, 61}, {SDL_SCANCODE_F4, 62}, {SDL_SCANCODE_F5, 63}, {SDL_SCANCODE_F6, 64},
    {SDL_SCANCODE_F7, 65}, {SDL_SCANCODE_F8, 66}, {SDL_SCANCODE_F9, 67}, {SDL_SCANCODE_F10, 68},
    {SDL_SCANCODE_KP_7, 71}, {SDL_SCANCODE_KP_8, 72}, {SDL_SCANCODE_KP_9, 73},
    {SDL_SCANCODE_KP_4, 75}, {SDL_SCANCODE_KP_5, 76}, {SDL_SCANCODE_KP_6, 77},
    {SDL_SCANCODE_KP_1, 79}, {SDL_SCANCODE_KP_2, 80}, {SDL_SCANCODE_KP_3, 81},
    {SDL_SCANCODE_KP_0, 82}, {SDL_SCANCODE_F11, 87}, {SDL_SCANCODE_F12, 88},
    {SDL_SCANCODE_KP_ENTER, 156}, {SDL_SCANCODE_RCTRL, 157}, {SDL_SCANCODE_RALT, 184},
    {SDL_SCANCODE_HOME, 199}, {SDL_SCANCODE_UP, 200}, {SDL_SCANCODE_PAGEUP, 201},
    {SDL_SCANCODE_LEFT, 203}, {SDL_SCANCODE_RIGHT, 205}, {SDL_SCANCODE_END, 207},
    {SDL_SCANCODE_DOWN, 208}, {SDL_SCANCODE_PAGEDOWN, 209}, {SDL_SCANCODE_INSERT, 210},
    {SDL_SCANCODE_DELETE, 211}
};
// clang-format on

void setKey(i32 key, unsigned char state) {
  for (const auto& [sdlCode, scanCode] : scanCodes) {
    if (sdlCode == key) keys[scanCode] = state;
  }
}

}  // namespace

KeyState takeKeys() {
  KeyState all = std::exchange(taps, {});
  for (std::size_t i = 0; i < all.size(); ++i) all[i] |= keys[i] | padKeys[i];
  return all;
}

bool pressKey(i32 key) {
  if (muted[static_cast<std::size_t>(key)]) return false;
  setKey(key, down);
  return true;
}

void releaseKey(i32 key) {
  setKey(key, 0);
  muted[static_cast<std::size_t>(key)] = false;
}

void holdPadKey(unsigned char scanCode, bool isDown) { padKeys[scanCode] = isDown ? down : 0; }

void tapKey(unsigned char scanCode) { taps[scanCode] = down; }

void releaseAllKeys() { keys = padKeys = taps = {}; }

void muteHeldKeys() {
  int count = 0;
  const Uint8* held = SDL_GetKeyboardState(&count);
  for (int i = 0; i < std::min<int>(count, SDL_NUM_SCANCODES); ++i) muted[i] = held[i] != 0;
}

void forgetKeys() {
  releaseAllKeys();
  muted.fill(false);
}

}  // namespace glonks
