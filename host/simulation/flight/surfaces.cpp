#include "host/simulation/flight/surfaces.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double control_lag_s = 0.08;  // hydraulic jacks
constexpr double stabiliser_middle_rad = 3.5 * radians_per_degree;
constexpr double stabiliser_travel_rad = 7.0 * radians_per_degree;
constexpr std::array<double, 3> gear_rate_per_s{1.0 / 8.0, 1.0 / 9.0, 1.0 / 9.5};

double unit(double ratio) { return std::clamp(ratio, -1.0, 1.0); }

double elevator_rad(const FlightControls& controls) {
  return controls.elevator * (controls.elevator > 0.0 ? 25.0 : 15.0) * radians_per_degree;
}

double trimmed_rad(double control, double full_deg, double trim, double full_trim_deg) {
  return full_deg * radians_per_degree * unit(control + trim * full_trim_deg / full_deg);
}

double steering_rad(const FlightControls& controls) {
  return (60.0 * controls.tiller + 6.0 * controls.rudder) * radians_per_degree;
}

}  // namespace

double stabiliser_for_trim_rad(double pitch_trim) {
  return stabiliser_middle_rad + stabiliser_travel_rad * pitch_trim;
}

double trim_for_stabiliser(double stabiliser_rad) {
  return (stabiliser_rad - stabiliser_middle_rad) / stabiliser_travel_rad;
}

void Surfaces::update(double dt_s, const FlightControls& controls, bool weight_on_wheels) {
  const auto follow = [dt_s](double& surface, double target) {
    surface = lag(surface, target, control_lag_s, dt_s);
  };
  follow(elevator_rad, simulation::elevator_rad(controls));
  follow(aileron_rad,
         trimmed_rad(controls.aileron, 20.0, controls.aileron_trim, full_aileron_trim_deg));
  follow(rudder_rad, trimmed_rad(controls.rudder, 25.0, controls.rudder_trim, full_rudder_trim_deg));
  follow(steering_rad, simulation::steering_rad(controls));
  stabiliser_rad = approach(stabiliser_rad, stabiliser_for_trim_rad(controls.pitch_trim),
                            1.0 * radians_per_degree, dt_s);
  flap_deg = approach(flap_deg, flap_detents_deg[controls.flap_detent], 2.5, dt_s);
  for (std::size_t leg = 0; leg < gear.size(); ++leg) {
    const bool held_down = weight_on_wheels && gear[leg] >= 1.0;
    if (!held_down)
      gear[leg] = approach(gear[leg], controls.gear_down ? 1.0 : 0.0, gear_rate_per_s[leg], dt_s);
  }
  speed_brake = approach(speed_brake, controls.speed_brake, 1.0 / 3.0, dt_s);
  lift_dumpers = approach(lift_dumpers, controls.lift_dumpers_out ? 1.0 : 0.0, 1.0 / 0.8, dt_s);
}

void Surfaces::settle(const FlightControls& controls) {
  constexpr double longer_than_any_travel_s = 100.0;
  update(longer_than_any_travel_s, controls);
}

}  // namespace host::simulation
