/// How a flight begins.
#pragma once

#include <vector>

#include "host/app/options.h"
#include "host/inputs/input.h"
#include "host/simulation/aircraft_model.h"

namespace host {

/// Puts the aircraft where and when it is wanted.
void begin(AircraftModel& aircraft, const StartOptions& options);

/// What a session in the cockpit begins with. Throws std::runtime_error for a window to open that the panel
/// does not have.
std::vector<Input> beginning(const Cockpit& cockpit, const FlyOptions& options);

}  // namespace host
