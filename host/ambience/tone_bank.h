/// Steady tones whose pitch and level glide.
#pragma once

#include <array>
#include <span>

#include "host/ambience/lanes.h"

namespace host {

struct Tone {
  float hertz = 0;
  float left = 0, right = 0;  ///< amplitudes, 1 is full scale
};

class ToneBank {
 public:
  static constexpr std::size_t size = std::tuple_size_v<Lanes>;
  using Tones = std::array<Tone, size>;

  /// Adds the next stereo frames, left first: at these pitches, the levels moving evenly from those of
  /// the last call to these. Calls of some milliseconds make a glide of a changing pitch.
  void add(std::span<float> stereo, const Tones& tones);

 private:
  LaneRegisters cosine_ = LaneRegisters::all(1.0f), sine_;  ///< of each tone's phase
  LaneRegisters left_, right_;
};

}  // namespace host
