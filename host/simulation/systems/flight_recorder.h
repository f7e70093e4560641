/// The flight recorder's running time. It runs with current while an engine runs or the aircraft flies.
/// Its tape takes 25 hours and goes round, recording over what is older.
#pragma once

#include <cmath>

namespace host::simulation {

struct FlightRecorder {
  static constexpr double tape_minutes = 25.0 * 60.0;

  double recorded_minutes = 0.0;  ///< on this round of the tape

  void update(double dt_s, bool powered, bool engine_running, bool on_ground) {
    if (!powered || (on_ground && !engine_running)) return;
    recorded_minutes = std::fmod(recorded_minutes + dt_s / 60.0, tape_minutes);
  }
};

}  // namespace host::simulation
