#include "host/simulation/systems/apu.h"

#include <algorithm>

namespace host::simulation {

void Apu::update(double dt_s) {
  constexpr double spool_up_percent_per_s = 100.0 / 30.0;
  constexpr double run_down_percent_per_s = 100.0 / 45.0;
  const double rate = running ? spool_up_percent_per_s : -run_down_percent_per_s;
  speed_percent = std::clamp(speed_percent + rate * dt_s, 0.0, 100.0);
}

}  // namespace host::simulation
