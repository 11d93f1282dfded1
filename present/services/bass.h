#pragma once

#include <string>

#include "base/types.h"

// Songs, streamed from OGG Vorbis files. One song plays at a time.
namespace glonks {

// The stream that plays, 0 for none; set by nextSong.
inline u32 musicStream = 0;

// Makes the library ready. Returns False without a sound device: then songs play in silence and
// never end.
Flag BASS_Init(i32 device, i32 frequency, i32 flags, i32 hWnd, i32 reserved);

// A handle for the song of a file, 0 if it can't be opened, is no regular file or holds no song.
u32 BASS_StreamCreateFile(i32 fromMemory, const std::string& path, i32 offset, i32 length,
                          i32 flags);

// The song's volume, 0 to 100. -1 and -101 leave frequency and pan alone.
void BASS_ChannelSetAttributes(u32 handle, i32 frequency, i32 volume, i32 pan);

// Starts the song, once. Does nothing for a handle of 0.
void BASS_StreamPlay(u32 handle, i32 flush, i32 flags);

// 0 when the song has ended, or for a handle of 0.
i32 BASS_ChannelIsActive(u32 handle);

// Stops and closes a song. A handle of 0, or of a song that has been closed, does nothing.
void BASS_StreamFree(u32 handle);

// Halts all music, and lets it go on. A song started in between waits too.
void BASS_Pause();
void BASS_Start();

// Ends all music.
void BASS_Free();

}  // namespace glonks
