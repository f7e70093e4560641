/// What hands and feet or a script do to the aircraft. Whoever flies writes here; the aircraft follows
/// from its next step on. The autopilot turns the trim wheel and moves the throttles, and has servos
/// for the rest.
#pragma once

#include <array>
#include <cstddef>

namespace host::simulation {

/// Flap angles of the lever's detents.
inline constexpr std::array<double, 6> flap_detents_deg{0.0, 6.0, 11.0, 18.0, 25.0, 42.0};

struct FlightControls {
  double elevator = 0.0;             ///< -1 pushed .. 1 pulled
  double aileron = 0.0;              ///< -1 left .. 1 right
  double rudder = 0.0;               ///< -1 left pedal .. 1 right pedal
  double pitch_trim = 0.0;           ///< -1 nose down .. 1 nose up
  double aileron_trim = 0.0;         ///< -1 left .. 1 right, of the trim's own travel
  double rudder_trim = 0.0;          ///< -1 left .. 1 right, likewise
  std::array<double, 2> throttle{};  ///< engines 1 and 2: 0 idle .. 1 take-off
  std::size_t flap_detent = 0;       ///< index in flap_detents_deg
  bool gear_down = true;
  double speed_brake = 0.0;         ///< 0 shut .. 1 open
  bool lift_dumpers_out = false;    ///< they follow on the ground alone
  bool lift_dumpers_armed = false;  ///< they run out by themselves with the throttles closed
  std::array<double, 2> brake{};    ///< left and right pedal: 0 .. 1
  double tiller = 0.0;              ///< -1 left .. 1 right
  bool parking_brake_set = false;

  /// The same within the ranges above: a ratio beyond its end stands at it, one that is no number at 0.
  FlightControls limited() const;
};

}  // namespace host::simulation
