#pragma once

#include <memory>
#include <string>

#include "base/types.h"

// Sound effects. Tests replace the device by a list of the sounds played.
namespace glonks {

// How a sample is held: flags 0xE2 (static, with control of frequency, pan and volume).
struct SampleDesc {
  i32 flags = 0;
};

struct SampleFormat {
  i16 formatTag = 0;  // 1: PCM
  i16 channels = 0;
  i32 samplesPerSecond = 0;
  i16 bitsPerSample = 0;
  i16 blockAlign = 0;  // bytes of one sample of all channels
  i32 bytesPerSecond = 0;
};

// A sample in memory.
class DirectSoundBuffer {
 public:
  DirectSoundBuffer() = default;
  virtual ~DirectSoundBuffer() = default;
  DirectSoundBuffer(const DirectSoundBuffer&) = delete;
  DirectSoundBuffer& operator=(const DirectSoundBuffer&) = delete;

  // Sounds once, without waiting, over all that sounds already.
  virtual void Play(i32 flags) = 0;
  // Cuts the sample off wherever it sounds.
  virtual void Stop() = 0;
};

using Sample = std::shared_ptr<DirectSoundBuffer>;

class DirectSound {
 public:
  // `level` 1: normal.
  void SetCooperativeLevel(i32 hWnd, i32 level);
  // A sample from a wave file; it is brought to the device's own format. Raises fileNotFound,
  // fileAccess or badFile, naming the file.
  Sample CreateSoundBufferFromFile(const std::string& path, const SampleDesc& desc,
                                   const SampleFormat& format);
};

// The default sound device, opened again. Without one, all sounds are silent (see takeSoundNotice).
std::shared_ptr<DirectSound> createDirectSound(const std::string& device);

}  // namespace glonks
