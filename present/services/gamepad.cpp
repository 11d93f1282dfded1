#include "present/services/gamepad.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <utility>
#include <vector>

#include "base/clock.h"
#include "base/paths.h"

namespace glonks {
namespace {

// ms
constexpr i32 firstRepeat = 500;
constexpr i32 nextRepeat = 33;
constexpr i32 lookPeriod = 8;  // most pads tell no more often what they do

// The stick's way from its middle is 32768 long.
constexpr i32 stickLeans = 16000;
constexpr i32 stickStands = 11000;
constexpr i32 stickTurns = 6000;  // by how much the other axis has to be the stronger one

constexpr i32 buttonCount = static_cast<i32>(PadButton::shoulder) + 1;
using Buttons = std::array<bool, buttonCount>;

constexpr std::pair<SDL_GameControllerButton, PadButton> buttonNames[] = {
    {SDL_CONTROLLER_BUTTON_DPAD_UP, PadButton::up},
    {SDL_CONTROLLER_BUTTON_DPAD_DOWN, PadButton::down},
    {SDL_CONTROLLER_BUTTON_DPAD_LEFT, PadButton::left},
    {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, PadButton::right},
    {SDL_CONTROLLER_BUTTON_A, PadButton::a},
    {SDL_CONTROLLER_BUTTON_B, PadButton::b},
    {SDL_CONTROLLER_BUTTON_X, PadButton::x},
    {SDL_CONTROLLER_BUTTON_Y, PadButton::y},
    {SDL_CONTROLLER_BUTTON_START, PadButton::start},
    {SDL_CONTROLLER_BUTTON_BACK, PadButton::back},
    {SDL_CONTROLLER_BUTTON_LEFTSHOULDER, PadButton::shoulder},
    {SDL_CONTROLLER_BUTTON_RIGHTSHOULDER, PadButton::shoulder}};

struct Pad {
  SDL_GameController* controller = nullptr;
  SDL_JoystickID id = 0;
  std::array<bool, SDL_CONTROLLER_BUTTON_MAX> down = {};
  std::optional<PadButton> stick;  // where it leans to
};

struct Repeat {
  PadButton button = PadButton::up;
  u32 due = 0;
};

std::vector<Pad> pads;
SDL_JoystickID lastUsed = -1;
Buttons held = {};
std::deque<PadChange> changes;
std::optional<Repeat> repeat;  // of the last button that went down

bool start() {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  // Or SDL's wait for events would look at the pads every millisecond.
  SDL_SetHint(SDL_HINT_AUTO_UPDATE_JOYSTICKS, "0");
  if (SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) != 0) return false;
  for (const auto& folder : {programFolder(), playersFolder()}) {
    const auto file = folder / "gamecontrollerdb.txt";
    if (isRegularFile(file)) SDL_GameControllerAddMappingsFromFile(file.string().c_str());
  }
  return true;
}

bool repeatsItself(PadButton button) { return button < PadButton::start; }

Buttons buttonsDown() {
  Buttons down = {};
  const auto set = [&down](PadButton button) { down[static_cast<std::size_t>(button)] = true; };
  for (const Pad& pad : pads) {
    for (const auto& [raw, button] : buttonNames) {
      if (pad.down[raw]) set(button);
    }
    if (pad.stick) set(*pad.stick);
  }
  return down;
}

void noteChange(PadButton button, bool isDown) {
  changes.push_back({isDown ? PadChange::Kind::pressed : PadChange::Kind::released, button});
  if (isDown || (repeat && repeat->button == button)) repeat.reset();
  if (isDown && repeatsItself(button)) repeat = {button, GetTickCount() + firstRepeat};
}

// Compares with the buttons that were held so far. `pad` has changed. A stick that turns lets its
// old direction go first.
void noteChanges(SDL_JoystickID pad) {
  const Buttons now = buttonsDown();
  const Buttons before = std::exchange(held, now);
  for (const bool isDown : {false, true}) {
    for (std::size_t i = 0; i < buttonCount; ++i) {
      if (now[i] == before[i] || now[i] != isDown) continue;
      if (isDown) padInUse = true, lastUsed = pad;
      noteChange(static_cast<PadButton>(i), isDown);
    }
  }
}

// Where the stick leans to. It goes on leaning to where it did until it comes back a good way, or
// is pushed elsewhere clearly further.
std::optional<PadButton> stickOf(const Pad& pad) {
  const i32 x = SDL_GameControllerGetAxis(pad.controller, SDL_CONTROLLER_AXIS_LEFTX);
  const i32 y = SDL_GameControllerGetAxis(pad.controller, SDL_CONTROLLER_AXIS_LEFTY);
  const std::array<i32, 4> ways = {-y, y, -x, x};  // in the order of the buttons
  const auto furthest = std::max_element(ways.begin(), ways.end());
  if (pad.stick) {
    const i32 way = ways[static_cast<std::size_t>(*pad.stick)];
    if (way >= stickStands && *furthest < way + stickTurns) return pad.stick;
  }
  if (*furthest < stickLeans) return std::nullopt;
  return static_cast<PadButton>(furthest - ways.begin());
}

bool isOpen(SDL_JoystickID id) {
  return std::any_of(pads.begin(), pads.end(), [id](const Pad& pad) { return pad.id == id; });
}

// A stick that is held on a pad that comes counts as held before. SDL tells of no button that is.
void open(int index) {
  Pad pad;
  pad.controller = SDL_GameControllerOpen(index);
  if (pad.controller == nullptr) return;
  pad.id = SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(pad.controller));
  pad.stick = stickOf(pad);
  pads.push_back(pad);
  held = buttonsDown();
}

// All that are there: an event's index may have moved since.
void openNew() {
  for (int i = 0; i < SDL_NumJoysticks(); ++i) {
    if (SDL_IsGameController(i) && !isOpen(SDL_JoystickGetDeviceInstanceID(i))) open(i);
  }
}

void close(SDL_JoystickID id) {
  const auto gone =
      std::find_if(pads.begin(), pads.end(), [id](const Pad& pad) { return pad.id == id; });
  if (gone == pads.end()) return;
  SDL_GameControllerClose(gone->controller);
  pads.erase(gone);
  noteChanges(id);
  if (lastUsed != id || !std::exchange(padInUse, false)) return;
  changes.push_back({PadChange::Kind::gone});
}

void handleButton(const SDL_ControllerButtonEvent& event) {
  for (Pad& pad : pads) {
    if (pad.id != event.which || event.button >= pad.down.size()) continue;
    pad.down[event.button] = event.state != 0;
    noteChanges(pad.id);
  }
}

void handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
      openNew();
      break;
    case SDL_CONTROLLERDEVICEREMOVED:
      close(event.cdevice.which);
      break;
    case SDL_CONTROLLERBUTTONDOWN:
    case SDL_CONTROLLERBUTTONUP:
      handleButton(event.cbutton);
      break;
    default:
      break;
  }
}

// After all events: the axes of one movement come one by one.
void readSticks() {
  for (Pad& pad : pads) {
    const auto stick = stickOf(pad);
    if (stick == pad.stick) continue;
    pad.stick = stick;
    noteChanges(pad.id);
  }
}

i32 ticksTo(u32 tick) { return static_cast<i32>(tick - GetTickCount()); }

}  // namespace

void readGamepads() {
  static const bool ready = start();
  if (!ready) return;
  SDL_GameControllerUpdate();
  SDL_Event event;
  while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_JOYAXISMOTION, SDL_CONTROLLERSENSORUPDATE) >
         0) {
    handle(event);
  }
  readSticks();
  if (!repeat || ticksTo(repeat->due) > 0) return;
  changes.push_back({PadChange::Kind::repeated, repeat->button});
  repeat->due = GetTickCount() + nextRepeat;
}

std::optional<PadChange> nextPadChange() {
  if (changes.empty()) return std::nullopt;
  const PadChange next = changes.front();
  changes.pop_front();
  return next;
}

void forgetPadInput() {
  changes.clear();
  repeat.reset();
}

bool hasGamepad() { return !pads.empty(); }

u32 nextPadLook(u32 until) {
  if (pads.empty()) return until;
  i32 wait = lookPeriod;
  if (repeat) wait = std::clamp(ticksTo(repeat->due), 0, wait);
  return ticksTo(until) <= wait ? until : GetTickCount() + static_cast<u32>(wait);
}

}  // namespace glonks
