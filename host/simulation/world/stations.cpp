#include "host/simulation/world/stations.h"

namespace host::simulation {

const LandingSystem& landing_system() {
  static const LandingSystem system{"ITV",
                                    110.30,
                                    runway_true_deg,
                                    3.0,
                                    on_runway_axes(runway_length_m / 2.0 + 300.0, 0.0),
                                    on_runway_axes(threshold_along_m + 300.0, 0.0)};
  return system;
}

const std::array<VorStation, 2>& vor_stations() {
  static const std::array<VorStation, 2> stations{
      VorStation{"TRN", 113.35, {15000.0, 9000.0, -airfield_elevation_m}},
      VorStation{"HLV", 115.80, {-42000.0, -51000.0, -airfield_elevation_m}}};
  return stations;
}

const NdbStation& ndb_station() {
  static const NdbStation station{
      "TV", 368.0, on_runway_axes(threshold_along_m - marker_beacons[0].before_threshold_m, 0.0)};
  return station;
}

}  // namespace host::simulation
