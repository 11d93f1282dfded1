#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <random>

#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "present/services/directsound.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

class Sound : public TempFolder {
 protected:
  // SDL's device that plays to nobody, or one that can't be opened.
  Sound() { useDriver("dummy"); }
  ~Sound() override {
    samples.clear();
    sound.reset();
    BASS_Free();
    useDriver("dummy");
  }
  void useDriver(const char* driver) {
    setenv("SDL_AUDIODRIVER", driver, 1);
    while (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
    takeSoundNotice();
  }
  void open() {
    sound = createDirectSound("");
    sound->SetCooperativeLevel(1, 1);
    BASS_Init(1, 44100, 0, 1, 0);
  }
  Sample load(const std::string& path) {
    return sound->CreateSoundBufferFromFile(path, {0xE2}, {1, 2, 22050, 16, 4, 88200});
  }
  static u32 song(const std::string& path) { return BASS_StreamCreateFile(0, path, 0, 0, 0); }
  std::string anySong() const {
    const auto first = *std::filesystem::directory_iterator(folder / "music");
    return "\\music\\" + first.path().filename().string();
  }
  std::shared_ptr<DirectSound> sound;
  std::vector<Sample> samples;
};

TEST_F(Sound, EverySampleOfTheGameLoads) {
  for (const char* driver : {"dummy", "none such"}) {
    useDriver(driver);
    open();
    samples.clear();
    for (const auto& file : std::filesystem::directory_iterator(folder / "sounds")) {
      const std::string path = "\\sounds\\" + file.path().filename().string();
      EXPECT_EQ(errorOf([&] { samples.push_back(load(path)); }), "no error");
      samples.back()->Play(0);
    }
    EXPECT_EQ(samples.size(), 24U) << driver;
  }
}

TEST_F(Sound, BadFilesAreToldByName) {
  const std::string pop = bytesOf("\\sounds\\_pop01.wav");
  const std::string tables[] = {"",
                                "R",
                                pop.substr(0, 10),
                                pop.substr(0, 20),
                                pop.substr(0, 43),
                                pop.substr(0, 44),  // a header and no sound
                                "OggS" + pop.substr(4),
                                "RIFF" + std::string(500, '\xFF'),
                                std::string(500, '\0')};
  for (const char* driver : {"dummy", "none such"}) {
    useDriver(driver);
    open();
    for (const std::string& bytes : tables) {
      putBytes("\\bad.wav", bytes);
      EXPECT_PRED2(holds, errorOf([&] { load("\\bad.wav"); }), "\"\\bad.wav\"")
          << driver << ", " << bytes.size() << " bytes";
    }
    EXPECT_PRED2(holds, errorOf([&] { load("\\none.wav"); }), "\"\\none.wav\"");
  }
  useDriver("dummy");
  open();
  for (unsigned seed = 0; seed < 300; ++seed) {
    std::mt19937 random(seed);
    std::string bytes = pop;
    for (int i = 0; i < 4; ++i) bytes[random() % 48] = static_cast<char>(random());
    putBytes("\\bad.wav", bytes);
    const std::string error = errorOf([&] { load("\\bad.wav"); });
    EXPECT_TRUE(error == "no error" || holds(error, "\"\\bad.wav\"")) << seed << ": " << error;
  }
}

TEST_F(Sound, NoSampleIsRefusedWhileManySound) {
  open();
  const Sample clapping = load("\\sounds\\_clapping01.wav");
  const Sample other = load("\\sounds\\_clapping02.wav");
  for (int i = 0; i < 45; ++i) clapping->Play(0);
  other->Play(0);
  EXPECT_EQ(Mix_Playing(-1), 46);
  clapping->Stop();
  EXPECT_EQ(Mix_Playing(-1), 1) << "only the one that was stopped is cut off";
  EXPECT_EQ(takeSoundNotice(), "");
  noteDeviceRemoved();
  EXPECT_PRED2(holds, takeSoundNotice(), "gone");
}

// A device that was shut behind the mixer's back takes all sounds and plays none of them.
TEST_F(Sound, SamplesComeToTheirEnd) {
  for (int game = 0; game < 2; ++game) {
    open();
    const Sample pop = load("\\sounds\\_pop01.wav");
    pop->Play(0);
    EXPECT_EQ(Mix_Playing(-1), 1);
    for (int i = 0; i < 500 && Mix_Playing(-1) != 0; ++i) SDL_Delay(10);
    EXPECT_EQ(Mix_Playing(-1), 0) << "game " << game;
  }
}

TEST_F(Sound, WithoutADeviceTheGameIsSilentAndSaysSoOnce) {
  useDriver("none such");
  open();
  EXPECT_FALSE(hasAudioDevice());
  EXPECT_PRED2(holds, takeSoundNotice(), "no sound");
  EXPECT_EQ(takeSoundNotice(), "");
  const Sample pop = load("\\sounds\\_pop01.wav");
  pop->Play(0);
  pop->Stop();
  EXPECT_EQ(takeSoundNotice(), "");

  const u32 handle = song(anySong());
  ASSERT_NE(handle, 0U);
  BASS_StreamPlay(handle, 0, 0);
  BASS_Pause();
  BASS_Start();
  EXPECT_NE(BASS_ChannelIsActive(handle), 0) << "a silent song doesn't end";
  EXPECT_EQ(song("\\sounds\\_pop01.wav"), 0U);
}

TEST_F(Sound, ASongPlaysUntilItIsFreed) {
  open();
  const std::string path = anySong();
  const u32 first = song(path);
  ASSERT_NE(first, 0U);
  for (const auto& [volume, expected] :
       {std::pair{50, 64}, {100, 128}, {0, 0}, {-5, 0}, {300, 128}}) {
    BASS_ChannelSetAttributes(first, -1, volume, -101);
    EXPECT_EQ(Mix_VolumeMusic(-1), expected) << volume;
  }
  EXPECT_EQ(BASS_ChannelIsActive(first), 0);
  BASS_StreamPlay(first, 0, 0);
  EXPECT_NE(BASS_ChannelIsActive(first), 0);

  const u32 second = song(path);
  BASS_StreamPlay(second, 0, 0);
  EXPECT_EQ(BASS_ChannelIsActive(first), 0) << "one song at a time";
  BASS_StreamFree(first);
  BASS_StreamFree(0);
  EXPECT_NE(BASS_ChannelIsActive(second), 0) << "an old handle frees nothing";
  BASS_StreamFree(second);
  EXPECT_EQ(BASS_ChannelIsActive(second), 0);
  EXPECT_EQ(Mix_PlayingMusic(), 0);
}

TEST_F(Sound, WhatIsNoSongGivesNoHandle) {
  open();
  EXPECT_EQ(song("\\none"), 0U);
  EXPECT_EQ(song("\\init"), 0U);
  for (unsigned seed = 0; seed < 100; ++seed) {
    std::mt19937 random(seed);
    std::string bytes(seed * 40, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    putBytes("\\song", (seed % 2 == 0 ? "OggS" : "") + bytes);
    EXPECT_EQ(song("\\song"), 0U) << "seed " << seed;
  }
  BASS_ChannelSetAttributes(0, -1, 50, -101);
  BASS_StreamPlay(0, 0, 0);
  EXPECT_EQ(BASS_ChannelIsActive(0), 0);
}

TEST_F(Sound, APauseHoldsForSongsStartedInIt) {
  open();
  const std::string path = anySong();
  BASS_Pause();
  for (int songs = 0; songs < 2; ++songs) {
    const u32 handle = song(path);
    BASS_StreamPlay(handle, 0, 0);
    EXPECT_NE(BASS_ChannelIsActive(handle), 0);
    EXPECT_EQ(Mix_PausedMusic(), 1);
  }
  BASS_Start();
  EXPECT_EQ(Mix_PausedMusic(), 0);
  BASS_Pause();
  BASS_Free();  // a game left in its pause
  open();
  BASS_StreamPlay(song(path), 0, 0);
  EXPECT_EQ(Mix_PausedMusic(), 0);
}

}  // namespace
}  // namespace glonks
