/// The sound of a run without a sound device: takes the mix in simulated time, measures it and writes
/// it down.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "host/sound/wav_file.h"

namespace host {

/// A run whose sound is rendered must advance a recorder, with or without a file: otherwise time
/// stands still for its sounds, and what has been started never ends. All calls on one thread.
class WavRecorder {
 public:
  static constexpr double memory = 10;  ///< seconds that can be measured

  /// Keeps the sounds' time and writes nothing.
  WavRecorder() = default;
  /// Records into a 44.1 kHz 16 bit stereo WAV file. Throws std::runtime_error that names the file if
  /// it cannot be written.
  explicit WavRecorder(const std::string& path) : file_(path) {}

  /// Takes the sound of the next `seconds` (0 or more) of simulated time. The frames follow the sum
  /// of all steps: however small the steps, sound and time do not drift apart. Throws as above.
  void advance(double seconds);

  /// Mixes more into the next samples, interleaved stereo, before they are written. May be empty.
  std::function<void(std::span<std::int16_t>)> mix_in;

  /// Root mean square of the last `seconds` (up to `memory`), 1 being a full-scale square wave; without
  /// what is mixed in.
  double level(double seconds) const;

  /// Completes the file; nothing more is recorded. Throws as above. Destruction does the same, but
  /// silently.
  void finish() { file_.finish(); }

  /// How much sound has been taken, in stereo frames.
  std::uint64_t frames() const { return frames_; }

 private:
  WavFile file_;
  double seconds_ = 0;
  std::uint64_t frames_ = 0;
  std::vector<std::int16_t> last_;  ///< the newest samples, at least `memory` once there are as many
};

}  // namespace host
