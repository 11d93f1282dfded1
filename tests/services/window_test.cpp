#include "present/services/window.h"

#include <SDL.h>

#include <algorithm>
#include <random>
#include <vector>

#include "present/services/directx.h"
#include "present/services/screen.h"
#include "tests/fakes/clock.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

using Codes = std::vector<i32>;

// What the handlers have been told: at each key event the scan codes that are down.
std::vector<Codes> keyEvents;
i32 closings = 0;

Codes keysDown() {
  Codes codes;
  for (i32 code = 0; code < keyCount; ++code) {
    if (keyTable()[code] != 0) codes.push_back(code);
  }
  return codes;
}

class Window : public ::testing::Test {
 protected:
  Window() {
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    open();
    keyEvents.clear();
    closings = 0;
  }
  ~Window() override {
    std::fill_n(heldKeys(), SDL_NUM_SCANCODES, Uint8{0});
    closeWindow(handle);
  }
  void open() {
    handle = openWindow("Glonks", {[] { keyEvents.push_back(keysDown()); }, [] { ++closings; }});
    letWindowMessagesThrough();
    fake::resetClock();
  }
  // The keys that the system says are held; SDL gives a view of its own table.
  static Uint8* heldKeys() { return const_cast<Uint8*>(SDL_GetKeyboardState(nullptr)); }
  void pushKey(Uint32 type, SDL_Scancode code, Uint16 modifiers = 0, Uint8 repeat = 0) const {
    SDL_Event event = {};
    event.key.type = type;
    event.key.windowID = static_cast<Uint32>(handle);
    event.key.repeat = repeat;
    event.key.keysym.scancode = code;
    event.key.keysym.mod = modifiers;
    SDL_PushEvent(&event);
  }
  void press(SDL_Scancode code) const { pushKey(SDL_KEYDOWN, code); }
  void release(SDL_Scancode code) const { pushKey(SDL_KEYUP, code); }
  void pushWindow(SDL_WindowEventID id) const {
    SDL_Event event = {};
    event.window.type = SDL_WINDOWEVENT;
    event.window.windowID = static_cast<Uint32>(handle);
    event.window.event = static_cast<Uint8>(id);
    SDL_PushEvent(&event);
  }
  i32 handle = 0;
};

TEST_F(Window, KeysStandInTheTableWhileTheyAreDown) {
  const std::pair<SDL_Scancode, i32> table[] = {
      {SDL_SCANCODE_ESCAPE, 1}, {SDL_SCANCODE_1, 2},       {SDL_SCANCODE_4, 5},
      {SDL_SCANCODE_N, 49},     {SDL_SCANCODE_P, 25},      {SDL_SCANCODE_UP, 200},
      {SDL_SCANCODE_LEFT, 203}, {SDL_SCANCODE_RIGHT, 205}, {SDL_SCANCODE_DOWN, 208}};
  for (const auto& [key, scanCode] : table) {
    keyEvents.clear();
    press(key);
    release(key);  // before anyone has asked: a short press is seen all the same
    letWindowMessagesThrough();
    EXPECT_EQ(keyEvents, std::vector<Codes>{{scanCode}}) << "scan code " << scanCode;
    EXPECT_EQ(keysDown(), Codes{});
  }
  keyEvents.clear();
  press(SDL_SCANCODE_LEFT);
  press(SDL_SCANCODE_DOWN);
  pushKey(SDL_KEYDOWN, SDL_SCANCODE_DOWN, 0, 1);
  release(SDL_SCANCODE_LEFT);
  press(SDL_SCANCODE_MUTE);  // a key that the game's table doesn't have
  letWindowMessagesThrough();
  EXPECT_EQ(keyEvents, (std::vector<Codes>{{203}, {203, 208}, {203, 208}, {208}}));
  EXPECT_EQ(keysDown(), Codes{208});
}

TEST_F(Window, LosingTheFocusLetsAllKeysGo) {
  press(SDL_SCANCODE_LEFT);
  letWindowMessagesThrough();
  EXPECT_FALSE(screenLost());
  pushWindow(SDL_WINDOWEVENT_FOCUS_LOST);
  letWindowMessagesThrough();
  EXPECT_TRUE(screenLost());
  EXPECT_NE(DirectDraw7().TestCooperativeLevel(), 0);
  EXPECT_EQ(keysDown(), Codes{});

  keyEvents.clear();
  press(SDL_SCANCODE_RIGHT);  // meant for another program
  letWindowMessagesThrough();
  EXPECT_TRUE(keyEvents.empty());

  heldKeys()[SDL_SCANCODE_DOWN] = 1;
  pushWindow(SDL_WINDOWEVENT_MINIMIZED);
  pushWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
  pushKey(SDL_KEYDOWN, SDL_SCANCODE_DOWN, 0, 1);
  letWindowMessagesThrough();
  EXPECT_TRUE(screenLost()) << "minimised";
  pushWindow(SDL_WINDOWEVENT_RESTORED);
  letWindowMessagesThrough();
  EXPECT_FALSE(screenLost());
  EXPECT_EQ(DirectDraw7().TestCooperativeLevel(), 0);
  EXPECT_TRUE(keyEvents.empty()) << "a key held since before makes no move";
  release(SDL_SCANCODE_DOWN);
  press(SDL_SCANCODE_DOWN);
  letWindowMessagesThrough();
  EXPECT_EQ(keyEvents, std::vector<Codes>{{208}});
}

TEST_F(Window, AltEnterIsNoKeyOfTheGame) {
  SDL_Window* window = SDL_GetWindowFromID(static_cast<Uint32>(handle));
  const Uint32 before = SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN_DESKTOP;
  pushKey(SDL_KEYDOWN, SDL_SCANCODE_RETURN, KMOD_LALT);
  pushKey(SDL_KEYDOWN, SDL_SCANCODE_RETURN, KMOD_LALT, 1);
  letWindowMessagesThrough();
  EXPECT_TRUE(keyEvents.empty());
  EXPECT_EQ(keysDown(), Codes{});
  EXPECT_NE(SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN_DESKTOP, before);
  press(SDL_SCANCODE_RETURN);
  letWindowMessagesThrough();
  EXPECT_EQ(keyEvents, std::vector<Codes>{{28}});
}

TEST_F(Window, ANewWindowStartsAfresh) {
  SDL_InitSubSystem(SDL_INIT_AUDIO);  // sound keeps SDL's queue of events over a window's end
  press(SDL_SCANCODE_LEFT);
  pushWindow(SDL_WINDOWEVENT_FOCUS_LOST);
  pushWindow(SDL_WINDOWEVENT_CLOSE);
  letWindowMessagesThrough();
  EXPECT_EQ(closings, 1);
  letWindowMessagesThrough();
  EXPECT_EQ(fake::sleeps, 1U) << "with nothing waiting it sleeps to the next millisecond, once";
  press(SDL_SCANCODE_RIGHT);
  pushWindow(SDL_WINDOWEVENT_CLOSE);
  pushWindow(SDL_WINDOWEVENT_MINIMIZED);
  closeWindow(handle);
  letWindowMessagesThrough();  // without a window nothing happens
  keyEvents.clear();
  closings = 0;
  open();
  EXPECT_FALSE(screenLost());
  EXPECT_TRUE(keyEvents.empty()) << "a key of the old window";
  EXPECT_EQ(closings, 0) << "a request to close the old window";
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

TEST_F(Window, FlipShowsThePictureAtTheGamesPace) {
  DirectX7 dx;
  const auto dd = dx.DirectDrawCreate("");
  EXPECT_PRED2(holds, errorOf([&] { dd->SetDisplayMode(300, 100, 16, 0, 0); }), "SetDisplayMode");
  dd->SetCooperativeLevel(handle, 0x51);
  dd->SetDisplayMode(300, 100, 16, 0, 0);
  const Surface primary = dd->CreateSurface({0x21, 0x218, 1, 0, 0});
  const Surface back = primary->GetAttachedSurface(4);
  SDL_Surface* screen = SDL_GetWindowSurface(SDL_GetWindowFromID(static_cast<Uint32>(handle)));
  const auto flip = [&] {
    const u32 before = fake::clockNow;
    primary->Flip(nullptr, flipWait);
    return fake::clockNow - before;
  };
  const auto shown = [&] {
    const auto* pixels = static_cast<const u32*>(screen->pixels);
    std::vector<u32> copy(pixels, pixels + screen->w * screen->h);
    for (u32& pixel : copy) pixel &= 0xFFFFFF;
    return copy;
  };
  back->BltColorFill({}, RGB(10, 120, 230));
  flip();
  const std::vector<u32> plain = shown();
  ASSERT_EQ(plain.size(), 1024U * 768U);
  EXPECT_EQ(plain[384 * 1024], static_cast<u32>(RGB(10, 120, 230))) << "full width";
  EXPECT_EQ(plain[200 * 1024 + 512], 0U) << "a black bar above";
  EXPECT_EQ(plain[600 * 1024 + 512], 0U) << "and one below";

  // What is sent in parts looks as what is sent whole.
  std::mt19937 random(1);
  for (int frame = 0; frame < 20; ++frame) {
    const auto x = static_cast<i32>(random() % 300);
    const auto y = static_cast<i32>(random() % 100);
    back->BltColorFill({x, y, x + 1 + frame * 3, y + 1 + frame},
                       static_cast<i32>(random() % 0x1000000));
    EXPECT_GE(flip(), 16U);
    const std::vector<u32> parts = shown();
    SDL_FillRect(screen, nullptr, 0);
    pushWindow(SDL_WINDOWEVENT_EXPOSED);  // the screen's content is gone
    letWindowMessagesThrough();
    flip();
    ASSERT_TRUE(parts == shown()) << "frame " << frame;
  }
  fake::clockNow += 100;
  EXPECT_EQ(flip(), 0U) << "a late picture doesn't wait";
  dd->SetCooperativeLevel(handle, 8);
  dd->RestoreDisplayMode();
  EXPECT_PRED2(holds, errorOf(flip), "screen");
}

}  // namespace
}  // namespace glonks
