#include "platform/sound_device.h"

#include <AL/al.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/export.h"
#include "platform/openal_device.h"

namespace platform {
namespace {

/// As the real mixer does, what is louder than full level is cut off there.
std::int16_t to_sample(float level) {
  // Rounded by adding and cutting off, which the compiler does for many samples at a time.
  const float scaled = level * 32768.0f + 32768.5f;
  const float limited = scaled > 0.0f ? std::min(scaled, 65535.0f) : 0.0f;
  return static_cast<std::int16_t>(static_cast<std::int32_t>(limited) - 32768);
}

}  // namespace

void SoundDevice::choose(PlatformAudio audio) { chosen_ = audio; }

void SoundDevice::move_to(PlatformAudio audio) {
  close();
  chosen_ = audio_ = audio;
}

bool SoundDevice::acquire() {
  if (users_ == 0) {
    audio_ = chosen_;
    if (!open()) return false;
  }
  ++users_;
  return true;
}

void SoundDevice::release() {
  if (--users_ == 0) close();
}

bool SoundDevice::reopen() { return device_ != nullptr || open(); }

void SoundDevice::lose() { close(); }

bool SoundDevice::holds(unsigned generation) {
  if (device_ != nullptr && !is_connected(device_)) lose();
  return device_ != nullptr && generation == generation_;
}

void SoundDevice::render(std::int16_t* samples, std::size_t frames) {
  constexpr std::size_t block = 1024;
  std::array<float, block * PLATFORM_AUDIO_CHANNELS> mix{};
  while (frames > 0) {
    const std::size_t count = std::min(frames, block);
    const bool rendered = device_ != nullptr && audio_ == PLATFORM_AUDIO_RENDERED;
    if (rendered) render_frames(device_, mix.data(), count);
    samples =
        std::transform(mix.begin(), mix.begin() + count * PLATFORM_AUDIO_CHANNELS, samples, to_sample);
    frames -= count;
  }
}

bool SoundDevice::open() {
  if (audio_ == PLATFORM_AUDIO_NONE) return false;
  const bool rendered = audio_ == PLATFORM_AUDIO_RENDERED;
  device_ = rendered ? open_rendered_device() : open_default_device();
  if (device_ == nullptr) return false;
  context_ = create_context(device_, rendered);
  if (context_ != nullptr && alcMakeContextCurrent(context_)) return apply_volume(), true;
  close();
  return false;
}

void SoundDevice::set_volume(float volume) {
  volume_ = std::clamp(volume, 0.0f, 1.0f);
  apply_volume();
}

void SoundDevice::apply_volume() const {
  if (device_ != nullptr) alListenerf(AL_GAIN, audio_ == PLATFORM_AUDIO_DEVICE ? volume_ : 1.0f);
}

void SoundDevice::close() {
  if (device_ == nullptr) return;
  alcMakeContextCurrent(nullptr);
  if (context_ != nullptr) alcDestroyContext(context_);
  alcCloseDevice(device_);
  context_ = nullptr;
  device_ = nullptr;
  ++generation_;
}

SoundDevice& sound_device() {
  static SoundDevice device;
  return device;
}

}  // namespace platform

PLATFORM_EXPORT void platform_choose_audio(enum PlatformAudio audio) {
  platform::sound_device().choose(audio);
}

PLATFORM_EXPORT void platform_move_audio(enum PlatformAudio audio) {
  platform::sound_device().move_to(audio);
}

PLATFORM_EXPORT int platform_has_audio(void) {
  if (!platform::sound_device().acquire()) return 0;
  platform::sound_device().release();
  return 1;
}

PLATFORM_EXPORT void platform_set_volume(float volume) { platform::sound_device().set_volume(volume); }

PLATFORM_EXPORT void platform_render_audio(int16_t* samples, size_t frames) {
  platform::sound_device().render(samples, frames);
}

PLATFORM_EXPORT void platform_lose_audio(void) { platform::sound_device().lose(); }
