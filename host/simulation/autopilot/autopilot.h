/// The autopilot: flies by its servos what the flight director asks for, and holds the speed.
///
/// It engages in the air with power, an attitude within 35 degrees of bank and 20 of pitch, no buffet,
/// and the stick free. It lets go when the master is switched off, when the pilot moves the stick by a
/// quarter of its travel, when the wing buffets before a stall, beyond 50 degrees of bank or 30 of
/// pitch, without power or gyros, and on the ground. It does not flare: the pilot takes over above 50
/// ft.
#pragma once

#include "host/simulation/autopilot/autothrottle.h"
#include "host/simulation/autopilot/flight_director.h"
#include "host/simulation/autopilot/servos.h"

namespace host::simulation {

struct Autopilot {
  AutopilotModes modes;
  Selections selections;
  FlightDirector director;
  Servos servos;
  Autothrottle autothrottle;

  /// The master switch. It springs back where the autopilot will not engage.
  void toggle(const Sensed& sensed, const FlightControls& hand);

  /// Lets go of everything, as if the aircraft had just been put where it is. Switches stay.
  void reset(const Sensed& sensed);

  /// Moves the trim wheel and the throttle levers among the controls, nothing else.
  void update(double dt_s, const Sensed& sensed, FlightControls& controls);

 private:
  void keep_what_can_go_on(const Sensed& sensed, const FlightControls& hand);
};

}  // namespace host::simulation
