#include "present/services/audiodevice.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <utility>

namespace glonks {
namespace {

constexpr int deviceRate = 44100;  // samples a second
constexpr int deviceChannels = 2;
constexpr int deviceBlock = 1024;  // samples at a time: 23 ms

bool deviceOpen = false;
std::string soundNotice;

}  // namespace

void openAudioDevice() {
  if (deviceOpen) {
    Mix_HaltMusic();
    Mix_HaltChannel(-1);
    Mix_CloseAudio();
    deviceOpen = false;
  }
  // Brings up SDL's audio part too, which has to stay up as long as the device is open.
  deviceOpen = Mix_OpenAudio(deviceRate, MIX_DEFAULT_FORMAT, deviceChannels, deviceBlock) == 0;
  if (deviceOpen) {
    Mix_AllocateChannels(voicesAtOnce);
  } else {
    soundNotice = std::string("no sound: ") + SDL_GetError();
  }
}

bool hasAudioDevice() { return deviceOpen; }

void noteDeviceRemoved() {
  if (deviceOpen) soundNotice = "no sound: the sound device has gone";
}

std::string takeSoundNotice() { return std::exchange(soundNotice, std::string()); }

}  // namespace glonks
