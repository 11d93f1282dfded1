#include "tests/fakes/sound.h"

#include <utility>

#include "base/errors.h"
#include "base/paths.h"
#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "present/services/directsound.h"

namespace glonks {
namespace {

struct ListedBuffer : DirectSoundBuffer {
  explicit ListedBuffer(std::string file) : name(std::move(file)) {}
  void Play(i32) override {
    if (fake::brokenSamples.count(name) != 0) {
      throw RuntimeError(ErrorNumber::serviceFailed, "The sound " + name);
    }
    fake::sounds.push_back(name);
  }
  void Stop() override { fake::sounds.push_back("stop " + name); }
  std::string name;
};

}  // namespace

void DirectSound::SetCooperativeLevel(i32, i32) {}
Sample DirectSound::CreateSoundBufferFromFile(const std::string& path, const SampleDesc&,
                                              const SampleFormat&) {
  fake::samplesLoaded.push_back(nativePath(path).stem().string());
  return std::make_shared<ListedBuffer>(fake::samplesLoaded.back());
}
std::shared_ptr<DirectSound> createDirectSound(const std::string&) {
  return std::make_shared<DirectSound>();
}
void noteDeviceRemoved() {}
std::string takeSoundNotice() { return {}; }

Flag BASS_Init(i32, i32, i32, i32, i32) { return flagOf(fake::musicReady = true); }
u32 BASS_StreamCreateFile(i32, const std::string& path, i32, i32, i32) {
  fake::songEnded = false;
  fake::songsOpened.push_back(path);
  return fake::brokenSongs.count(path) != 0 ? 0 : static_cast<u32>(fake::songsOpened.size());
}
void BASS_ChannelSetAttributes(u32 handle, i32, i32 volume, i32) {
  if (handle != 0) fake::songVolume = volume;
}
void BASS_StreamPlay(u32 handle, i32, i32) { fake::songPlaying = handle; }
i32 BASS_ChannelIsActive(u32 handle) {
  return handle != 0 && handle == fake::songPlaying && !fake::songEnded ? 1 : 0;
}
void BASS_StreamFree(u32) { fake::songPlaying = 0; }
void BASS_Pause() { fake::musicHalted = true; }
void BASS_Start() { fake::musicHalted = false; }
void BASS_Free() { fake::musicReady = false; }

}  // namespace glonks
