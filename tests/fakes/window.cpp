#include "tests/fakes/window.h"

#include "present/services/screen.h"

namespace glonks {

void fake::pressKeys(const std::vector<i32>& scanCodes) {
  keys.fill(0);
  for (const i32 code : scanCodes) keys[static_cast<std::size_t>(code)] = 0x80;
  windowEvents.keyDown();
}

i32 openWindow(const std::string&, const WindowEvents& events) {
  fake::windowOpen = true;
  fake::windowEvents = events;
  return 1;
}
void closeWindow(i32) { fake::windowOpen = false; }
void setWindowState(i32, WindowState state) {
  fake::windowStates.push_back(static_cast<i32>(state));
}
void setWindowTitle(i32, const std::string& title) { fake::windowTitle = title; }
void letWindowMessagesThrough(u32 /*until*/) {
  if (fake::windowMessages) fake::windowMessages();
}
bool screenLost() { return fake::screenIsLost; }
void ShowCursor(i32 show) { fake::cursorShown = show; }
void openScreen(i32, i32, i32) {}
void closeScreen() {}
double screenScale() { return fake::scale; }
void showPicture(const ShownPicture& picture) {
  ++fake::picturesShown;
  if (fake::pictureShown) fake::pictureShown(*picture.raster);
}
KeyState takeKeys() { return fake::keys; }

}  // namespace glonks
