/// Noise in eight bands. It is filtered as it is made, so it has no loop and no seam.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "host/ambience/lanes.h"

namespace host {

class NoiseBank {
 public:
  static constexpr Lanes hertz{35, 80, 170, 370, 800, 1700, 3600, 7500};

  NoiseBank();

  /// Adds the next stereo frames, left first. Each band's level, as root mean square of full scale,
  /// moves evenly to this one from that of the last call.
  void add(std::span<float> stereo, const Lanes& levels);

 private:
  struct Stage {
    LaneRegisters first, second;  ///< what a filter remembers
  };
  using Stages = std::array<Stage, 2>;

  LaneRegisters pass(Stages& stages, LaneRegisters in) const;

  LaneRegisters feed_, first_back_, second_back_;  ///< of a band pass, used twice in a row
  Lanes to_unity_{};
  std::array<Stages, 2> sides_{};
  std::array<std::uint32_t, 2> seeds_{0x2545F491u, 0x9E3779B9u};
  Lanes levels_{};
};

}  // namespace host
