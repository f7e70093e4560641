/// How a flight begins.
#pragma once

#include "host/app/options.h"
#include "host/simulation/aircraft_model.h"

namespace host {

/// Puts the aircraft where and when it is wanted. Returns the calls by which a flow does the same.
std::vector<std::string> begin(AircraftModel& aircraft, const StartOptions& options);

}  // namespace host
