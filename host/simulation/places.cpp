#include "host/simulation/places.h"

#include <algorithm>
#include <array>

#include "host/simulation/world/stations.h"

namespace host {
namespace {

using simulation::InFlight;
using simulation::threshold_along_m;

constexpr std::array<StartPlace, 6> places{{
    {"stand", "on the stand, cold and dark"},
    {"runway", "lined up on runway 07, engines idling"},
    {"downwind", "north of the field, 1,500 ft above it, heading 250"},
    {"base", "northwest of the runway's beginning, heading 160, gear down"},
    {"final", "five miles before runway 07, gear and flaps down, below the slope"},
    {"cruise", "33,000 ft, Mach 0.75"},
}};

// The left-hand circuit of runway 07.
InFlight in_flight(std::string_view name) {
  if (name == "downwind")
    return {.altitude_ft = 1860,
            .airspeed_kt = 180,
            .heading_deg = 250,
            .right_m = -3700,
            .flap_detent = 2};
  if (name == "base")
    return {.altitude_ft = 1500,
            .airspeed_kt = 150,
            .heading_deg = 160,
            .along_m = threshold_along_m - 5200,
            .right_m = -3000,
            .flap_detent = 3,
            .gear_down = true};
  if (name == "final")
    return {.altitude_ft = 1860,
            .airspeed_kt = 138,
            .heading_deg = 70,
            .along_m = threshold_along_m - 9260,
            .flap_detent = 5,
            .gear_down = true};
  return {.altitude_ft = 33000, .mach = 0.75, .heading_deg = 70, .along_m = -40000};
}

}  // namespace

std::span<const StartPlace> start_places() { return places; }

bool start_at(AircraftModel& aircraft, std::string_view name) {
  if (std::ranges::find(places, name, &StartPlace::name) == places.end()) return false;
  if (name == "stand") return true;
  if (name != "runway") return aircraft.place_in_flight(in_flight(name)), true;
  aircraft.make_ready();
  aircraft.place_on_runway();
  return true;
}

}  // namespace host
