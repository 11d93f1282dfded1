#include "tests/fakes/sound.h"

#include <filesystem>
#include <utility>

#include "base/errors.h"
#include "base/paths.h"
#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "present/services/directsound.h"

namespace glonks {
namespace {

u32 lastSong = 0;

class ListedBuffer : public DirectSoundBuffer {
 public:
  explicit ListedBuffer(std::string name) : name_(std::move(name)) {}
  void Play(i32 /*flags*/) override {
    if (fake::brokenSamples.count(name_) != 0) {
      throw RuntimeError(ErrorNumber::serviceFailed, "The sound " + name_ + " fails.");
    }
    fake::sounds.push_back(name_);
  }
  void Stop() override { fake::sounds.push_back("stop " + name_); }

 private:
  std::string name_;
};

class ListedSound : public DirectSound {
 public:
  void SetCooperativeLevel(i32 /*hWnd*/, i32 /*level*/) override {}
  Sample CreateSoundBufferFromFile(const std::string& path, const SampleDesc& /*desc*/,
                                   const SampleFormat& /*format*/) override {
    const std::string name = nativePath(path).stem().string();
    fake::samplesLoaded.push_back(name);
    return std::make_shared<ListedBuffer>(name);
  }
};

}  // namespace

namespace fake {

void resetSound() {
  sounds.clear();
  brokenSamples.clear();
  samplesLoaded.clear();
  songsOpened.clear();
  brokenSongs.clear();
  songEnded = false;
  musicHalted = false;
  songVolume = -1;
  soundNotice.clear();
}

}  // namespace fake

std::shared_ptr<DirectSound> createDirectSound(const std::string& /*device*/) {
  return std::make_shared<ListedSound>();
}
std::string takeSoundNotice() { return std::exchange(fake::soundNotice, std::string()); }
void openAudioDevice() {}
bool hasAudioDevice() { return true; }
void noteDeviceRemoved() {}
void noteSound(const std::string& /*notice*/) {}

Flag BASS_Init(i32, i32, i32, i32, i32) {
  fake::musicReady = true;
  return True;
}
u32 BASS_StreamCreateFile(i32, const std::string& path, i32, i32, i32) {
  fake::songsOpened.push_back(path);
  fake::songEnded = false;
  return fake::brokenSongs.count(path) != 0 ? 0 : ++lastSong;
}
void BASS_ChannelSetAttributes(u32 handle, i32, i32 volume, i32) {
  if (handle != 0) fake::songVolume = volume;
}
void BASS_StreamPlay(u32, i32, i32) {}
i32 BASS_ChannelIsActive(u32 handle) { return handle != 0 && !fake::songEnded ? 1 : 0; }
void BASS_StreamFree(u32) {}
void BASS_Pause() { fake::musicHalted = true; }
void BASS_Start() { fake::musicHalted = false; }
void BASS_Free() { fake::musicReady = false; }

}  // namespace glonks
