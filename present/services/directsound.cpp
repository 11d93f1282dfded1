#include "present/services/directsound.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <utility>
#include <vector>

#include "base/errors.h"
#include "present/services/audiodevice.h"
#include "present/services/filebytes.h"

namespace glonks {
namespace {

constexpr int deviceRate = 44100;  // samples a second
constexpr int deviceChannels = 2;
constexpr int deviceBlock = 1024;   // samples at a time: 23 ms
constexpr int channelsAtOnce = 32;  // voices to begin with; more are added when all sound
constexpr int effectVolume = MIX_MAX_VOLUME * 3 / 4;  // leaves room for ten effects at once

bool deviceOpen = false;
std::string soundNotice;

[[noreturn]] void failSample(const std::string& path) {
  throw RuntimeError(ErrorNumber::badFile,
                     "The sound \"" + path + "\" can't be used (" + SDL_GetError() + ").");
}

// The bytes of a wave file that holds a sound.
std::vector<unsigned char> waveBytes(const std::string& path) {
  std::vector<unsigned char> bytes = fileBytes(path);
  SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "strict");  // a cut-off file is a damaged one
  SDL_AudioSpec format;
  Uint8* samples = nullptr;
  Uint32 length = 0;
  SDL_RWops* memory = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
  if (SDL_LoadWAV_RW(memory, 1, &format, &samples, &length) == nullptr) failSample(path);
  SDL_FreeWAV(samples);
  if (length == 0) {
    SDL_SetError("it holds no sound");
    failSample(path);
  }
  return bytes;
}

class SilentBuffer : public DirectSoundBuffer {
 public:
  void Play(i32 /*flags*/) override {}
  void Stop() override {}
};

class MixedBuffer : public DirectSoundBuffer {
 public:
  explicit MixedBuffer(Mix_Chunk* chunk) : chunk_(chunk) { Mix_VolumeChunk(chunk, effectVolume); }
  ~MixedBuffer() override { Mix_FreeChunk(chunk_); }
  MixedBuffer(const MixedBuffer&) = delete;
  MixedBuffer& operator=(const MixedBuffer&) = delete;

  void Play(i32 /*flags*/) override {
    if (!deviceOpen || Mix_PlayChannel(-1, chunk_, 0) >= 0) return;
    Mix_AllocateChannels(Mix_AllocateChannels(-1) + channelsAtOnce);
    Mix_PlayChannel(-1, chunk_, 0);
  }

  void Stop() override {
    const int count = Mix_AllocateChannels(-1);
    for (int channel = 0; channel < count; ++channel) {
      if (Mix_Playing(channel) != 0 && Mix_GetChunk(channel) == chunk_) Mix_HaltChannel(channel);
    }
  }

 private:
  Mix_Chunk* chunk_;
};

class MixedSound : public DirectSound {
 public:
  void SetCooperativeLevel(i32 /*hWnd*/, i32 /*level*/) override {}

  Sample CreateSoundBufferFromFile(const std::string& path, const SampleDesc& /*desc*/,
                                   const SampleFormat& /*format*/) override {
    const std::vector<unsigned char> bytes = waveBytes(path);
    if (!deviceOpen) return std::make_shared<SilentBuffer>();
    SDL_RWops* memory = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    Mix_Chunk* chunk = Mix_LoadWAV_RW(memory, 1);
    if (chunk == nullptr) failSample(path);
    return std::make_shared<MixedBuffer>(chunk);
  }
};

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
    Mix_AllocateChannels(channelsAtOnce);
  } else {
    noteSound(std::string("no sound: ") + SDL_GetError());
  }
}

bool hasAudioDevice() { return deviceOpen; }

void noteDeviceRemoved() {
  if (deviceOpen) noteSound("no sound: the sound device has gone");
}

void noteSound(const std::string& notice) { soundNotice = notice; }

std::string takeSoundNotice() { return std::exchange(soundNotice, std::string()); }

std::shared_ptr<DirectSound> createDirectSound(const std::string& /*device*/) {
  openAudioDevice();
  return std::make_shared<MixedSound>();
}

}  // namespace glonks
