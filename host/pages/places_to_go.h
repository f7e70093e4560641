/// The places of the world that a crew flies to, and how the aircraft stands to them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "host/simulation/flight/flight_state.h"

namespace host {

enum class PlaceKind { runway, vor, beacon };

struct PlaceToGo {
  PlaceKind kind;
  std::string name;       ///< "RW07", "TRN"
  std::string frequency;  ///< "113.35"
  simulation::Vector position_m;
};

/// The runway's threshold first, then the stations.
std::span<const PlaceToGo> places_to_go();

/// How the aircraft moves over the ground. Directions are magnetic.
struct GroundMotion {
  double speed_kt, track_deg;
};
GroundMotion ground_motion(const simulation::FlightState& flight);

/// Seen from the aircraft, over the ground.
struct WayTo {
  double distance_nm, bearing_deg;  ///< magnetic
  double minutes;                   ///< at the present ground speed; negative while that is below 30 kt
};
WayTo way_to(const simulation::Vector& position_m, const simulation::FlightState& flight);

/// "N 48°07.30'  E 011°05.12'"
std::string position_words(const simulation::Vector& position_m);

/// "4:07", "1:02:30" of minutes; "--" for none.
std::string duration_words(double minutes);

}  // namespace host
