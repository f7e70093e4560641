/// One sound on the device: an OpenAL source with its own copy of the samples.
#pragma once

#include <AL/al.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace platform {

/// Lets a source's samples reach left and right as they are, whatever the speakers, with the best
/// conversion of rates.
void play_unchanged(ALuint source);

/// Lives no longer than the device it was made on: then `alive` is false, the other calls do nothing,
/// and `create` makes it anew. Positions are in frames.
class Voice {
 public:
  Voice() = default;
  ~Voice();
  Voice(const Voice&) = delete;
  Voice& operator=(const Voice&) = delete;

  /// Makes the voice on the open device, silent and empty. False if the device takes no more.
  bool create();
  bool alive() const;

  /// Takes stereo samples; stops what plays. False if there is no memory for them.
  bool load(std::span<const std::int16_t> stereo, unsigned rate);

  /// Starts at a frame of the samples. False if the device fails.
  bool play(std::size_t frame, bool looping);
  void stop();
  bool playing() const;

  std::size_t frame() const;
  void seek(std::size_t frame);

 private:
  ALuint source_ = 0;
  ALuint buffer_ = 0;
  unsigned generation_ = 0;
  bool created_ = false;
};

}  // namespace platform
