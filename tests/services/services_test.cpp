#include <SDL.h>
#include <SDL_mixer.h>
#include <dlfcn.h>
#include <sys/stat.h>

#include <algorithm>

#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "present/services/directx.h"
#include "present/services/window.h"
#include "tests/fakes/clock.h"
#include "tests/tempfolder.h"

// Two of SDL's functions, in the place of its own.

static int timesMaximised = 0;
extern "C" void SDL_MaximizeWindow(SDL_Window* /*window*/) { ++timesMaximised; }

static bool surfaceRefused = false;  // the next time
extern "C" SDL_Surface* SDL_GetWindowSurface(SDL_Window* window) {
  static void* const own = dlsym(RTLD_NEXT, "SDL_GetWindowSurface");
  if (std::exchange(surfaceRefused, false)) return nullptr;
  return reinterpret_cast<decltype(&SDL_GetWindowSurface)>(own)(window);
}

namespace glonks {
namespace {

constexpr u32 white = 0xFFFFFF, red = 0xFF0000, blue = 0x0000FF;

// A picture of which keyed blits leave out the white pixels.
Surface picture(i32 width, i32 height, auto color) {
  std::vector<u32> pixels;
  for (i32 i = 0; i < width * height; ++i) pixels.push_back(color(i % width, i / width));
  auto surface = std::make_shared<DirectDrawSurface7>(width, height);
  surface->setPixels(std::move(pixels));
  surface->SetColorKey(sourceBlitKey, {white, white});
  surface->SetFont({"Times New Roman", 12});
  surface->SetForeColor(0xFFFFFF);
  return surface;
}

Surface plain(i32 width, i32 height, u32 color) {
  return picture(width, height, [color](i32, i32) { return color; });
}

bool looksLike(const Surface& surface, auto color) {
  const Surface other = picture(surface->width(), surface->height(), color);
  return std::equal(surface->pixels(), &surface->pixels()[other->width() * other->height()],
                    other->pixels());
}

// Every pixel another colour, those of one diagonal white.
u32 motley(i32 x, i32 y) { return x == y ? white : static_cast<u32>(0x100000 + x * 0x100 + y); }

// Between two surfaces that change before each blit, in every way: blits keep what they have worked
// out, and it must never be out of date.
TEST(Surface, BlitsShowTheirSourceAsItIsAndAreCutOffAtAllEdges) {
  const Surface pair[] = {picture(11, 8, motley), picture(11, 8, motley)};
  u32 keys[] = {white, white};
  for (i32 i = 0; i < 2000; ++i) {
    const Surface& source = pair[i / 5 % 2];
    const Surface& target = pair[1 - i / 5 % 2];
    u32& key = keys[i / 5 % 2];
    if (i % 5 == 1) source->BltColorFill({i % 6, i % 3, i % 6 + 4, 9}, i % 10 == 1 ? red : blue);
    if (i % 5 == 2) source->DrawText(i % 7 - 3, i % 5 - 8, std::to_string(i), False);
    if (i % 5 == 3) {
      key = source->pixel(5, 4);
      source->SetColorKey(sourceBlitKey, {static_cast<i32>(key), static_cast<i32>(key)});
    }
    if (i % 5 == 4) source->setPixels(std::vector<u32>(11 * 8, static_cast<u32>(i)));
    const Rect to{i % 20 - 7, i / 20 % 17 - 6, i % 20 - 1, i / 20 % 17 - 1};
    const Rect from{i / 20 % 5, i / 100 % 4, i / 20 % 5 + 6, i / 100 % 4 + 5};
    const bool keyed = i % 3 > 0;
    const Surface before = picture(11, 8, [&](i32 x, i32 y) { return target->pixel(x, y); });
    target->BltColorFill(to, 0x123456);
    target->Blt(to, source, from, keyed ? bltKeyed : bltOpaque);
    const auto expected = [&](i32 x, i32 y) {
      if (x < to.left || x >= to.right || y < to.top || y >= to.bottom) return before->pixel(x, y);
      const u32 pixel = source->pixel(x - to.left + from.left, y - to.top + from.top);
      return keyed && pixel == key ? 0x123456U : pixel;
    };
    ASSERT_TRUE(looksLike(target, expected)) << "step " << i;
  }
}

TEST(Surface, BlitsStretchSmoothlyOrWithoutAFringe) {
  const Surface source = plain(20, 20, white);
  source->BltColorFill({0, 0, 10, 20}, red);
  const Surface target = plain(60, 80, blue);
  EXPECT_NE(target->Blt({0, 0, 4, 3}, source, {2, 2, 2, 3}, bltOpaque), 0);
  target->Blt({}, source, {-10, -20, 20, 20}, bltKeyed);  // nothing from outside the picture
  const auto corner = [](i32 x, i32 y) { return x >= 20 && x < 40 && y >= 40 ? red : blue; };
  EXPECT_TRUE(looksLike(target, corner));
  target->Blt({}, source, {}, bltOpaque);
  EXPECT_TRUE(target->pixel(30, 0) != red && target->pixel(30, 0) != white) << "a hard step";
}

TEST(Text, DrawnAgainItLooksAsDrawnOnceAndIsCutOffAtTheEdges) {
  const Surface large = plain(400, 200, 0);
  large->DrawText(150, 90, "Qgp 100", False);
  for (const auto& [left, top] : {std::pair{3, 4}, {-20, -9}, {35, 5}, {5, 25}, {-300, 3}}) {
    const Surface surface = plain(60, 30, 0);
    const auto expected = [&, l = left, t = top](i32 x, i32 y) {
      return x - l < 250 ? large->pixel(x - l + 150, y - t + 90) : 0;
    };
    for (const bool paintedOver : {false, false, true}) {
      if (paintedOver) surface->BltColorFill({}, 0);
      surface->DrawText(left, top, "Qgp 100", False);
      EXPECT_TRUE(looksLike(surface, expected)) << "at " << left << ", " << top;
    }
  }
}

using PictureFile = TempFolder;

TEST_F(PictureFile, LoadsOrIsToldByName) {
  SurfaceDesc desc;
  const auto load = [&](const std::string& bytes) {
    putBytes("\\x.bmp", bytes);
    return DirectDraw7().CreateSurfaceFromFile("\\x.bmp", desc);
  };
  const std::string apple = bytesOf("\\images\\apple.bmp");
  // One pixel on another, with sizes of 16 bits in the header.
  const std::string old(
      "BM\x22\0\0\0\0\0\0\0\x1A\0\0\0\x0C\0\0\0\1\0\2\0\1\0\x18\0\3\2\1\0\6\5\4\0", 34);
  EXPECT_TRUE(looksLike(load(old), [](i32, i32 y) { return y == 0 ? 0x040506U : 0x010203U; }));
  EXPECT_EQ(load(apple)->width() + desc.height, 180);
  const auto with = [](std::string bytes, std::size_t at, const std::string& others) {
    return bytes.replace(at, others.size(), others);
  };
  const std::pair<std::string, const char*> table[] = {
      {with(old, 18, "\1\x20"), "out of range"},      {with(old, 20, "\1\x20"), "out of range"},
      {with(apple, 20, "\1"), "out of range"},        {with(apple, 25, "\x80"), "out of range"},
      {with(apple, 0, "GIF89a"), "no bitmap"},        {apple.substr(0, 25), "no bitmap"},
      {apple.substr(0, apple.size() - 5), "\\x.bmp"}, {with(apple, 28, "\7"), "\\x.bmp"}};
  for (const auto& [bytes, error] : table) {
    EXPECT_PRED2(holds, errorOf([&, &b = bytes] { load(b); }), error);
  }
}

// The scan codes of all keys that are down, added up.
i32 downKeys() {
  DirectInputDevice keyboard;
  keyboard.SetCommonDataFormat(1);
  keyboard.SetCooperativeLevel(1, 0xA);
  keyboard.Acquire();
  KeyState keys = {};
  keyboard.GetDeviceStateKeyboard(keys);
  i32 sum = 0;
  for (i32 code = 0; code < 256; ++code) sum += keys[code] != 0 ? code : 0;
  return sum;
}

i32 told = 0;  // the keys that were down when the game was last told of one; -1: asked to close

struct Window : ::testing::Test {
  ~Window() override { closeWindow(handle); }
  static i32 open() {
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    return openWindow("Glonks", {[] { told = downKeys(); }, [] { told = -1; }});
  }
  SDL_Window* window() const { return SDL_GetWindowFromID(static_cast<Uint32>(handle)); }
  // What the game is told of one event, of a key or of the window.
  static i32 send(Uint32 type, int what, Uint16 modifiers = 0, Uint8 repeat = 0) {
    SDL_Event event = {};
    const SDL_Keysym key = {static_cast<SDL_Scancode>(what), 0, modifiers, 0};
    event.key = {type, 0, 0, 0, repeat, 0, 0, key};
    if (type == SDL_WINDOWEVENT) event.window.event = static_cast<Uint8>(what);
    SDL_PushEvent(&event);
    letWindowMessagesThrough();
    return std::exchange(told, 0);
  }
  // Alt+Enter, held so long that it repeats itself.
  static void switchFullScreen() {
    for (const Uint8 repeat : {0, 1}) send(SDL_KEYDOWN, SDL_SCANCODE_RETURN, KMOD_LALT, repeat);
  }
  i32 handle = open();
};

TEST_F(Window, HearsKeysByTheirScanCodesUntilItLosesTheFocus) {
  SDL_InitSubSystem(SDL_INIT_AUDIO);  // sound keeps SDL's queue of events over a window's end
  // A key that is held when the focus returns; SDL gives a view of its own table.
  const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[SDL_SCANCODE_DOWN] = 1;
  // Each event with what the game is told of it, and whether the screen is lost then.
  const std::tuple<const char*, Uint32, int, i32, bool> events[] = {
      {"Escape", SDL_KEYDOWN, SDL_SCANCODE_ESCAPE, 1, false},
      {"P", SDL_KEYDOWN, SDL_SCANCODE_P, 1 + 25, false},
      {"N", SDL_KEYDOWN, SDL_SCANCODE_N, 1 + 25 + 49, false},
      {"Up", SDL_KEYDOWN, SDL_SCANCODE_UP, 1 + 25 + 49 + 200, false},
      {"focus lost", SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST, 0, true},
      {"for another program", SDL_KEYDOWN, SDL_SCANCODE_RIGHT, 0, true},
      {"focus back", SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED, 0, false},
      {"held since before", SDL_KEYDOWN, SDL_SCANCODE_DOWN, 0, false},
      {"Left", SDL_KEYDOWN, SDL_SCANCODE_LEFT, 203, false},
      {"let go", SDL_KEYUP, SDL_SCANCODE_DOWN, 0, false},
      {"pressed again", SDL_KEYDOWN, SDL_SCANCODE_DOWN, 203 + 208, false},
      {"minimised", SDL_WINDOWEVENT, SDL_WINDOWEVENT_MINIMIZED, 0, true},
      {"restored", SDL_WINDOWEVENT, SDL_WINDOWEVENT_RESTORED, 0, false},
      {"focus back again", SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED, 0, false},
      {"minimised again", SDL_WINDOWEVENT, SDL_WINDOWEVENT_MINIMIZED, 0, true},
      {"close box", SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE, -1, true}};
  for (const auto& [name, type, what, expected, lost] : events) {
    for (const Uint8 repeat : {0, 1}) EXPECT_EQ(send(type, what, 0, repeat), expected) << name;
    EXPECT_EQ(DirectDraw7().TestCooperativeLevel() != 0, lost) << name;
  }
  closeWindow(handle);
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE);
  handle = open();
  letWindowMessagesThrough();
  EXPECT_TRUE(told == 0 && downKeys() == 0 && !screenLost()) << "a window starts afresh";
  EXPECT_EQ(send(SDL_KEYDOWN, SDL_SCANCODE_DOWN), 208);
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

TEST_F(Window, KeepsTheSizeThatThePlayerGaveIt) {
  timesMaximised = 0;
  switchFullScreen();
  SDL_SetWindowSize(window(), 640, 480);
  setWindowState(handle, WindowState::maximised);
  EXPECT_EQ(timesMaximised, 0) << "only a window over the whole screen is";
  switchFullScreen();
  setWindowState(handle, WindowState::maximised);
  EXPECT_TRUE(timesMaximised == 1 && SDL_GetWindowSurface(window())->w == 1024);
  for (const int width : {640, 700}) {
    switchFullScreen();
    EXPECT_EQ(SDL_GetWindowSurface(window())->w, width);
    SDL_SetWindowSize(window(), 700, 480);
    closeWindow(handle);
    handle = open();  // the next game
  }
}

// Both through a texture and on the window's own surface.
TEST_F(Window, ShowsPicturesAtTheGamesPaceAndAgainWhenUncovered) {
  switchFullScreen();
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST);
  for (const bool texture : {true, false}) {
    SDL_SetWindowSize(window(), 1024, 768);
    surfaceRefused = texture;
    DirectDraw7 dd;
    dd.SetCooperativeLevel(handle, 0x51);
    dd.SetDisplayMode(300, 100, 16, 0, 0);
    const Surface primary = dd.CreateSurface({0x21, 0x218, 1, 0, 0});
    primary->Flip(nullptr, flipWait);
    const auto standing = [this] {
      const SDL_Surface* screen = SDL_GetWindowSurface(window());
      const auto* pixels = static_cast<const u32*>(screen->pixels);
      return std::vector<u32>(pixels, pixels + screen->w * screen->h);
    };
    for (i32 i = 0; i < 20; ++i) {
      const Rect part{i % 4 * 71, i * 5 % 30, i % 4 * 64 + 64, i % 3 * 32 + 32};
      primary->GetAttachedSurface(4)->BltColorFill(i < 19 ? part : Rect{}, i * 0x0D0B07);
      const u32 before = fake::clockNow;
      primary->Flip(nullptr, flipWait);
      EXPECT_EQ(fake::clockNow - before, 16U);
      const std::vector<u32> parts = standing();
      SDL_FillRect(SDL_GetWindowSurface(window()), nullptr, 0);
      send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED);
      ASSERT_TRUE(parts == standing()) << "frame " << i;
    }
    SDL_SetWindowSize(window(), 500, 600);
    letWindowMessagesThrough();
    const std::vector<u32> plain = standing();
    EXPECT_EQ(plain[300 * 500] - plain[200 * 500] - plain[400 * 500], 19 * 0x0D0B07U)
        << "with bars";
  }
}

const char* const songPath = "\\music\\Low Tide Radio - Seven Rows";

struct Sound : TempFolder {
  // With SDL's device that plays to nobody, or one that can't be opened.
  void open(const char* driver) {
    setenv("SDL_AUDIODRIVER", driver, 1);
    while (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
    createDirectSound("");
    sound = createDirectSound("");  // as a second game does
    BASS_Init(1, 44100, 0, 1, 0);
  }
  Sample load(const std::string& path) {
    return sound->CreateSoundBufferFromFile(path, {0xE2}, {1, 2, 22050, 16, 4, 88200});
  }
  static u32 song(const std::string& path) { return BASS_StreamCreateFile(0, path, 0, 0, 0); }
  std::shared_ptr<DirectSound> sound;
};

TEST_F(Sound, LoadsWithAndWithoutADevice) {
  const std::string pop = bytesOf("\\sounds\\_pop01.wav");
  putBytes("\\song", "OggS" + std::string(5000, 'x'));
  std::filesystem::create_symlink("/dev/zero", folder / "device");
  mkfifo((folder / "pipe").c_str(), 0600);
  for (const std::string driver : {"dummy", "none such"}) {
    open(driver.c_str());
    EXPECT_EQ(takeSoundNotice().substr(0, 8), driver == "dummy" ? "" : "no sound");
    for (const auto& file : std::filesystem::directory_iterator(folder / "sounds")) {
      load("\\sounds\\" + file.path().filename().string())->Play(0);
    }
    for (const std::string& bytes : {std::string(), pop.substr(0, 40) + std::string(4, '\0'),
                                     pop.substr(0, pop.size() - 9), "OggS" + pop.substr(4)}) {
      putBytes("\\bad.wav", bytes);
      EXPECT_PRED2(holds, errorOf([&] { load("\\bad.wav"); }), "\"\\bad.wav\"") << bytes.size();
    }
    for (const std::string path : {"\\sounds", "\\device", "\\pipe"}) {
      EXPECT_PRED2(holds, errorOf([&] { load(path); }), "\"" + path + "\" is not a regular file");
      EXPECT_EQ(song(path), 0U) << path;
    }
    EXPECT_EQ(song("\\sounds\\_pop01.wav") + song("\\none"), 0U) << driver;
    EXPECT_EQ(song("\\song") == 0, driver == "dummy") << "damaged after its first bytes";
  }
  EXPECT_EQ(takeSoundNotice(), "") << "it is reported once that there is no device";
  EXPECT_NE(BASS_ChannelIsActive(song(songPath)), 0) << "a silent song doesn't end";
}

TEST_F(Sound, PlaysManySamplesAndOneSong) {
  open("dummy");
  EXPECT_EQ(Mix_QuerySpec(nullptr, nullptr, nullptr), 1)
      << "the device was opened again, not twice";
  const Sample clapping = load("\\sounds\\_clapping01.wav");
  const Sample other = load("\\sounds\\_clapping02.wav");
  for (int i = 0; i < 45; ++i) clapping->Play(0);
  other->Play(0);
  EXPECT_EQ(Mix_Playing(-1), 46);
  clapping->Stop();
  EXPECT_EQ(Mix_Playing(-1), 1) << "only the one that was stopped is cut off";

  const u32 first = song(songPath);
  const u32 second = song(songPath);
  BASS_Pause();
  BASS_StreamPlay(second, 0, 0);
  EXPECT_EQ(Mix_PausedMusic(), 1) << "a song started in a pause waits";
  BASS_StreamFree(first);
  EXPECT_EQ(BASS_ChannelIsActive(first), 0) << "one song at a time";
  EXPECT_NE(BASS_ChannelIsActive(second), 0) << "an old handle frees nothing";
}

}  // namespace
}  // namespace glonks
