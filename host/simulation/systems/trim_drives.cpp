#include "host/simulation/systems/trim_drives.h"

#include <algorithm>

#include "host/simulation/flight/surfaces.h"

namespace host::simulation {
namespace {

constexpr double rad_per_notch = 0.05 * radians_per_degree;
constexpr double motor_deg_per_s = 0.5;
constexpr double seconds_per_press = 2.0;

}  // namespace

void TrimMotor::press(double side) { seconds_to_run += side * seconds_per_press; }

void TrimMotor::update(double dt_s, double& trim, double full_trim_deg) {
  const double run_s = std::clamp(seconds_to_run, -dt_s, dt_s);
  seconds_to_run -= run_s;
  trim = std::clamp(trim + run_s * motor_deg_per_s / full_trim_deg, -1.0, 1.0);
  const bool at_its_end = (run_s > 0.0 && trim == 1.0) || (run_s < 0.0 && trim == -1.0);
  if (at_its_end) seconds_to_run = 0.0;
}

void TrimDrives::update(double dt_s, FlightControls& controls) {
  aileron.update(dt_s, controls.aileron_trim, full_aileron_trim_deg);
  rudder.update(dt_s, controls.rudder_trim, full_rudder_trim_deg);
}

void turn_pitch_trim(FlightControls& controls, double notches) {
  const double stabiliser_rad = stabiliser_for_trim_rad(controls.pitch_trim) + notches * rad_per_notch;
  controls.pitch_trim = std::clamp(trim_for_stabiliser(stabiliser_rad), -1.0, 1.0);
}

}  // namespace host::simulation
