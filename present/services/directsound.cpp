#include "present/services/directsound.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <vector>

#include "present/services/audiodevice.h"
#include "present/services/failure.h"
#include "present/services/filebytes.h"

namespace glonks {
namespace {

constexpr int effectVolume = MIX_MAX_VOLUME * 3 / 4;  // leaves room for ten effects at once

std::string unusable(const std::string& path) { return "The sound \"" + path + "\" can't be used"; }

// The bytes of a wave file that holds a sound.
std::vector<unsigned char> waveBytes(const std::string& path) {
  std::vector<unsigned char> bytes = fileBytes(path);
  SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "strict");  // a cut-off file is a damaged one
  SDL_AudioSpec format;
  Uint8* samples = nullptr;
  Uint32 length = 0;
  SDL_RWops* memory = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
  if (SDL_LoadWAV_RW(memory, 1, &format, &samples, &length) == nullptr) {
    fail(ErrorNumber::badFile, unusable(path));
  }
  SDL_FreeWAV(samples);
  if (length == 0) fail(ErrorNumber::badFile, unusable(path), "it holds no sound");
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
    if (!hasAudioDevice() || Mix_PlayChannel(-1, chunk_, 0) >= 0) return;
    Mix_AllocateChannels(Mix_AllocateChannels(-1) + voicesAtOnce);
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

}  // namespace

void DirectSound::SetCooperativeLevel(i32 /*hWnd*/, i32 /*level*/) {}

Sample DirectSound::CreateSoundBufferFromFile(const std::string& path, const SampleDesc& /*desc*/,
                                              const SampleFormat& /*format*/) {
  const std::vector<unsigned char> bytes = waveBytes(path);
  if (!hasAudioDevice()) return std::make_shared<SilentBuffer>();
  SDL_RWops* memory = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
  Mix_Chunk* chunk = Mix_LoadWAV_RW(memory, 1);
  if (chunk == nullptr) fail(ErrorNumber::badFile, unusable(path));
  return std::make_shared<MixedBuffer>(chunk);
}

std::shared_ptr<DirectSound> createDirectSound(const std::string& /*device*/) {
  openAudioDevice();
  return std::make_shared<DirectSound>();
}

}  // namespace glonks
