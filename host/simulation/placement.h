/// Where an aircraft can be put in the air.
#pragma once

#include <cstddef>

namespace host::simulation {

struct InFlight {
  double altitude_ft = 5000.0;
  double airspeed_kt = 250.0;  ///< calibrated
  double mach = 0.0;           ///< counts instead of the airspeed where it is above 0
  double heading_deg = 70.0;   ///< magnetic
  double along_m = 0.0;        ///< in the runway's direction from its middle
  double right_m = 0.0;        ///< of the runway's middle line
  std::size_t flap_detent = 0;
  bool gear_down = false;
};

}  // namespace host::simulation
