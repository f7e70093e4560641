/// The flight director: the attitude that would fly what the crew has asked for.
///
/// Sideways it captures the localizer once that is within its scale, else it turns to the heading bug; up
/// and down it follows the glide slope once within its scale, else it goes to the selected altitude and
/// holds it. It gives an attitude, not a surface: whoever keeps the bars centred flies it.
///
///   bank  = 1.3 per degree of heading error, at most 25 degrees
///   track = course + 0.045 degrees per metre beside it, at most 30 degrees to the side
///   path  = 3 degree slope less 4 per full scale; else 5 ft/min per foot, at most 1,500 ft/min
///   pitch = pitch now + (wanted path - path now), at most 10 down and 15 up, smoothed over 1 s
#pragma once

#include "host/simulation/autopilot/selections.h"
#include "host/simulation/navigation/receivers.h"

namespace host::simulation {

struct FlightDirector {
  bool on = false;
  double pitch_deg = 0.0;  ///< wanted, nose up positive
  double bank_deg = 0.0;   ///< wanted, right positive

  void update(double dt_s, const FlightState& flight, double indicated_altitude_ft,
              const NavReceiver& nav, const Selections& selections);
};

}  // namespace host::simulation
