#pragma once

#include <SDL.h>

#include "present/services/gamepad.h"

namespace glonks {

// A gamepad of SDL's, plugged in as long as the object lives.
struct VirtualPad {
  static constexpr int axis = SDL_CONTROLLER_BUTTON_MAX;
  VirtualPad() {
    readGamepads();  // makes SDL ready
    joystick = SDL_JoystickOpen(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER,
                                                          SDL_CONTROLLER_AXIS_MAX, axis, 0));
  }
  ~VirtualPad() {
    int index = 0;
    while (SDL_JoystickGetDeviceInstanceID(index) != SDL_JoystickInstanceID(joystick)) ++index;
    SDL_JoystickDetachVirtual(index);
    readGamepads();
    SDL_JoystickClose(joystick);
  }
  // Moves a button, or the axis what - axis.
  void set(int what, int value) const {
    if (what < axis) SDL_JoystickSetVirtualButton(joystick, what, static_cast<Uint8>(value));
    if (what >= axis) SDL_JoystickSetVirtualAxis(joystick, what - axis, static_cast<Sint16>(value));
  }
  SDL_Joystick* joystick = nullptr;
};

}  // namespace glonks
