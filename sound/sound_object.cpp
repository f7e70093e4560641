#include "sound/sound_object.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "sound/wave_source.h"

namespace tarnvale {
namespace {

constexpr u32 buffer_flags =
    DSBCAPS_STATIC | DSBCAPS_LOCSOFTWARE | DSBCAPS_CTRLPAN | DSBCAPS_CTRLVOLUME;

u32 size_of(const SoundObject& sound) { return static_cast<u32>(sound.samples.size()); }

/// Writes the sound's samples into a buffer.
bool fill(IDirectSoundBuffer* buffer, const SoundObject& sound) {
  void* part1 = nullptr;
  void* part2 = nullptr;
  DWORD size1 = 0;
  DWORD size2 = 0;
  if (FAILED(buffer->Lock(0, size_of(sound), &part1, &size1, &part2, &size2, 0))) return false;
  std::memcpy(part1, sound.samples.data(), size1);
  if (part2 != nullptr) std::memcpy(part2, sound.samples.data() + size1, size2);
  buffer->Unlock(part1, size1, part2, size2);
  return true;
}

/// A new buffer with the sound's samples; null if it cannot be made or filled. Which formats can be
/// played is for the device to say.
IDirectSoundBuffer* filled_buffer(IDirectSound* direct_sound, SoundObject& sound) {
  if (sound.format.empty()) return nullptr;
  DSBUFFERDESC description{};
  description.dwSize = sizeof(DSBUFFERDESC1);  // the short form: no spatial sound
  description.dwFlags = buffer_flags;
  description.dwBufferBytes = size_of(sound);
  description.lpwfxFormat = reinterpret_cast<WAVEFORMATEX*>(sound.format.data());
  IDirectSoundBuffer* buffer = nullptr;
  if (FAILED(direct_sound->CreateSoundBuffer(&description, &buffer, nullptr))) return nullptr;
  if (fill(buffer, sound)) return buffer;
  buffer->Release();
  return nullptr;
}

/// One more buffer over the samples of the first, or one of its own where that is refused.
IDirectSoundBuffer* further_buffer(IDirectSound* direct_sound, SoundObject& sound) {
  IDirectSoundBuffer* first = sound.buffers.front();
  IDirectSoundBuffer* buffer = nullptr;
  const bool doubled =
      first != nullptr && SUCCEEDED(direct_sound->DuplicateSoundBuffer(first, &buffer));
  return doubled ? buffer : filled_buffer(direct_sound, sound);
}

/// The format as it stands in the file. Its reader goes by the size that the format itself states, so
/// zeros follow where the file has less.
std::vector<std::byte> whole_format(Bytes chunk) {
  if (chunk.empty()) return {};
  WAVEFORMATEX head{};
  std::memcpy(&head, chunk.data(), std::min(chunk.size(), sizeof head));
  std::vector<std::byte> format(chunk.begin(), chunk.end());
  format.resize(std::max(chunk.size(), sizeof head + head.cbSize));
  return format;
}

bool make_buffers(IDirectSound* direct_sound, SoundObject& sound, std::size_t count) {
  sound.buffers.reserve(count);
  sound.buffers.push_back(filled_buffer(direct_sound, sound));
  while (sound.buffers.size() < count) {
    IDirectSoundBuffer* buffer = further_buffer(direct_sound, sound);
    if (buffer == nullptr) return false;
    sound.buffers.push_back(buffer);
  }
  return true;
}

/// 0 if the call fails.
DWORD status_of(IDirectSoundBuffer* buffer) {
  DWORD status = 0;
  return SUCCEEDED(buffer->GetStatus(&status)) ? status : 0;
}

/// Moves on to the buffer after the current one; it starts over if it plays as well.
IDirectSoundBuffer* next_buffer(SoundObject& sound) {
  sound.current = (sound.current + 1) % static_cast<i32>(sound.buffers.size());
  IDirectSoundBuffer* buffer = sound.buffers[static_cast<std::size_t>(sound.current)];
  if ((status_of(buffer) & DSBSTATUS_PLAYING) != 0) {
    buffer->Stop();
    buffer->SetCurrentPosition(0);
  }
  return buffer;
}

using OwnedSound = std::unique_ptr<SoundObject, decltype(&destroy_sound)>;

OwnedSound load_sound(IDirectSound* direct_sound, const WaveSource& source, i32 buffer_count) {
  OwnedSound sound(new SoundObject, destroy_sound);
  sound->format = whole_format(source.format);
  sound->samples.assign(source.samples.begin(), source.samples.end());
  const auto count = static_cast<std::size_t>(std::max(buffer_count, 1));
  if (!make_buffers(direct_sound, *sound, count)) sound.reset();
  return sound;
}

}  // namespace

SoundObject* create_sound(IDirectSound* direct_sound, const char* path, i32 buffer_count,
                          HMODULE module) {
  WaveSource source;
  if (!find_wave(module, path, source)) {
    show_sound_failure("DirectSound Object Not Found");
    return nullptr;
  }
  SoundObject* sound = nullptr;
  try {
    sound = load_sound(direct_sound, source, buffer_count).release();
  } catch (const std::bad_alloc&) {
    // No memory, no sound: the host knows nothing of exceptions.
  }
  close_wave(source);
  return sound;
}

void destroy_sound(SoundObject* sound) {
  if (sound == nullptr) return;
  for (IDirectSoundBuffer* buffer : sound->buffers) {
    if (buffer != nullptr) buffer->Release();
  }
  delete sound;
}

IDirectSoundBuffer* free_buffer(SoundObject& sound) {
  IDirectSoundBuffer* buffer = sound.buffers[static_cast<std::size_t>(sound.current)];
  if (buffer == nullptr) return nullptr;
  if ((status_of(buffer) & DSBSTATUS_PLAYING) != 0) {
    if (sound.buffers.size() == 1) return nullptr;
    buffer = next_buffer(sound);
  }
  if ((status_of(buffer) & DSBSTATUS_BUFFERLOST) != 0) {
    if (FAILED(buffer->Restore()) || !fill(buffer, sound)) return nullptr;
  }
  return buffer;
}

bool play_sound(SoundObject* sound, u32 play_flags) {
  if (sound == nullptr) return false;
  if ((play_flags & DSBPLAY_LOOPING) != 0 && sound->buffers.size() > 1) return false;
  IDirectSoundBuffer* buffer = free_buffer(*sound);
  return buffer != nullptr && SUCCEEDED(buffer->Play(0, 0, play_flags));
}

void show_sound_failure(const char* text) {
  MessageBoxA(nullptr, text, "DEBUG", MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace tarnvale
