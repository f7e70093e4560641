/// Where all sound goes: one OpenAL device for the process, open while anything uses it.
#pragma once

#include <AL/alc.h>

#include <cstddef>
#include <cstdint>

#include "platform/platform_host.h"

namespace platform {

/// A device can go away at any time. What was made on it goes with it: whoever makes something keeps
/// the device's generation and asks `holds` before using it.
class SoundDevice {
 public:
  ~SoundDevice() { close(); }

  /// Takes effect when the device is next opened by its first user.
  void choose(PlatformAudio audio);
  /// Takes effect at once: the device is given up, and opened again when something on it is restored.
  void move_to(PlatformAudio audio);

  /// Counts one more user and opens the device for the first. False, and not counted: no device.
  bool acquire();
  /// Counts one user less; the last one closes the device.
  void release();

  /// Opens a device again that went away. False while there is none.
  bool reopen();
  /// Gives the device up, with everything on it.
  void lose();

  /// 0 to 1, of the machine's device alone.
  void set_volume(float volume);

  unsigned generation() const { return generation_; }
  /// Whether what was made in `generation` is still there. Notices a device that went away.
  bool holds(unsigned generation);

  /// Takes the next frames of the mix: silence unless the device is a rendered one.
  void render(std::int16_t* samples, std::size_t frames);

 private:
  bool open();
  void close();
  void apply_volume() const;

  PlatformAudio chosen_ = PLATFORM_AUDIO_DEVICE;
  PlatformAudio audio_ = PLATFORM_AUDIO_DEVICE;
  ALCdevice* device_ = nullptr;
  ALCcontext* context_ = nullptr;
  std::size_t users_ = 0;
  unsigned generation_ = 0;
  float volume_ = 1;
};

/// The process's one device.
SoundDevice& sound_device();

}  // namespace platform
