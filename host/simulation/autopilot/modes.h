/// The autopilot's switches and modes: what the crew has engaged.
#pragma once

namespace host::simulation {

/// Sideways one thing at a time; with none of them it keeps the wings level.
enum class LateralMode { level, heading, navigation };

struct AutopilotModes {
  bool engaged = false;  ///< the master: the servos hold the surfaces
  bool yaw_damper_on = false;
  LateralMode lateral = LateralMode::level;
  bool altitude_hold = false;  ///< goes to the selected altitude and stays there
  bool approach_armed = false;
  bool approach = false;  ///< on the course, the slope is flown once it has come
  bool autothrottle_armed = false;
  bool airspeed_hold = false;  ///< the armed autothrottle moves the levers

  /// A heading ends the approach.
  void hold_heading(bool on);

  /// Off comes from the selector at manual, where nothing is followed any more: it ends a heading too.
  void hold_navigation(bool on);

  /// Armed, it flies the course and waits for the glide slope; disarmed, it ends the approach.
  void arm_approach(bool on);

  /// There is nothing to hold unless localizer and glide slope are received.
  void hold_approach(bool on, bool received);

  /// Disarmed, it lets go of the levers.
  void toggle_autothrottle();

  /// Only an armed autothrottle takes a speed.
  void hold_airspeed(bool on) { airspeed_hold = on && autothrottle_armed; }

  /// What the computers lose with their power. Switches stay as they stand.
  void forget();
};

}  // namespace host::simulation
