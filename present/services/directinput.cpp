#include "present/services/directinput.h"

#include "base/errors.h"

namespace glonks {

void DirectInputDevice::SetCommonDataFormat(i32 format) { format_ = format; }

void DirectInputDevice::SetCooperativeLevel(i32 hWnd, i32 /*flags*/) { hWnd_ = hWnd; }

void DirectInputDevice::Acquire() {
  if (format_ == 0 || hWnd_ == 0) {
    throw RuntimeError(ErrorNumber::serviceFailed, "Acquire: the input device isn't set up.");
  }
  acquired_ = true;
}

void DirectInputDevice::GetDeviceStateKeyboard(KeyState& state) const {
  if (!acquired_) {
    throw RuntimeError(ErrorNumber::serviceFailed,
                       "GetDeviceStateKeyboard: the keyboard isn't acquired.");
  }
  state = takeKeys();
}

std::shared_ptr<DirectInputDevice> DirectInput::CreateDevice(const std::string& guid) {
  if (guid != "GUID_SysKeyboard" && guid != "GUID_SysMouse") {
    throw RuntimeError(ErrorNumber::serviceFailed,
                       "CreateDevice: there is no device " + guid + ".");
  }
  return std::make_shared<DirectInputDevice>();
}

}  // namespace glonks
