/// The wing's lift against angle of attack, with the break at the stall.
///
///   CL = CL0 + a alpha                up to 2.5 degrees short of where that line meets CLmax
///   then a parabola that reaches CLmax, flat, 5 degrees on: the first of it buffets
///   then a break: a third of the lift is gone 10 degrees later
///   far beyond it a flat plate: CL = 1.1 sin 2 alpha
///
/// CL0 and CLmax come with the flaps; `a` rises with the Mach number as 1/sqrt(1 - M^2/2) (Prandtl and
/// Glauert's rule, less what sweep and aspect ratio take from it), and CLmax falls from Mach 0.3 on
/// (shock-induced separation). The shape is the usual one of class-room polars (Anderson, Fundamentals
/// of Aerodynamics, ch. 4), the figures are this aircraft's own.
///
/// Check values at Mach 0.2: clean CLmax 1.74 at 18.5 degrees, flaps 42 CLmax 2.72.
#pragma once

namespace host::simulation {

/// What a flap angle gives.
struct FlapEffect {
  double lift_at_zero;     ///< CL0
  double greatest_lift;    ///< CLmax at low Mach number
  double drag;             ///< more than clean
  double pitching_moment;  ///< more than clean, nose up positive
};

/// Straight between the detents.
FlapEffect flap_effect(double flap_deg);

struct Lift {
  double coefficient;
  double linear;     ///< what it would be without a stall
  double separated;  ///< 0 attached, 0.5 at CLmax, 1 deep in the stall
};

Lift wing_lift(double angle_of_attack_rad, double mach, const FlapEffect& flaps);

/// CLmax at a Mach number.
double greatest_lift(double mach, const FlapEffect& flaps);

/// The angle of attack of that part of CLmax, up to some 0.8 where the curve is straight.
double angle_of_attack_rad(double part_of_greatest, double mach, const FlapEffect& flaps);

/// The lift slope `a` per radian.
double lift_slope(double mach);

}  // namespace host::simulation
