#include "host/app/start.h"

#include <cstdio>

#include "host/simulation/places.h"

namespace host {

std::vector<std::string> begin(AircraftModel& aircraft, const StartOptions& options) {
  std::vector<std::string> calls;
  if (options.hours) {
    aircraft.set_time_of_day(*options.hours * 3600.0);
    char call[48];
    std::snprintf(call, sizeof call, "set_time_of_day(%.17g)", *options.hours);
    calls.emplace_back(call);
  }
  if (options.at != "stand") {
    start_at(aircraft, options.at);
    calls.push_back("start_at(\"" + options.at + "\")");
  }
  return calls;
}

}  // namespace host
