/// What the autopilot's computers are told by the rest of the aircraft.
#pragma once

#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/flight_controls.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/navigation/receivers.h"

namespace host::simulation {

struct Sensed {
  const FlightState& flight;
  const AirData& air;
  const NavReceiver& nav;
  double flap_deg = 0.0;
  bool area_navigation =
      false;  ///< the course comes from the navigation computer, not from the receiver
  bool powered = false;
  bool gyros_true = true;  ///< attitude and heading can be believed
};

}  // namespace host::simulation
