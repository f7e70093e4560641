/// The stall warning: a vane on the fuselage's side, and the stick shaker.
///
/// The shaker works from the angle of attack at which the wing's straight line of lift reaches what
/// carries the aircraft at 1.08 of its stalling speed, for its flaps and Mach number:
///
///   alpha_w = (CLmax / 1.08^2 - CL0) / a        with CL0, CLmax and a of the lift curve
///
/// It is early where the angle grows: it acts on alpha + 0.4 s of alpha', as phase-advanced stall
/// warnings do, and stops half a degree below alpha_w. The vane lags the air by 0.1 s, and stands still
/// below 60 kt.
///
/// Check values at Mach 0.2: 13.57 degrees clean, 12.94 with flaps 42; at Mach 0.75 clean 7.3.
#pragma once

#include <optional>

namespace host::simulation {

double stall_warning_angle_rad(double flap_deg, double mach);

struct StallWarningInputs {
  bool powered = false;
  bool on_ground = true;
  double angle_of_attack_rad = 0.0;
  double flap_deg = 0.0;
  double mach = 0.0;
  double airspeed_kt = 0.0;
};

struct StallWarning {
  bool shaking = false;  ///< the stick, and with it the warning

  void update(double dt_s, const StallWarningInputs& inputs);

 private:
  std::optional<double> vane_rad_;  ///< none where it has no air to follow
};

}  // namespace host::simulation
