/// The actuators between the crew's controls and the air: what moves, how far and how fast.
#pragma once

#include <array>

#include "host/simulation/base/units.h"
#include "host/simulation/flight/flight_controls.h"

namespace host::simulation {

inline constexpr double full_flap_deg = flap_detents_deg.back();
inline constexpr double stabiliser_travel_rad = 7.0 * radians_per_degree;  ///< either way of its middle

/// What servos add to the crew's controls; each sign is that of the control beside it.
struct ServoDeflections {
  double elevator_rad = 0.0;
  double aileron_rad = 0.0;
  double rudder_rad = 0.0;
};

/// Radians; each sign is that of the control that moves it.
struct Surfaces {
  double elevator_rad = 0.0;                  ///< 25 degrees pulled, 15 pushed
  double stabiliser_rad = 0.0;                ///< nose-up trim positive: -3.5 .. 10.5 degrees
  double aileron_rad = 0.0;                   ///< 20 degrees either way, of which trim 5
  double rudder_rad = 0.0;                    ///< 25 degrees either way, of which trim 7
  double flap_deg = 0.0;                      ///< 2.5 degrees a second: full flap in 17 s
  std::array<double, 3> gear{1.0, 1.0, 1.0};  ///< nose, left, right: 0 up .. 1 locked; 8, 9, 9.5 s
  double speed_brake = 0.0;                   ///< 0..1 in 3 s
  double lift_dumpers = 0.0;                  ///< 0..1 in 0.8 s
  double steering_rad = 0.0;  ///< nose wheel, right positive: tiller 60 degrees, pedals 6

  /// The controls stand within their limits. While the wheels carry weight, a leg that is locked down
  /// stays so whatever the lever says.
  void update(double dt_s, const FlightControls& controls, const ServoDeflections& servos,
              bool weight_on_wheels = false);

  /// Everything at once where the controls ask for it.
  void settle(const FlightControls& controls);
};

inline constexpr double full_aileron_trim_deg = 5.0, full_rudder_trim_deg = 7.0;

double stabiliser_for_trim_rad(double pitch_trim);
double trim_for_stabiliser(double stabiliser_rad);

}  // namespace host::simulation
