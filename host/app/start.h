/// How a flight begins.
#pragma once

#include <vector>

#include "host/app/options.h"
#include "host/inputs/input.h"
#include "host/panel/cockpit.h"

namespace host {

/// Puts the aircraft where and when it is wanted, alone or with its cockpit.
void begin(AircraftModel& aircraft, const StartOptions& options);
void begin(Cockpit& cockpit, const StartOptions& options);

/// What a session in the cockpit begins with: on the stand with the start page, unless windows are open
/// on the desk.
std::vector<Input> beginning(const Cockpit& cockpit, const StartOptions& start, const Desk& desk);

}  // namespace host
