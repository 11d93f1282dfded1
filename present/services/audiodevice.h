#pragma once

#include <string>

// The one sound device that samples and songs share.
namespace glonks {

inline constexpr int voicesAtOnce = 32;  // to begin with; more are added when all of them sound

// Closes the device, if it is open, and opens the default one. If that fails, the game is silent.
void openAudioDevice();

// Whether there is a device to play on.
bool hasAudioDevice();

// Called when the system says that an output device is gone.
void noteDeviceRemoved();

// What has happened to the device since the last call, as a line for the log; empty if nothing.
std::string takeSoundNotice();

}  // namespace glonks
