/// Up and down: the pitch that brings the aircraft onto a vertical speed, an altitude or the glide slope.
///
/// Each of them asks for a vertical speed w, which changes by at most 0.08 g:
///   wheel     the selected vertical speed
///   altitude  the wheel's, toward the selected altitude, until its capture: then
///             w = e / 5 s close to it and sqrt(2 * 0.05 g e) farther away, e being what is left to go
///   slope     w = -ground speed * tan(3 degrees) - e / 6 s, e being the height above it, which is
///             the deviation times the distance that the radio height tells
/// and what is missing of the path angle, (w - climb) / V, moves the pitch: 0.8 of it at once, the rest by a
/// sum at 0.25 a second. In a turn the wing needs 1/cos(bank) of its lift, at 150 kt some 13 degrees more
/// angle of attack for each whole weight. The pitch keeps between 10 degrees down and 20 up, and
/// below what would ask the wing for more than 0.78 of its greatest lift, 1.13 times its stalling speed.
///
/// Check value: 1,500 ft/min end 66 m (218 ft) before the altitude.
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

  /// As from this moment: the aircraft's own pitch and climb.
  void start(const Sensed& sensed);

  /// On its way to an altitude it turns the wheel toward it, there to zero; leaving any other mode it
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
