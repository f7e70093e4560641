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

/// Puts the aircraft there, everything running but on the stand. Returns false for a name that is none of
/// those.
bool start_at(AircraftModel& aircraft, std::string_view name);

}  // namespace host
