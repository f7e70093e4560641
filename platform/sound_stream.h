/// Sound that is made while it plays: an OpenAL source fed from a queue.
#pragma once

#include <AL/al.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace platform {

/// Uses the device while it is open. It lives no longer than the device it was opened on: then `alive`
/// is false and `open` makes it anew.
class SoundStream {
 public:
  ~SoundStream() { close(); }

  /// Opens the device where need be. False if there is none.
  bool open();
  void close();
  bool alive() const;

  /// Frames that have been fed and not been played.
  std::size_t waiting();

  /// Appends stereo frames, left first, and plays on.
  void feed(std::span<const std::int16_t> stereo);

 private:
  void take_back_played();
  ALuint free_buffer();

  bool user_ = false;  ///< of the device
  bool made_ = false;
  unsigned generation_ = 0;
  ALuint source_ = 0;
  std::deque<std::size_t> queued_;  ///< frames of each buffer, the next to play first
  std::vector<ALuint> free_;
};

}  // namespace platform
