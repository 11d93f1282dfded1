#include "present/screen/display.h"

#include "game/model/model.h"
#include "present/screen/fconsole.h"
#include "present/services/bass.h"
#include "present/services/window.h"
#include "storage/files/log.h"

namespace glonks {
namespace {

constexpr i32 exclusiveFullScreen = 0x51;
constexpr i32 normalLevel = 8;
constexpr i32 colorBits = 16;
constexpr i32 capsAndBackBufferCount = 0x21;
constexpr i32 primaryFlipComplex = 0x218;
constexpr i32 backBufferCaps = 4;
constexpr i32 keyboardFormat = 1;
constexpr i32 mouseFormat = 2;
constexpr i32 nonExclusiveBackground = 0xA;
constexpr i32 soundNormal = 1;
constexpr i32 sampleFlags = 0xE2;  // static, with control of frequency, pan and volume
constexpr i32 musicRate = 44100;
constexpr i32 fontPoints = 12;
constexpr i32 white = RGB(255, 255, 255);

void setUpInput(const std::shared_ptr<DirectInputDevice>& device, i32 format) {
  device->SetCommonDataFormat(format);
  device->SetCooperativeLevel(fConsole.hWnd, nonExclusiveBackground);
  device->Acquire();
}

void setUpSound() {
  ds = dx->DirectSoundCreate("");
  ds->SetCooperativeLevel(fConsole.hWnd, soundNormal);
  sampleDesc.flags = sampleFlags;
  sampleFormat.formatTag = 1;
  sampleFormat.channels = 2;
  sampleFormat.samplesPerSecond = 22050;
  sampleFormat.bitsPerSample = 16;
  sampleFormat.blockAlign =
      static_cast<i16>(sampleFormat.bitsPerSample / 8 * sampleFormat.channels);
  sampleFormat.bytesPerSecond = sampleFormat.blockAlign * sampleFormat.samplesPerSecond;
  BASS_Init(1, musicRate, 0, fConsole.hWnd, 0);  // a game without music goes on
}

}  // namespace

void initDX() {
  if (!dx) dx = std::make_shared<DirectX7>();

  logStep("initDX - getting screen resolution");
  screenWidth = 1024;
  screenHeight = 768;

  logStep("initDX - initializing directdraw");
  dd = dx->DirectDrawCreate("");
  dd->SetCooperativeLevel(fConsole.hWnd, exclusiveFullScreen);
  dd->SetDisplayMode(screenWidth, screenHeight, colorBits, 0, 0);

  logStep("initDX - setting up the primary surface");
  SurfaceDesc desc;
  desc.flags = capsAndBackBufferCount;
  desc.caps = primaryFlipComplex;
  desc.backBufferCount = 1;
  primarySurface = dd->CreateSurface(desc);

  logStep("initDX - setting up the back buffer");
  backBuffer = primarySurface->GetAttachedSurface(backBufferCaps);
  gameFont.size = fontPoints;
  gameFont.name = "Times New Roman";
  backBuffer->SetFontTransparency(True);
  backBuffer->SetForeColor(white);
  backBuffer->SetFont(gameFont);

  logStep("initDX - test flipping...");
  primarySurface->Flip(nullptr, flipWait);

  logStep("initDX - setting up directinput");
  di = dx->DirectInputCreate();
  keyboard = di->CreateDevice("GUID_SysKeyboard");
  mouse = di->CreateDevice("GUID_SysMouse");

  logStep("initDX - setting up the keyboard");
  setUpInput(keyboard, keyboardFormat);

  logStep("initDX - setting up the mouse");
  setUpInput(mouse, mouseFormat);

  logStep("initDX - setting up the source color key");
  colorKey.high = white;
  colorKey.low = white;

  logStep("initDX - setting up sound system");
  setUpSound();
  ShowCursor(0);
}

void destroy() {
  logStep("destroy - shutting down directx");
  ShowCursor(1);
  if (dd) {
    dd->RestoreDisplayMode();
    dd->SetCooperativeLevel(fConsole.hWnd, normalLevel);
  }
  dd = nullptr;
  dx = nullptr;
  fConsole_Unload();
  gameOver = True;
  BASS_Free();
}

}  // namespace glonks
