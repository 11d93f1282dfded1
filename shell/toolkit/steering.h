#pragma once

#include "shell/toolkit/controls.h"

// Steering the menu without keyboard and mouse.
namespace glonks {

enum class Steer : unsigned char { up, down, left, right, press, back, menu };

// Does in the popup, dialog or window in front what a key would: up and down move within lists and
// texts, left and right in scroll bars, all four in menus; elsewhere they move the focus. press is
// for what has the focus, or a dialog's first button. back closes what Escape closes. menu opens
// and closes the menu bar. If nothing takes it, runs `otherwise`.
void steer(Steer to, Handler otherwise = nullptr);

// Has `look` run while a window of the program is active: at once when one has become so, which
// `first` tells, and then again after as many ms as it returns. It may steer, but raise nothing.
void lookWhileActive(i32 (*look)(Flag first));

}  // namespace glonks
