#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>

#include "present/services/bass.h"
#include "present/services/directx.h"
#include "present/services/screen.h"
#include "present/services/window.h"
#include "tests/fakes/clock.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

constexpr u32 white = 0xFFFFFF;
constexpr u32 red = 0xFF0000;
constexpr u32 blue = 0x0000FF;

// A picture of which keyed blits leave out the white pixels.
Surface picture(i32 width, i32 height, auto color) {
  std::vector<u32> pixels;
  for (i32 i = 0; i < width * height; ++i) pixels.push_back(color(i % width, i / width));
  auto surface = std::make_shared<DirectDrawSurface7>(width, height);
  surface->setPixels(std::move(pixels));
  surface->SetColorKey(sourceBlitKey, {0xFFFFFF, 0xFFFFFF});
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

// From changing parts of the source, more than it keeps prepared.
TEST(Surface, BlitsAndFillsAreCutOffAtAllEdges) {
  const Surface source = picture(10, 10, motley);
  for (i32 i = 0; i < 640; ++i) {
    const i32 flags = i % 2 == 0 ? bltOpaque : bltKeyed;
    const Rect to{i / 2 % 20 - 7, i / 40 - 6, i / 2 % 20 - 1, i / 40 - 1};
    const Rect from{i % 5, i % 4, i % 5 + 6, i % 4 + 5};
    const Surface target = plain(11, 8, blue);
    const auto blitted = [&](i32 x, i32 y) {
      const u32 pixel = motley(x - to.left + from.left, y - to.top + from.top);
      const bool shows = x >= to.left && x < to.right && y >= to.top && y < to.bottom;
      return !shows || (flags == bltKeyed && pixel == white) ? blue : pixel;
    };
    target->BltColorFill(to, 0x123456);
    target->Blt(to, plain(6, 5, blue), {}, bltOpaque);
    target->Blt(to, source, from, flags);
    ASSERT_TRUE(looksLike(target, blitted)) << "to " << to.left << ", " << to.top;
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

// Blits keep what they have worked out; it must never be out of date.
TEST(Surface, ABlitShowsItsSourceAsItIsNow) {
  void (*const changes[])(const Surface&) = {
      [](const Surface& s) { s->BltColorFill({}, blue); },
      [](const Surface& s) { s->setPixels(std::vector<u32>(64, blue)); },
      [](const Surface& s) { s->Blt({}, plain(8, 8, blue), {}, bltOpaque); },
      [](const Surface& s) {
        s->SetColorKey(sourceBlitKey, {red, red});
      },
      [](const Surface& s) { s->DrawText(0, -4, "W", False); },
  };
  for (const auto& change : changes) {
    const Surface source = plain(8, 8, red);
    const Surface target = plain(16, 16, blue);
    target->Blt({}, source, {}, bltKeyed);
    change(source);
    target->BltColorFill({}, blue);
    target->Blt({}, source, {}, bltKeyed);
    EXPECT_FALSE(looksLike(target, [](i32, i32) { return red; })) << &change - changes;
  }
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

i32 told = 0;  // how many keys were down when the game was last told of one; -1: asked to close

i32 downKeys() { return static_cast<i32>(std::count(keyTable(), keyTable() + keyCount, 0x80)); }

struct Window : ::testing::Test {
  Window() { setenv("SDL_VIDEODRIVER", "dummy", 1); }
  ~Window() override { closeWindow(handle); }
  static i32 open() {
    return openWindow("Glonks", {[] { told = downKeys(); }, [] { told = -1; }});
  }
  SDL_Window* window() const { return SDL_GetWindowFromID(static_cast<Uint32>(handle)); }
  // What the game is told of one event, of a key or of the window.
  static i32 send(Uint32 type, int what, Uint16 modifiers = 0, Uint8 repeat = 0) {
    SDL_Event event = {};
    event.type = type;
    event.key.repeat = repeat;
    event.key.keysym = {static_cast<SDL_Scancode>(what), 0, modifiers, 0};
    if (type == SDL_WINDOWEVENT) event.window.event = static_cast<Uint8>(what);
    SDL_PushEvent(&event);
    letWindowMessagesThrough();
    return std::exchange(told, 0);
  }
  i32 handle = open();
};

TEST_F(Window, HearsKeysByTheirScanCodes) {
  const std::pair<SDL_Scancode, i32> table[] = {
      {SDL_SCANCODE_ESCAPE, 1}, {SDL_SCANCODE_N, 49},     {SDL_SCANCODE_P, 25},
      {SDL_SCANCODE_UP, 200},   {SDL_SCANCODE_LEFT, 203}, {SDL_SCANCODE_RIGHT, 205}};
  for (const auto& [key, scanCode] : table) {
    for (const Uint8 repeat : {0, 1}) EXPECT_EQ(send(SDL_KEYDOWN, key, 0, repeat), 1) << scanCode;
    EXPECT_NE(keyTable()[scanCode], 0) << scanCode;
    send(SDL_KEYUP, key);
  }
  for (const Uint8 repeat : {0, 1}) {
    EXPECT_EQ(send(SDL_KEYDOWN, SDL_SCANCODE_RETURN, KMOD_LALT, repeat), 0);
  }
  EXPECT_EQ(SDL_GetWindowFlags(window()) & SDL_WINDOW_FULLSCREEN_DESKTOP, 0U);
}

TEST_F(Window, LosesKeysWithTheFocusAndStartsAnew) {
  SDL_InitSubSystem(SDL_INIT_AUDIO);  // sound keeps SDL's queue of events over a window's end
  // A key that is held when the focus returns; SDL gives a view of its own table.
  const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[SDL_SCANCODE_DOWN] = 1;
  // Each event with what the game is told of it, and whether the screen is lost then.
  const std::tuple<const char*, Uint32, int, i32, bool> events[] = {
      {"a key", SDL_KEYDOWN, SDL_SCANCODE_LEFT, 1, false},
      {"focus lost", SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST, 0, true},
      {"for another program", SDL_KEYDOWN, SDL_SCANCODE_RIGHT, 0, true},
      {"focus back", SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED, 0, false},
      {"held since before", SDL_KEYDOWN, SDL_SCANCODE_DOWN, 0, false},
      {"let go", SDL_KEYUP, SDL_SCANCODE_DOWN, 0, false},
      {"pressed anew", SDL_KEYDOWN, SDL_SCANCODE_DOWN, 1, false},
      {"minimised", SDL_WINDOWEVENT, SDL_WINDOWEVENT_MINIMIZED, 0, true},
      {"restored", SDL_WINDOWEVENT, SDL_WINDOWEVENT_RESTORED, 0, false},
      {"minimised again", SDL_WINDOWEVENT, SDL_WINDOWEVENT_MINIMIZED, 0, true},
      {"close box", SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE, -1, true}};
  for (const auto& [name, type, what, expected, lost] : events) {
    EXPECT_EQ(send(type, what), expected) << name;
    EXPECT_EQ(DirectDraw7().TestCooperativeLevel() != 0, lost) << name;
  }
  closeWindow(handle);
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE);
  handle = open();
  letWindowMessagesThrough();
  EXPECT_TRUE(told == 0 && !screenLost() && downKeys() == 0);
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

TEST_F(Window, FlipShowsThePictureAtTheGamesPace) {
  DirectDraw7 dd;
  dd.SetCooperativeLevel(handle, 0x51);
  dd.SetDisplayMode(300, 100, 16, 0, 0);
  const Surface primary = dd.CreateSurface({0x21, 0x218, 1, 0, 0});
  SDL_Surface* screen = SDL_GetWindowSurface(window());
  primary->Flip(nullptr, flipWait);
  const auto shown = [&] {
    const u32 before = fake::clockNow;
    primary->Flip(nullptr, flipWait);
    EXPECT_EQ(fake::clockNow - before, 16U);
    const auto* pixels = static_cast<const u32*>(screen->pixels);
    return std::vector<u32>(pixels, pixels + 1024 * 768);
  };
  for (i32 i = 0; i < 20; ++i) {
    primary->GetAttachedSurface(4)->BltColorFill(
        {i % 4 * 71, i * 5 % 30, i % 4 * 64 + 64, i % 3 * 32 + 32}, i * 0x0D0B07);
    const std::vector<u32> parts = shown();
    SDL_FillRect(screen, nullptr, 0);
    repaintScreen();
    ASSERT_TRUE(parts == shown()) << "frame " << i;
  }
  primary->GetAttachedSurface(4)->BltColorFill({}, 0x0A78E6);
  const std::vector<u32> plain = shown();
  EXPECT_EQ(plain[384 * 1024] - plain[200 * 1024] - plain[600 * 1024], 0x0A78E6U) << "with bars";
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
    EXPECT_EQ(song("\\sounds\\_pop01.wav") + song("\\none"), 0U) << driver;
    EXPECT_EQ(song("\\song") == 0, driver == "dummy") << "damaged behind its first bytes";
  }
  EXPECT_EQ(takeSoundNotice(), "") << "it is told once that there is no device";
  EXPECT_NE(BASS_ChannelIsActive(song(songPath)), 0) << "a silent song doesn't end";
}

TEST_F(Sound, PlaysManySamplesAndOneSong) {
  open("dummy");
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
