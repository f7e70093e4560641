/// The sound of a flow: taken from the platform in simulated time, measured, and written to a file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/sound/wav_file.h"

namespace host {

/// Needs rendered audio. Must be advanced also without a file, since only then do sounds end.
class Soundtrack {
 public:
  static constexpr double memory = 10;  ///< seconds that can be measured

  Soundtrack() = default;
  /// Writes what it takes to a WAV file. Throws std::runtime_error that names the file.
  explicit Soundtrack(const std::string& file) : file_(file) {}

  /// Takes the sound of the next `seconds`. Does not drift, however small the steps.
  void advance(double seconds);

  /// Root mean square of the last `seconds` (up to `memory`), 1 being a full-scale square wave.
  double level(double seconds) const;

  /// Completes the file; throws as above.
  void finish() { file_.finish(); }

 private:
  WavFile file_;
  double seconds_ = 0;
  std::uint64_t frames_ = 0;
  std::vector<std::int16_t> last_;  ///< the newest samples, at least `memory` once there are that many
};

}  // namespace host
