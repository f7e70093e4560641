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
  bool approach = false;  ///< localizer and glide slope
  bool autothrottle_armed = false;
  bool airspeed_hold = false;  ///< the armed autothrottle moves the levers

  void hold_heading(bool on) { hold(LateralMode::heading, on); }
  void hold_navigation(bool on) { hold(LateralMode::navigation, on); }

  /// Off, it takes the approach with it.
  void arm_approach(bool on);

  /// There is nothing to hold without a localizer and a glide slope.
  void hold_approach(bool on, bool received);

  /// Disarmed, it lets go of the levers.
  void toggle_autothrottle();

  /// Only an armed autothrottle takes a speed.
  void hold_airspeed(bool on) { airspeed_hold = on && autothrottle_armed; }

 private:
  void hold(LateralMode mode, bool on);
};

}  // namespace host::simulation
