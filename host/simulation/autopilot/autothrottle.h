/// The autothrottle: moves both levers until the aircraft flies the selected speed.
///
///   wanted acceleration = (selected - airspeed) / 10 s, at most 0.07 g
///   lever               = 0.10 a second for each m/s2 that is missing, at most 0.08 a second
/// Full travel of the levers is worth some 2.5 m/s2, and the engines follow in a second or two: a loop
/// of 0.25 radians a second around one of 0.1. So that gusts do not shake the levers, the acceleration
/// is that over the ground, and the airspeed is that acceleration summed, drawn to the indicated one in
/// 5 s (a complementary filter: Brown and Hwang, Introduction to Random Signals and Applied Kalman
/// Filtering, ch. 4).
#pragma once

#include "host/simulation/autopilot/sensed.h"

namespace host::simulation {

struct Autothrottle {
  /// Starts afresh from the aircraft's own speed.
  void start(const Sensed& sensed);

  /// `on`: it holds the levers; off it only watches the speed.
  void update(double dt_s, bool on, double selected_kt, double steeper_rad, const Sensed& sensed,
              std::array<double, 2>& levers);

 private:
  double airspeed_mps_ = 0.0;      ///< true, without the gusts
  double ground_speed_mps_ = 0.0;  ///< a step ago
};

}  // namespace host::simulation
