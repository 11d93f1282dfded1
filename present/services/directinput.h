#pragma once

#include <memory>
#include <string>

#include "base/types.h"
#include "present/services/keyboardstate.h"

// Keyboard and mouse of the game's window. What gamepads do counts as keys.
namespace glonks {

class DirectInputDevice {
 public:
  // 1 keyboard, 2 mouse.
  void SetCommonDataFormat(i32 format);
  // `flags` 0xA: not exclusive, in the background too.
  void SetCooperativeLevel(i32 hWnd, i32 flags);
  void Acquire();
  // The keys as they stand at the message that is being handled; one that can't be held is down for
  // one call. Losing the focus releases all keys. Raises serviceFailed on a device that wasn't
  // acquired.
  void GetDeviceStateKeyboard(KeyState& state) const;

 private:
  i32 format_ = 0;
  i32 hWnd_ = 0;
  bool acquired_ = false;
};

class DirectInput {
 public:
  // `guid`: "GUID_SysKeyboard" or "GUID_SysMouse"; any other raises serviceFailed.
  std::shared_ptr<DirectInputDevice> CreateDevice(const std::string& guid);
};

}  // namespace glonks
