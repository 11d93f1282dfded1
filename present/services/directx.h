#pragma once

#include <memory>
#include <string>

#include "present/services/directdraw.h"
#include "present/services/directinput.h"
#include "present/services/directsound.h"

namespace glonks {

// The root object, from which display, input and sound are made.
class DirectX7 {
 public:
  // `device` "": the default one.
  std::shared_ptr<DirectDraw7> DirectDrawCreate(const std::string& /*device*/) {
    return std::make_shared<DirectDraw7>();
  }
  std::shared_ptr<DirectInput> DirectInputCreate() { return std::make_shared<DirectInput>(); }
  std::shared_ptr<DirectSound> DirectSoundCreate(const std::string& device) {
    return createDirectSound(device);
  }
};

}  // namespace glonks
