#pragma once

#include <SDL.h>

#include "present/services/gamepad.h"

namespace glonks {

// A gamepad of SDL's, plugged in as long as the object lives.
class VirtualPad {
 public:
  VirtualPad() {
    readGamepads();  // makes SDL ready
    const int index = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER,
                                                SDL_CONTROLLER_AXIS_MAX, axis, 0);
    joystick_ = SDL_JoystickOpen(index);
    id_ = SDL_JoystickInstanceID(joystick_);
  }
  ~VirtualPad() {
    for (int i = 0; i < SDL_NumJoysticks(); ++i) {
      if (SDL_JoystickGetDeviceInstanceID(i) == id_) SDL_JoystickDetachVirtual(i);
    }
    readGamepads();
    SDL_JoystickClose(joystick_);
  }
  // Moves a button, or the axis what - axis.
  void set(int what, int value) const {
    if (what < axis) SDL_JoystickSetVirtualButton(joystick_, what, static_cast<Uint8>(value));
    if (what >= axis)
      SDL_JoystickSetVirtualAxis(joystick_, what - axis, static_cast<Sint16>(value));
  }
  static constexpr int axis = SDL_CONTROLLER_BUTTON_MAX;

 private:
  SDL_Joystick* joystick_ = nullptr;
  SDL_JoystickID id_ = 0;
};

}  // namespace glonks
