/// Where a flight can begin.
#pragma once

#include <span>
#include <string_view>

#include "host/simulation/aircraft_model.h"

namespace host {

struct StartPlace {
  std::string_view name;
  std::string_view words;  ///< for a person
};

std::span<const StartPlace> start_places();

/// Puts the aircraft there, with everything running except on the stand. Returns false for any other
/// name.
bool start_at(AircraftModel& aircraft, std::string_view name);

}  // namespace host
