/// Where the aircraft is and how it moves. A parked aircraft until a flight model writes it.
#pragma once

namespace host::simulation {

/// The home airfield's elevation.
inline constexpr double airfield_elevation_ft = 364.0;

struct FlightState {
  double altitude_ft = airfield_elevation_ft;  ///< true, above mean sea level
  double height_ft = 0.0;                      ///< above the ground below
  double vertical_speed_fpm = 0.0;
  double indicated_airspeed_kt = 0.0;
  bool on_ground = true;
  bool parking_brake_set = false;  ///< released: a parked aircraft stands on its chocks
};

}  // namespace host::simulation
