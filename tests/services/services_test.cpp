#include <SDL_mixer.h>
#include <png.h>
#include "present/services/audiodevice.h"
#include "present/services/bass.h"
#include "present/services/directx.h"
#include "present/services/messagewait.h"
#include "present/services/screen.h"
#include "present/services/sdlwindow.h"
#include "present/services/window.h"
#include "tests/fakes/clock.h"
#include "tests/tempfolder.h"
#include "tests/virtualpad.h"

// In the place of SDL's own, which does nothing here.
static int timesMaximised = 0;
extern "C" void SDL_MaximizeWindow(SDL_Window* /*window*/) { ++timesMaximised; }

// A wait in which nothing comes.
static std::vector<int> waits;
bool glonks::waitForSystemMessage(i32 longest) {
  waits.push_back(longest);
  fake::clockNow += static_cast<unsigned>(longest);
  return false;
}

namespace glonks {
namespace {

constexpr u32 white = 0xFFFFFF, red = 0xFF0000, blue = 0x0000FF;

// A picture of which keyed blits leave out the white pixels.
Surface plain(i32 width, i32 height, u32 color) {
  auto surface = std::make_shared<DirectDrawSurface7>(width, height);
  surface->BltColorFill({}, static_cast<i32>(color));
  surface->SetColorKey(sourceBlitKey, {white, white});
  surface->SetFont({"Times New Roman", 12});
  surface->SetForeColor(white);
  return surface;
}

const u32* at(const Surface& surface, i32 x, i32 y) { return surface->raster()->row(y) + x; }

std::vector<u32> pixelsOf(const Surface& surface) { return surface->raster()->pixels; }

// Between two surfaces that change before each blit, in every way: blits keep what they have worked
// out, and it must never be out of date.
TEST(Surface, BlitsShowTheirSourceAsItIsAndAreCutOffAtAllEdges) {
  const Surface pair[] = {plain(11, 8, red), plain(11, 8, white)};
  i32 keys[] = {white, white};
  for (i32 i = 0; i < 2000; ++i) {
    const Surface& source = pair[i / 5 % 2];
    const Surface& target = pair[1 - i / 5 % 2];
    i32& key = keys[i / 5 % 2];
    if (i % 5 == 1) source->BltColorFill({i % 6, i % 3, i % 6 + 4, 9}, i % 10 == 1 ? red : blue);
    if (i % 5 == 2) source->DrawText(i % 7 - 3, i % 5 - 8, std::to_string(i), False);
    if (i % 5 == 3) key = static_cast<i32>(*at(source, 5, 4));
    if (i % 5 == 3) source->SetColorKey(sourceBlitKey, {key, key});
    if (i % 5 == 4) source->Blt({}, plain(3, 2, static_cast<u32>(i)), {}, bltOpaque);
    const Rect to{i % 20 - 7, i / 20 % 17 - 6, i % 20 - 1, i / 20 % 17 - 1};
    const Rect from{i / 20 % 5, i / 100 % 4, i / 20 % 5 + 6, i / 100 % 4 + 5};
    std::vector<u32> expected = pixelsOf(target);
    for (i32 y = std::max(0, to.top); y < std::min(8, to.bottom); ++y) {
      for (i32 x = std::max(0, to.left); x < std::min(11, to.right); ++x) {
        const u32 pixel = *at(source, x - to.left + from.left, y - to.top + from.top);
        if (i % 3 == 0 || static_cast<i32>(pixel) != key) expected[y * 11 + x] = pixel;
      }
    }
    target->Blt(to, source, from, i % 3 == 0 ? bltOpaque : bltKeyed);
    ASSERT_EQ(pixelsOf(target), expected) << "step " << i;
  }
}

TEST(Surface, BlitsStretchSmoothlyAndWithoutAFringe) {
  const Surface source = plain(20, 20, white), target = plain(60, 80, blue);
  source->BltColorFill({0, 0, 10, 20}, red);
  target->Blt({}, source, {-10, -20, 20, 20}, bltKeyed);  // nothing from outside the picture
  i32 reds = 0, blues = 0;
  for (const u32 pixel : pixelsOf(target)) {
    ASSERT_TRUE((pixel & 0xFF00) == 0 && (pixel >> 16) + (pixel & 0xFF) - 255 < 2) << "a fringe";
    reds += pixel == red ? 1 : 0, blues += pixel == blue ? 1 : 0;
  }
  EXPECT_TRUE(reds > 700 && reds < 800 && blues > 3800 && blues < 4000) << reds << ", " << blues;
  target->Blt({0, 0, 60, 20}, source, {}, bltOpaque);
  EXPECT_TRUE(*at(target, 30, 0) != red && *at(target, 30, 0) != white) << "a hard step";
}

// A checkered floor of blits that meet, at scales as screens ask for them: each tile ends where the
// next begins, so what shines through is as large as what was left out.
TEST(Surface, NeighboursMeetAtEveryScaleAndAreDrawnAtItsSize) {
  const Surface tile = plain(9, 7, red);
  for (const double scale : {0.37, 1.0, 1.40625, 1.5, 1.875, 2.0}) {
    const auto surface = std::make_shared<DirectDrawSurface7>(90, 70, scale);
    surface->SetFont({"Times New Roman", 12});
    surface->SetForeColor(white);
    surface->DrawText(0, 0, "Hxg", False);
    const i32 width = surface->raster()->width, height = surface->raster()->height;
    EXPECT_TRUE(width == std::lround(90 * scale) && height == std::lround(70 * scale));
    i32 top = height, bottom = 0;  // rows of the text
    for (i32 i = 0; i < width * height; ++i) {
      if (surface->raster()->pixels[i] == 0) continue;
      top = std::min(top, i / width), bottom = i / width;
    }
    EXPECT_NEAR((bottom - top) / scale, 14, 1.5 / scale) << "12 points, at scale " << scale;
    for (i32 i = 0; i < 2500; ++i) {  // more steps than are remembered one by one
      const Rect to{i % 10 * 9, i / 10 % 10 * 7, i % 10 * 9 + 9, i / 10 % 10 * 7 + 7};
      surface->Blt(to, tile, {}, i % 2 == 0 ? bltKeyed : bltOpaque);
    }
    EXPECT_EQ(pixelsOf(surface), std::vector<u32>(width * height, red)) << "scale " << scale;
  }
}

TEST(Surface, TextDrawnAgainLooksAsDrawnOnceAndIsCutOffAtTheEdges) {
  const Surface large = plain(400, 200, 0);
  large->DrawText(150, 90, "Qgp 100", False);
  for (const auto& [left, top] : {std::pair{3, 4}, {-20, -9}, {35, 5}, {5, 25}, {-300, 3}}) {
    const Surface surface = plain(60, 30, 0), expected = plain(60, 30, 0);
    expected->Blt({}, large, {150 - left, 90 - top, 210 - left, 120 - top}, bltOpaque);
    for (const bool paintedOver : {false, false, true}) {
      if (paintedOver) surface->BltColorFill({}, 0);
      surface->DrawText(left, top, "Qgp 100", False);
      EXPECT_EQ(pixelsOf(surface), pixelsOf(expected)) << "at " << left << ", " << top;
    }
  }
}

Sample loadWav(const auto& path) { return DirectSound().CreateSoundBufferFromFile(path, {}, {}); }

using Files = TempFolder;

// A PNG of one colour, 0xAARRGGBB.
std::string pngOf(u32 width, u32 height, u32 color, bool fewColors = false) {
  png_image png = {};
  png.version = PNG_IMAGE_VERSION;
  png.width = width, png.height = height, png.colormap_entries = 1;
  png.format = PNG_FORMAT_BGRA | (fewColors ? PNG_FORMAT_FLAG_COLORMAP : 0);
  const std::vector<u32> pixels(static_cast<std::size_t>(width) * height, fewColors ? 0 : color);
  std::string bytes(100000, 0);
  png_alloc_size_t size = bytes.size();
  png_image_write_to_memory(&png, bytes.data(), &size, 0, pixels.data(), 0, &color);
  return bytes.substr(0, size);
}

TEST_F(Files, ThatAreDamagedAreToldByName) {
  const auto load = [](const std::string& path, const std::string& bytes) {
    SurfaceDesc desc;
    putBytes(path, bytes);
    if (path == "\\wav") loadWav(path);
    return DirectDraw7().CreateSurfaceFromFile(path, desc);
  };
  const std::string pop = bytesOf("\\sounds\\_pop01.wav"), png = pngOf(40, 30, red);
  SDL_Surface* saved = SDL_CreateRGBSurface(0, 90, 90, 24, 0xFF0000, 0xFF00, 0xFF, 0);
  SDL_SaveBMP(saved, (folder / "apple").string().c_str());
  SDL_FreeSurface(saved);
  const std::string apple = bytesOf("\\apple");
  // One pixel on another, with sizes of 16 bits in the header.
  const std::string old(
      "BM\x22\0\0\0\0\0\0\0\x1A\0\0\0\x0C\0\0\0\1\0\2\0\1\0\x18\0\3\2\1\0\6\5\4\0", 34);
  const Surface small = plain(1, 2, blue);
  small->Blt({}, load("\\bmp", old), {}, bltKeyed);
  EXPECT_EQ(pixelsOf(small), (std::vector<u32>{0x040506, 0x010203}));
  // Bytes to be put in the place of those that begin at a number.
  const std::tuple<std::string, std::size_t, std::string, const char*> table[] = {
      {old, 20, "\1\x20", "out of range"},
      {apple.substr(0, 25), 0, "", "no bitmap"},
      {apple, 20, "\1", "out of range"},
      {apple.substr(0, apple.size() - 5), 0, "", "\\bmp"},
      {apple, 25, "\x80", "out of range"},
      {pop.substr(0, 40).append(4, 0), 0, "", "sound \"\\wav"},
      {apple, 0, "GIF89a", "no bitmap"},
      {pop.substr(0, pop.size() - 9), 0, "", "sound \"\\wav"},
      {apple, 28, "\7", "\\bmp"},
      {"", 0, "", "\\bmp\" is empty"},
      {png.substr(0, 60), 0, "", "\\bmp"},
      {pngOf(4097, 1, 0), 0, "", "out of range"},
      {png, 20, "\1", "\\bmp"}};
  for (auto [bytes, at, others, error] : table) {
    bytes.replace(at, others.size(), others);
    const auto run = [&, &b = bytes, &e = error] { load(holds(e, "wav") ? "\\wav" : "\\bmp", b); };
    EXPECT_PRED2(holds, errorOf(run), error);
  }
}

TEST_F(Files, PngsAreTakenForBitmapsAtTwiceTheSizeWithWhatTheySayOfSeeingThrough) {
  putBytes("\\half.png", pngOf(5, 4, 0x80FF0000));
  putBytes("\\half.bmp", "none");
  putBytes("\\half2.png", pngOf(5, 4, 0x80FF0000, true));
  SurfaceDesc desc;
  putBytes("\\white.png", pngOf(2, 2, 0xFFFFFFFF));
  const Surface all = DirectDraw7().CreateSurfaceFromFile("\\white.bmp", desc);
  all->SetColorKey(sourceBlitKey, {white, white});
  for (const char* name : {"\\half.bmp", "\\half2.bmp"}) {  // one with a table of colours
    const Surface half = DirectDraw7().CreateSurfaceFromFile(name, desc);
    EXPECT_TRUE(desc.width == 3 && desc.height == 2);
    const auto surface = std::make_shared<DirectDrawSurface7>(12, 8, 1.3);
    surface->Blt({}, all, {}, bltKeyed);
    surface->Blt({0, 0, 12, 8}, half, {0, 0, 2, 2}, bltKeyed);
    EXPECT_EQ(*at(surface, 1, 1), 0xFF7F7FU);
    surface->Blt({0, 0, 12, 8}, half, {0, 0, 2, 2}, bltOpaque);
    EXPECT_EQ(*at(surface, 1, 1), 0x800000U);
  }
}

i32 told = 0;  // the keys that were down when the game was last told of one; -1: asked to close
i32 timesTold = 0;
i32 padsGone = 0;

// The scan codes of all keys that are down, added up.
void noteKeys() {
  told = 0, ++timesTold;
  const KeyState keys = takeKeys();
  for (i32 code = 0; code < 256; ++code) told += keys[code] != 0 ? code : 0;
}

struct Window : ::testing::Test {
  ~Window() override { closeWindow(handle); }
  static i32 open() {
    SDL_setenv("SDL_VIDEODRIVER", "dummy", 1);
    return openWindow("Glonks", {noteKeys, [] { told = -1; }, [] { ++padsGone; }});
  }
  // What the game is told of an event, of a key that is held so long that it repeats itself or of
  // the window.
  static i32 send(Uint32 type, int what, Uint16 modifiers = 0) {
    for (const Uint8 repeat : {0, 1}) {
      told = 0;
      SDL_Event event = {};
      event.key = {type, 0, 0, 0, repeat, 0, 0, {SDL_Scancode(what), 0, modifiers, 0}};
      if (type == SDL_WINDOWEVENT) event.window.event = static_cast<Uint8>(what);
      SDL_PushEvent(&event);
      letWindowMessagesThrough(0);
    }
    return told;
  }
  static void pressAltEnter() { send(SDL_KEYDOWN, SDL_SCANCODE_RETURN, KMOD_LALT); }
  i32 handle = open();
};

TEST_F(Window, HearsKeysByTheirScanCodesUntilItLosesTheFocus) {
  SDL_InitSubSystem(SDL_INIT_AUDIO);  // sound keeps SDL's queue of events over a window's end
  // A key that is held when the focus returns; SDL gives a view of its own table.
  const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[SDL_SCANCODE_DOWN] = 1;
  // Each event with what the game is told of it, and whether the screen is lost then. The second
  // key is for another program.
  constexpr Uint32 key = SDL_KEYDOWN, win = SDL_WINDOWEVENT;
  const std::tuple<Uint32, int, i32, bool> events[] = {
      {key, SDL_SCANCODE_P, 25, false},           {win, SDL_WINDOWEVENT_FOCUS_LOST, 0, true},
      {key, SDL_SCANCODE_RIGHT, 0, true},         {win, SDL_WINDOWEVENT_FOCUS_GAINED, 0, false},
      {key, SDL_SCANCODE_DOWN, 0, false},         {key, SDL_SCANCODE_LEFT, 203, false},
      {SDL_KEYUP, SDL_SCANCODE_DOWN, 0, false},   {key, SDL_SCANCODE_DOWN, 203 + 208, false},
      {win, SDL_WINDOWEVENT_MINIMIZED, 0, true},  {win, SDL_WINDOWEVENT_RESTORED, 0, false},
      {win, SDL_WINDOWEVENT_FOCUS_LOST, 0, true}, {win, SDL_WINDOWEVENT_FOCUS_GAINED, 0, false},
      {win, SDL_WINDOWEVENT_MINIMIZED, 0, true},  {win, SDL_WINDOWEVENT_CLOSE, -1, true}};
  for (const auto& [type, what, expected, lost] : events) {
    EXPECT_TRUE(send(type, what) == expected && screenLost() == lost) << type << ", " << what;
  }
  closeWindow(handle);
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_CLOSE);
  handle = open();
  letWindowMessagesThrough(0);
  EXPECT_TRUE(told == 0 && !screenLost()) << "a window starts afresh";
  for (const int scanCode :
       {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_1, SDL_SCANCODE_2, SDL_SCANCODE_3, SDL_SCANCODE_4,
        SDL_SCANCODE_N, SDL_SCANCODE_UP, SDL_SCANCODE_RIGHT, SDL_SCANCODE_DOWN}) {
    send(SDL_KEYDOWN, scanCode);
  }
  EXPECT_EQ(told, 1 + 2 + 3 + 4 + 5 + 49 + 200 + 205 + 208);
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

struct Pads : Window {
  // How often the game is told of keys after some ms.
  static i32 after(u32 ms) {
    fake::clockNow += ms;
    timesTold = 0;
    letWindowMessagesThrough(0);
    return timesTold;
  }
  // The keys that it is told of, added up; 0 if of none, -1 if more than once.
  i32 keysBy(int what, int value) const {
    told = 0;
    pad->set(what, value);
    return after(0) > 1 ? -1 : told;
  }
  Pads() { after(0), padsGone = 0; }
  std::unique_ptr<VirtualPad> pad = std::make_unique<VirtualPad>();
};

constexpr int padA = SDL_CONTROLLER_BUTTON_A, crossUp = SDL_CONTROLLER_BUTTON_DPAD_UP,
              crossRight = SDL_CONTROLLER_BUTTON_DPAD_RIGHT,
              stickX = VirtualPad::axis + SDL_CONTROLLER_AXIS_LEFTX,
              stickY = VirtualPad::axis + SDL_CONTROLLER_AXIS_LEFTY;

TEST_F(Pads, ButtonsAreKeysOfWhichDirectionsAndItemsRepeatThemselves) {
  // In SDL's order, from A to the right of the cross.
  int button = 0;
  for (const i32 code : {2, 3, 4, 5, 0xE0, 0, 25, 0, 0, 49, 49, 200, 208, 203, 205}) {
    const i32 repeats = code == 0xE0 || code == 25 || code == 49 || code == 0 ? 0 : 1;
    EXPECT_TRUE(keysBy(button, 1) == code && after(499) == 0 && after(1) == repeats &&
                after(32) == 0 && after(1) == repeats);
    const i32 other = button == padA ? crossRight : padA;
    // A key that doesn't repeat itself isn't down any more either, or a held Start would go on.
    EXPECT_EQ(keysBy(other, 1), (other == padA ? 2 : 205) + code * repeats) << code;
    EXPECT_TRUE(keysBy(button++, 0) == 0 && after(500) == 1) << "the last one repeats itself";
    EXPECT_TRUE(keysBy(other, 0) == 0 && after(900) == 0) << code;
  }
}

TEST_F(Pads, TheStickLeansToItsStrongerAxisUntilItComesBackAGoodWay) {
  const std::tuple<int, int, i32> moves[] = {
      {stickX, 15000, 0},   {stickX, 17000, 205}, {stickX, 12000, 0},    {padA, 1, 2 + 205},
      {padA, 0, 0},         {stickX, 10000, 0},   {padA, 1, 2},          {padA, 0, 0},
      {stickX, 20000, 205}, {stickY, -24000, 0},  {stickY, -27000, 200}, {crossUp, 1, 0},
      {stickX, 0, 0},       {stickY, 0, 0},       {padA, 1, 2 + 200},    {padA, 0, 0},
      {crossUp, 0, 0},      {stickY, 32767, 208}, {stickY, 0, 0},        {stickX, -32768, 203}};
  for (const auto& [what, value, keys] : moves) EXPECT_EQ(keysBy(what, value), keys) << value;
  pad->set(stickX, 17000);
  EXPECT_EQ(keysBy(stickY, -30000), 200) << "both axes at once are one movement";
}

TEST_F(Pads, WhatIsHeldWhenAPadOrTheFocusComesOrGoesMovesNothing) {
  EXPECT_EQ(keysBy(crossRight, 1), 205);
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST);
  EXPECT_TRUE(after(600) == 0 && keysBy(padA, 1) == 0);
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_GAINED);
  EXPECT_TRUE(after(600) == 0 && keysBy(crossUp, 1) == 200 && keysBy(crossRight, 0) == 0);
  closeWindow(handle);
  handle = open();
  EXPECT_TRUE(after(600) == 0 && keysBy(stickX, 32767) == 205) << "nor in the next game";
  pad = nullptr;
  EXPECT_TRUE(after(600) == 0 && std::exchange(padsGone, 0) == 1 && !padInUse && !hasGamepad());
  pad = std::make_unique<VirtualPad>();
  EXPECT_EQ(keysBy(stickX, -32768), 0) << "held since before it came";
  EXPECT_TRUE(keysBy(stickX, 0) == 0 && keysBy(padA, 1) == 2);
  auto other = std::make_unique<VirtualPad>();
  after(0), other = nullptr;
  EXPECT_TRUE(after(0) == 0 && padsGone == 0 && padInUse) << "the other one is in use";
  send(SDL_KEYDOWN, SDL_SCANCODE_UP);
  pad = nullptr;
  EXPECT_TRUE(after(0) == 0 && padsGone == 0) << "the keyboard is in use";
}

TEST_F(Pads, AWaitEndsWithAPadsRepeatAndLooksAtPadsEveryEightMilliseconds) {
  keysBy(crossUp, 1);
  for (const u32 wait : {500U, 33U}) {
    const u32 due = fake::clockNow + wait;
    waits.clear(), timesTold = 0;
    letWindowMessagesThrough(due + 400);
    EXPECT_TRUE(fake::clockNow == due && timesTold == 1 && std::ranges::max(waits) <= 8) << wait;
  }
  pad = nullptr;
  after(0), waits.clear();
  letWindowMessagesThrough(fake::clockNow + 25);
  EXPECT_EQ(waits.size(), 1U) << "without a pad";
}

std::vector<u32> standing() {
  const SDL_Surface* screen = SDL_GetWindowSurface(sdlWindow);
  const auto* pixels = static_cast<const u32*>(screen->pixels);
  return {pixels, pixels + screen->w * screen->h};
}

// A ground, something that moves on it and is hidden at times, and what lies over that.
void drawScene(const Surface& surface, i32 number) {
  static const Surface pieces[] = {plain(40, 40, red), plain(90, 60, blue)};
  pieces[1]->BltColorFill({86, 0, 90, 60}, white);  // seen through
  surface->BltColorFill({}, 0);
  surface->BltColorFill({number % 5 * 60, 20, number % 5 * 60 + 32, 52}, number * 0x0D0B07);
  surface->Blt({104 - number / 9, 0, 194 - number / 9, 60}, pieces[1], {}, bltKeyed);
  if (number % 2 == 0) surface->DrawText(3 * number, 30, std::to_string(number), False);
  surface->Blt({200 - number, 40, 240 - number, 80}, pieces[0], {0, 0, 40, 40}, bltKeyed);
}

TEST_F(Window, KeepsItsSizeAndShowsThePictureAgain) {
  pressAltEnter();
  send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_FOCUS_LOST);
  DirectDraw7 display;
  display.SetCooperativeLevel(handle, 0x51);
  display.SetDisplayMode(300, 100, 16, 0, 0);
  const Surface primary = display.CreateSurface({0x21, 0x218, 1, 0, 0});
  const Surface back = primary->GetAttachedSurface(4);
  back->SetFont({"Times New Roman", 12});
  for (i32 i = 0; i < 20; ++i) {
    drawScene(back, i);
    if (i == 19) back->BltColorFill({}, i * 0x0D0B07);
    const u32 before = fake::clockNow;
    primary->Flip(nullptr, flipWait);
    EXPECT_TRUE(i == 0 || fake::clockNow - before == 16) << "the game's pace";
    const std::vector<u32> parts = standing();
    const auto anew = std::make_shared<DirectDrawSurface7>(300, 100, back->scale());
    anew->SetFont({"Times New Roman", 12});
    drawScene(anew, i);
    EXPECT_TRUE(i == 19 || pixelsOf(anew) == pixelsOf(back)) << "frame " << i;
    const u32 through = *at(anew, 191 * back->scale(), 30 * back->scale());
    EXPECT_TRUE(i % 5 != 3 || through == i * 0x0D0B07U) << "frame " << i;
    back->BltColorFill({}, 0);  // what the next one begins with
    back->ComposeAhead();
    SDL_FillRect(SDL_GetWindowSurface(sdlWindow), nullptr, 0);
    send(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED);
    ASSERT_TRUE(parts == standing()) << "frame " << i;
  }
  SDL_SetWindowSize(sdlWindow, 500, 600);
  letWindowMessagesThrough(0);
  const std::vector<u32> all = standing();
  EXPECT_EQ(all[300 * 500] - all[200 * 500] - all[400 * 500], 19 * 0x0D0B07U) << "with bars";
  back->BltColorFill({}, static_cast<i32>(red));
  for (const auto& [width, scale] : {std::pair{500, 1.5}, {270, 0.9}, {330, 1.1}}) {
    SDL_SetWindowSize(sdlWindow, width, 600);
    for (const u32 wait : {0, 199, 1}) {  // it follows a size that stands for 200 ms
      fake::clockNow += wait;
      primary->Flip(nullptr, flipWait);
      EXPECT_EQ(back->scale() == scale, wait == 1 || width == 500) << width << ", " << wait;
    }
    EXPECT_TRUE(back->raster()->width == 300 * scale && *at(back, 9, 9) == red) << width;
  }
  SDL_SetWindowSize(sdlWindow, 500, 600);
  for (const int times : {0, 1}) {  // only a window over the whole screen is maximised
    setWindowState(handle, WindowState::maximised);
    EXPECT_EQ(std::exchange(timesMaximised, 0), times);
    pressAltEnter();
  }
  EXPECT_EQ(SDL_GetWindowSurface(sdlWindow)->w, 500);
  SDL_SetWindowSize(sdlWindow, 700, 480);
  closeWindow(handle);
  handle = open();  // the next game
  pressAltEnter();
  EXPECT_EQ(SDL_GetWindowSurface(sdlWindow)->w, 700);
}

using Sound = TempFolder;

TEST_F(Sound, IsLoadedAndPlayedWithAndWithoutADevice) {
  const auto song = [](const std::string& path) { return BASS_StreamCreateFile(0, path, 0, 0, 0); };
  const char* const good = "\\music\\Low Tide Radio - Seven Rows";
  putBytes("\\bad", "OggS" + std::string(5000, 'x'));
  for (const bool silent : {true, false, false}) {  // the last as a second game does
    SDL_setenv("SDL_AUDIODRIVER", silent ? "none such" : "dummy", 1);
    createDirectSound("");
    BASS_Init(1, 44100, 0, 1, 0);
    EXPECT_EQ(takeSoundNotice().substr(0, 8), silent ? "no sound" : "");
    for (const auto& file : std::filesystem::directory_iterator(folder / "sounds")) {
      loadWav("\\sounds\\" + file.path().filename().string())->Play(0);
    }
    EXPECT_PRED2(holds, errorOf([] { loadWav("\\init"); }), "\"\\init\" can't be opened (it is no");
    EXPECT_PRED2(holds, errorOf([] { loadWav("\\none"); }), "\"\\none\" can't be opened (No such");
    EXPECT_EQ(song("\\sounds\\_pop01.wav") + song("\\none") + song("\\init"), 0U);
    EXPECT_EQ(song("\\bad") == 0, !silent) << "damaged after its first bytes";
    EXPECT_EQ(BASS_ChannelIsActive(song(good)) != 0, silent) << "a silent song doesn't end";
  }
  EXPECT_EQ(Mix_QuerySpec(nullptr, nullptr, nullptr), 1) << "opened again, not twice";
  const Sample clapping = loadWav("\\sounds\\_clapping01.wav");
  const Sample other = loadWav("\\sounds\\_clapping02.wav");
  for (int i = 0; i < 45; ++i) clapping->Play(0);
  other->Play(0);
  EXPECT_EQ(Mix_Playing(-1), 46);
  clapping->Stop();
  EXPECT_EQ(Mix_Playing(-1), 1) << "only the one that was stopped is cut off";
  const u32 first = song(good), second = song(good);
  BASS_Pause();
  BASS_StreamPlay(second, 0, 0);
  EXPECT_EQ(Mix_PausedMusic(), 1) << "a song started in a pause waits";
  BASS_StreamFree(first);
  // One song at a time, and an old handle frees nothing.
  EXPECT_TRUE(BASS_ChannelIsActive(first) == 0 && BASS_ChannelIsActive(second) != 0);
  BASS_Free();
  EXPECT_EQ(BASS_ChannelIsActive(second), 0);
}

}  // namespace
}  // namespace glonks
