/// The aircraft's own sound on the machine's device.
#pragma once

#include <cstdint>
#include <vector>

#include "host/ambience/cockpit_noise.h"

namespace host {

/// There is one at a time, with all calls on one thread. Without a device it is silent, and asks for
/// one now and then.
class AmbienceStream {
 public:
  AmbienceStream() = default;
  ~AmbienceStream();
  AmbienceStream(const AmbienceStream&) = delete;
  AmbienceStream& operator=(const AmbienceStream&) = delete;

  /// Call after every frame, with the simulated time in seconds: keeps so much of the noise ready that
  /// a late frame is not heard.
  void keep_up(CockpitNoise& noise, double seconds);

  /// Frames stop for a while: what is ready dies away.
  void pause(CockpitNoise& noise);

 private:
  bool is_open(double seconds);
  void feed(CockpitNoise& noise, std::size_t frames);

  double next_try_ = 0;  ///< seconds
  std::vector<std::int16_t> samples_;
};

}  // namespace host
