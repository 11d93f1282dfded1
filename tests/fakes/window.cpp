#include "tests/fakes/window.h"

#include "present/services/screen.h"
#include "present/services/window.h"

namespace glonks {
namespace {
WindowEvents handlers;
}

namespace fake {

void pressKeys(const std::vector<i32>& scanCodes) {
  keys.fill(0);
  for (const i32 code : scanCodes) keys[static_cast<std::size_t>(code)] = 0x80;
  handlers.keyDown();
}

void resetWindow() {
  keys.fill(0);
  screenIsLost = false;
  picturesShown = 0;
  windowOpen = false;
  cursorShown = 1;
  windowMessages = nullptr;
  windowTitle.clear();
}

}  // namespace fake

i32 openWindow(const std::string& /*caption*/, const WindowEvents& events) {
  handlers = events;
  fake::windowOpen = true;
  return 1;
}
void closeWindow(i32 /*handle*/) { fake::windowOpen = false; }
void setWindowState(i32 /*handle*/, WindowState /*state*/) {}
void setWindowTitle(i32 /*handle*/, const std::string& title) { fake::windowTitle = title; }
void letWindowMessagesThrough() {
  if (fake::windowMessages) fake::windowMessages();
}
void ShowCursor(i32 show) { fake::cursorShown = show; }
void openScreen(i32 /*handle*/, i32 /*width*/, i32 /*height*/) {}
void closeScreen() {}
void showPicture(const u32* pixels) {
  ++fake::picturesShown;
  fake::watchedPixel = pixels[fake::watchedY * 1024 + fake::watchedX];
}
bool screenLost() { return fake::screenIsLost; }
const unsigned char* keyTable() { return fake::keys.data(); }

}  // namespace glonks
