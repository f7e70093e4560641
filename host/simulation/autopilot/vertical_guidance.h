/// Up and down: the pitch that brings the aircraft onto a vertical speed, an altitude or the glide
/// slope.
///
/// Each of them asks for a vertical speed w, which changes by at most 0.08 g:
///   wheel     the selected vertical speed
///   altitude  the wheel's, toward the selected altitude, until its capture: then
///             w = e / 6 s close to it and sqrt(2 * 0.05 g e) farther away, e being what is left to go
///   slope     w = -ground speed * tan(3 degrees) - e / 4.5 s, e being the height above it, which is
///             the deviation times the distance that the radio height tells
/// The pitch is the path's own, w / V, and 1.1 of what is still missing of that, and its sum at 0.3 a
/// second. In a turn the wing carries 1/cos(bank) of the weight: at 150 kt 0.22 radians of angle of
/// attack for a whole one. The pitch keeps between 10 degrees down and 20 up, and below what would take
/// the wing beyond 0.78 of its greatest lift, which is 1.13 times the stalling speed: then height gives
/// way, not speed.
///
/// Check value: 1,500 ft/min begin to end 59 m (194 ft) before the altitude.
#pragma once

#include "host/simulation/autopilot/modes.h"
#include "host/simulation/autopilot/selections.h"
#include "host/simulation/autopilot/sensed.h"

namespace host::simulation {

enum class VerticalMode { vertical_speed, altitude, slope };

struct VerticalGuidance {
  double pitch_rad = 0.0;  ///< asked for, nose up positive
  VerticalMode mode = VerticalMode::vertical_speed;
  bool captured = false;     ///< the selected altitude
  double missing_rad = 0.0;  ///< of the path asked for, upward positive

  /// Starts afresh from the aircraft's own pitch and climb.
  void start(const Sensed& sensed);

  /// Takes the modes of the next update as freshly chosen.
  void choose_again();

  /// On its way to an altitude it turns the wheel toward it, there to zero; leaving the slope it
  /// sets the wheel to the present climb. `on_course` lets the slope be captured.
  void update(double dt_s, AutopilotModes& modes, Selections& selections, const Sensed& sensed,
              bool on_course);

 private:
  double climb_mps_ = 0.0;  ///< asked for
  double pitch_sum_rad_ = 0.0;
  double goal_ft_ = 0.0;

  void choose_mode(AutopilotModes& modes, Selections& selections, const Sensed& sensed, bool on_course);
  double wanted_climb_mps(Selections& selections, const Sensed& sensed);
  double climb_to_altitude_mps(Selections& selections, const Sensed& sensed);
  void aim(Selections& selections, double to_go_ft);
  void follow(double dt_s, const Sensed& sensed);
};

}  // namespace host::simulation
