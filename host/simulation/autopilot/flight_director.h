/// The flight director: the attitude that flies what the crew has asked for. Whoever keeps the bars
/// centred flies it, by hand or by autopilot; both see the same commands.
///
/// While nothing has been chosen and the autopilot is off it makes the usual choice: sideways the
/// localizer once that is alive, else the heading bug; up and down the glide slope once on the
/// localizer, else the selected altitude at 1,500 ft/min.
#pragma once

#include "host/simulation/autopilot/lateral_guidance.h"
#include "host/simulation/autopilot/vertical_guidance.h"

namespace host::simulation {

struct FlightDirector {
  bool on = false;         ///< the bars are in view; it computes in any case
  double pitch_deg = 0.0;  ///< wanted, nose up positive
  double bank_deg = 0.0;   ///< wanted, right positive
  LateralGuidance lateral;
  VerticalGuidance vertical;

  /// Starts afresh from the aircraft's own attitude.
  void start(const Sensed& sensed);

  /// May turn modes off that have ended, and the vertical speed's wheel.
  void update(double dt_s, AutopilotModes& modes, Selections& selections, const Sensed& sensed);

 private:
  bool chosen_up_and_down_ = false;
};

}  // namespace host::simulation
