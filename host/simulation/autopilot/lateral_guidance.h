/// Where to turn: the bank that brings the aircraft onto a heading or a course.
///
/// A turn goes at g tan(bank) / V, so the bank for a heading that comes with the time constant T is
///   bank = atan(V / g * turn / T), at most 25 degrees, changing by at most 5 degrees a second.
/// Beside a course it aims at a point on it some seconds L ahead:
///   track = course + aside / (V L), at most 45 degrees (localizer 40) to the side.
/// With T = 8 s and L = 24 s (localizer 5 and 15) distance and direction come together without
/// overshoot: the two lags stand one to three, where a second-order system is damped to 0.87
/// (Blakelock, Automatic Control of Aircraft and Missiles, 2nd ed., ch. 5). To this comes the bank at
/// which a dead engine's drag turns the aircraft no more; bank and turn rate tell it, smoothed over 15
/// s.
///
/// Check values: 10 degrees of turn at 150 kt ask for 9.7 degrees of bank; 500 m beside a VOR's course
/// at 77 m/s for 15.5 degrees of track.
#pragma once

#include "host/simulation/autopilot/modes.h"
#include "host/simulation/autopilot/sensed.h"

namespace host::simulation {

struct LateralGuidance {
  double bank_rad = 0.0;   ///< asked for, right positive
  bool on_course = false;  ///< navigation has captured its course; until then it flies the heading bug

  /// Starts afresh from the aircraft's own bank, with no course captured.
  void start(const Sensed& sensed);

  void update(double dt_s, LateralMode mode, const Sensed& sensed, double heading_bug_deg);

 private:
  LateralMode mode_ = LateralMode::level;
  bool wings_level_ = false;
  double kept_heading_deg_ = 0.0;
  double kept_track_deg_ = 0.0;
  int frequency_khz_ = 0;  ///< of the captured station
  double standing_bank_rad_ = 0.0;

  struct Turn {
    double deg;
    double time_s;  ///< in which it should die away
  };

  void enter(LateralMode mode);
  Turn wanted_turn(const Sensed& sensed, double heading_bug_deg);
  Turn level_turn(const Sensed& sensed);
  Turn navigation_turn(const Sensed& sensed, double heading_bug_deg);
  void learn_standing_bank(double dt_s, const Sensed& sensed);
};

}  // namespace host::simulation
