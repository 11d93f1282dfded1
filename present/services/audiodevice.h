#pragma once

#include <string>

// Inside the services: the one sound device that samples and songs share.
namespace glonks {

// Closes the device, if it is open, and opens the default one. Without success the game is silent.
void openAudioDevice();

// Whether there is a device to play on.
bool hasAudioDevice();

// Called when the system says that an output device is gone.
void noteDeviceRemoved();

// Keeps a line for the log until takeSoundNotice fetches it.
void noteSound(const std::string& notice);

}  // namespace glonks
