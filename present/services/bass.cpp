#include "present/services/bass.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <filesystem>

#include "base/paths.h"
#include "present/services/audiodevice.h"

namespace glonks {
namespace {

constexpr i32 fullVolume = 100;

Mix_Music* song = nullptr;
u32 songHandle = 0;  // of `song`, or of the silent one
u32 lastHandle = 0;
bool silent = false;  // a song without a device to play on
bool halted = false;

bool isSong(u32 handle) { return handle != 0 && handle == songHandle; }

void endSong() {
  if (song != nullptr) {
    Mix_HaltMusic();
    Mix_FreeMusic(song);
  }
  song = nullptr;
  songHandle = 0;
}

}  // namespace

Flag BASS_Init(i32 /*device*/, i32 /*frequency*/, i32 /*flags*/, i32 /*hWnd*/, i32 /*reserved*/) {
  endSong();
  halted = false;
  if (!hasAudioDevice()) return False;
  return flagOf((Mix_Init(MIX_INIT_OGG) & MIX_INIT_OGG) != 0);
}

u32 BASS_StreamCreateFile(i32 /*fromMemory*/, const std::string& path, i32 /*offset*/,
                          i32 /*length*/, i32 /*flags*/) {
  endSong();
  const std::filesystem::path place = nativePath(path);
  if (!isRegularFile(place)) return 0;
  SDL_RWops* file = SDL_RWFromFile(place.string().c_str(), "rb");
  if (file == nullptr) return 0;
  silent = !hasAudioDevice();
  if (silent) {
    char mark[4] = {};
    const bool ogg = SDL_RWread(file, mark, 1, sizeof mark) == sizeof mark &&
                     std::equal(mark, mark + sizeof mark, "OggS");
    SDL_RWclose(file);
    if (!ogg) return 0;
  } else {
    song = Mix_LoadMUSType_RW(file, MUS_OGG, 1);
    if (song == nullptr) return 0;
  }
  songHandle = ++lastHandle;
  return songHandle;
}

void BASS_ChannelSetAttributes(u32 handle, i32 /*frequency*/, i32 volume, i32 /*pan*/) {
  if (!isSong(handle)) return;
  Mix_VolumeMusic(std::clamp(volume, 0, fullVolume) * MIX_MAX_VOLUME / fullVolume);
}

void BASS_StreamPlay(u32 handle, i32 /*flush*/, i32 /*flags*/) {
  if (!isSong(handle) || silent) return;
  Mix_PlayMusic(song, 0);
  if (halted) Mix_PauseMusic();
}

i32 BASS_ChannelIsActive(u32 handle) {
  if (!isSong(handle)) return 0;
  return silent ? 1 : Mix_PlayingMusic();
}

void BASS_StreamFree(u32 handle) {
  if (isSong(handle)) endSong();
}

void BASS_Pause() {
  halted = true;
  if (hasAudioDevice()) Mix_PauseMusic();
}

void BASS_Start() {
  halted = false;
  if (hasAudioDevice()) Mix_ResumeMusic();
}

void BASS_Free() {
  endSong();
  halted = false;
}

}  // namespace glonks
