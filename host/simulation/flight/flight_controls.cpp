#include "host/simulation/flight/flight_controls.h"

#include <algorithm>

namespace host::simulation {
namespace {

double within(double ratio, double least) {
  return ratio == ratio ? std::clamp(ratio, least, 1.0) : 0.0;
}

}  // namespace

FlightControls FlightControls::limited() const {
  FlightControls limited = *this;
  for (double FlightControls::*both_ways :
       {&FlightControls::elevator, &FlightControls::aileron, &FlightControls::rudder,
        &FlightControls::pitch_trim, &FlightControls::aileron_trim, &FlightControls::rudder_trim,
        &FlightControls::tiller}) {
    limited.*both_ways = within(limited.*both_ways, -1.0);
  }
  for (double* one_way : {&limited.speed_brake, &limited.throttle[0], &limited.throttle[1],
                          &limited.brake[0], &limited.brake[1]}) {
    *one_way = within(*one_way, 0.0);
  }
  limited.flap_detent = std::min(flap_detent, flap_detents_deg.size() - 1);
  return limited;
}

}  // namespace host::simulation
