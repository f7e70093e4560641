#include "host/sound/identifications.h"

#include <windows.h>

#include <cmath>
#include <cstring>

#include "host/sound/morse.h"
#include "platform/platform_host.h"

namespace host {
namespace {

constexpr DWORD rate = PLATFORM_AUDIO_RATE;
constexpr DWORD sample_bytes = sizeof(std::int16_t);

IDirectSound* open_device() {
  IDirectSound* sound = nullptr;
  if (FAILED(DirectSoundCreate(nullptr, &sound, nullptr))) return nullptr;
  if (SUCCEEDED(sound->SetCooperativeLevel(FindWindowA(PLATFORM_MAIN_WINDOW, nullptr), DSSCL_NORMAL)))
    return sound;
  sound->Release();
  return nullptr;
}

bool write(IDirectSoundBuffer& buffer, const std::vector<std::int16_t>& samples) {
  void* part = nullptr;
  DWORD bytes = 0;
  const auto size = static_cast<DWORD>(samples.size() * sample_bytes);
  if (FAILED(buffer.Lock(0, size, &part, &bytes, nullptr, nullptr, 0))) return false;
  std::memcpy(part, samples.data(), bytes);
  return SUCCEEDED(buffer.Unlock(part, bytes, nullptr, 0));
}

/// From where a station that has been sending since the start is now.
bool play(IDirectSoundBuffer& buffer, double seconds) {
  const double within_s = std::fmod(seconds, MorseTone().period_seconds);
  buffer.SetCurrentPosition(static_cast<DWORD>(within_s * rate) * sample_bytes);
  return SUCCEEDED(buffer.Play(0, 0, DSBPLAY_LOOPING));
}

bool is_lost(IDirectSoundBuffer& buffer) {
  DWORD status = 0;
  return FAILED(buffer.GetStatus(&status)) || (status & DSBSTATUS_BUFFERLOST) != 0;
}

}  // namespace

void Identifications::update(std::span<const std::string_view> heard, double seconds) {
  receivers_.resize(heard.size());
  for (std::size_t i = 0; i < heard.size(); ++i) listen(receivers_[i], heard[i], seconds);
}

void Identifications::listen(Receiver& receiver, std::string_view text, double seconds) {
  // A device that went away takes its buffers along; a new one gets new ones.
  if (receiver.buffer && is_lost(*receiver.buffer)) receiver = {};
  if (receiver.text == text) return;
  receiver = {};
  if (text.empty() || seconds < next_try_) return;
  receiver = {std::string(text), station(text)};
  if (!receiver.buffer || !play(*receiver.buffer, seconds)) {
    constexpr double patience_s = 5;  // until a device may be there again
    next_try_ = seconds + patience_s;
    receiver = {};
  }
}

Identifications::Owned<IDirectSoundBuffer> Identifications::station(std::string_view text) {
  if (!sound_) sound_.reset(open_device());
  if (!sound_) return nullptr;
  const std::vector<std::int16_t> samples = morse_samples(text, rate);
  WAVEFORMATEX format{WAVE_FORMAT_PCM, 1, rate, rate * sample_bytes, sample_bytes, 8 * sample_bytes, 0};
  DSBUFFERDESC description{};
  description.dwSize = sizeof description;
  description.dwFlags = DSBCAPS_STATIC;
  description.dwBufferBytes = static_cast<DWORD>(samples.size() * sample_bytes);
  description.lpwfxFormat = &format;
  IDirectSoundBuffer* made = nullptr;
  if (FAILED(sound_->CreateSoundBuffer(&description, &made, nullptr))) return nullptr;
  Owned<IDirectSoundBuffer> buffer(made);
  return write(*buffer, samples) ? std::move(buffer) : nullptr;
}

}  // namespace host
