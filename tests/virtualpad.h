#pragma once

#include <SDL.h>

#include "present/services/gamepad.h"

namespace glonks {

// A gamepad of SDL's, plugged in as long as the object lives.
class VirtualPad {
 public:
  static constexpr int axis = SDL_CONTROLLER_BUTTON_MAX;

  // `held`: what is moved all the way before it comes, or -1.
  explicit VirtualPad(int held = -1) {
    readGamepads();  // makes SDL ready
    const int index = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER,
                                                SDL_CONTROLLER_AXIS_MAX, axis, 0);
    id_ = SDL_JoystickGetDeviceInstanceID(index);
    if (held >= 0) set(held, held < axis ? 1 : 32767);
  }
  ~VirtualPad() {
    SDL_JoystickDetachVirtual(index());
    readGamepads();
  }
  // Moves a button, or the axis what - axis.
  void set(int what, int value) const {
    SDL_Joystick* joystick = SDL_JoystickOpen(index());
    if (what < axis) SDL_JoystickSetVirtualButton(joystick, what, static_cast<Uint8>(value));
    if (what >= axis) SDL_JoystickSetVirtualAxis(joystick, what - axis, static_cast<Sint16>(value));
    SDL_JoystickClose(joystick);
  }

 private:
  int index() const {
    int i = 0;
    while (SDL_JoystickGetDeviceInstanceID(i) != id_) ++i;
    return i;
  }

  SDL_JoystickID id_ = 0;
};

}  // namespace glonks
