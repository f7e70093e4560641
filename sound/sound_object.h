/// Sound objects: one sound each, with the buffers that can play it.
#pragma once

#include <dsound.h>

#include <cstddef>
#include <vector>

#include "interface/panel_interface.h"

namespace tarnvale {

/// The samples are a copy of the file's: a buffer that is lost with its device can be filled again
/// at any time, whatever has become of the file.
struct SoundObject {
  std::vector<std::byte> format;  ///< a WAVEFORMATEX and what follows it; empty if there is none
  std::vector<std::byte> samples;
  std::vector<IDirectSoundBuffer*> buffers;  ///< at least one; the first is null if it cannot play
  i32 current = 0;                           ///< index of the buffer played last
};

/// Loads the sound under `path`, a resource of `module` or else a file, into `buffer_count` buffers
/// (at least one), so that it can play that many times at once. Null, after a message, if there is
/// no such sound; null if a buffer besides the first cannot be made. A sound whose first buffer
/// cannot be made is there, but never plays.
SoundObject* create_sound(IDirectSound* direct_sound, const char* path, i32 buffer_count,
                          HMODULE module);

/// Releases the sound's buffers and frees it. Null does nothing.
void destroy_sound(SoundObject* sound);

/// A buffer that is ready to play, filled again if it was lost; null if there is none now. A sound
/// with one buffer is not started again while it plays; with more, the one after the last is taken.
IDirectSoundBuffer* free_buffer(SoundObject& sound);

/// Starts the sound with DSBPLAY flags; a sound with several buffers cannot loop. False if nothing
/// was started.
bool play_sound(SoundObject* sound, u32 play_flags);

/// Tells the user that something about the sounds failed.
void show_sound_failure(const char* text);

}  // namespace tarnvale
