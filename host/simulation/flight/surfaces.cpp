#include "host/simulation/flight/surfaces.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double control_lag_s = 0.08;  // hydraulic jacks
constexpr double stabiliser_middle_rad = 3.5 * radians_per_degree;
constexpr std::array<double, 3> gear_rate_per_s{1.0 / 8.0, 1.0 / 9.0, 1.0 / 9.5};

double within(double angle_rad, double reach_rad) {
  return std::clamp(angle_rad, -reach_rad, reach_rad);
}

constexpr double elevator_up_rad = 25.0 * radians_per_degree;
constexpr double elevator_down_rad = 15.0 * radians_per_degree;
constexpr double aileron_reach_rad = 20.0 * radians_per_degree;
constexpr double rudder_reach_rad = 25.0 * radians_per_degree;

double hand_elevator_rad(const FlightControls& controls) {
  return controls.elevator * (controls.elevator > 0.0 ? elevator_up_rad : elevator_down_rad);
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

void Surfaces::update(double dt_s, const FlightControls& controls, const ServoDeflections& servos,
                      bool weight_on_wheels) {
  const auto follow = [dt_s](double& surface, double target) {
    surface = lag(surface, target, control_lag_s, dt_s);
  };
  follow(elevator_rad, std::clamp(hand_elevator_rad(controls) + servos.elevator_rad, -elevator_down_rad,
                                  elevator_up_rad));
  follow(aileron_rad, within(aileron_reach_rad * controls.aileron +
                                 full_aileron_trim_deg * radians_per_degree * controls.aileron_trim +
                                 servos.aileron_rad,
                             aileron_reach_rad));
  follow(rudder_rad, within(rudder_reach_rad * controls.rudder +
                                full_rudder_trim_deg * radians_per_degree * controls.rudder_trim +
                                servos.rudder_rad,
                            rudder_reach_rad));
  follow(steering_rad, simulation::steering_rad(controls));
  stabiliser_rad = approach(stabiliser_rad, stabiliser_for_trim_rad(controls.pitch_trim),
                            1.0 * radians_per_degree, dt_s);
  flap_deg = approach(flap_deg, flap_detents_deg[controls.flap_detent], 2.5, dt_s);
  for (std::size_t leg = 0; leg < gear.size(); ++leg) {
    if (weight_on_wheels && gear[leg] >= 1.0) continue;
    gear[leg] = approach(gear[leg], controls.gear_down ? 1.0 : 0.0, gear_rate_per_s[leg], dt_s);
  }
  speed_brake = approach(speed_brake, controls.speed_brake, 1.0 / 3.0, dt_s);
  lift_dumpers = approach(lift_dumpers, controls.lift_dumpers_out ? 1.0 : 0.0, 1.0 / 0.8, dt_s);
}

void Surfaces::settle(const FlightControls& controls) {
  constexpr double longer_than_any_travel_s = 100.0;
  update(longer_than_any_travel_s, controls, {});
}

}  // namespace host::simulation
