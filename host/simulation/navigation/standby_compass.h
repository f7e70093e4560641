/// The standby compass: a card that floats in liquid with magnets under it, pendulous, so that it hangs
/// across the felt vertical and turns into what it feels of the earth's field in its own plane.
///
///   n   up as it is felt: against the specific force, which the float follows with 0.5 s
///   b   the earth's field, inclined downward by the dip I = 64 degrees (48 degrees north)
///   bp = b - n (b n), xp = x - n (x n): field and nose in the card's plane; where both agree the card
///        rests, at the reading r0 = angle from bp to xp
///   r' = yaw - w,  w' = w0^2 |bp|/cos I sin(r - r0) - 2 z w0 w      w the card's own turning in space
///
/// with w0 = 2 pi/5 s and z = 0.5. All errors come out of the tilt (Kayton and Fried, Avionics
/// Navigation Systems, 2nd ed., ch. 9): banked, the field's downward part draws the north end to the
/// low side, so it lags behind a turn from north and runs ahead of one from south; speeding up on east
/// or west it turns toward north, slowing down toward south.
///
/// Check values, at rest in a balanced turn: heading 360, bank right 15 degrees: 332; heading 180: 208.
/// Wings level on 090, speeding up with 0.1 g: 78.5.
#pragma once

#include "host/simulation/flight/flight_state.h"

namespace host::simulation {

struct StandbyCompass {
  double reading_deg = 0.0;  ///< 0 to 360

  void update(double dt_s, const FlightState& flight);

  /// At rest as the aircraft moves now.
  void settle(const FlightState& flight);

 private:
  Vector up_{0.0, 0.0, -1.0};  ///< across the card, along the aircraft's axes
  double rate_rad_per_s_ = 0.0;
};

}  // namespace host::simulation
