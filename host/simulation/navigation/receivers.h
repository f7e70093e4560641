/// What the navigation receivers make of the stations around.
///
/// Radio waves go straight: a station is heard to 1.23 (sqrt(h1) + sqrt(h2)) miles, h in feet, with its
/// mast at 50 ft, at most 100 miles; the beacon's long waves follow the ground for 130. The localizer
/// is heard 25 miles out within 35 degrees of its course, the glide slope 12 miles out within 8 degrees
/// either side and between 0.45 and 1.75 of its angle (after ICAO Annex 10, volume I, 3.1). Full scale
/// is 2.5 degrees of localizer, 0.7 of glide slope, 10 of a VOR's course.
#pragma once

#include <string_view>

#include "host/simulation/flight/flight_state.h"
#include "host/simulation/navigation/tuning.h"
#include "host/simulation/world/stations.h"

namespace host::simulation {

inline constexpr double localizer_full_scale_deg = 2.5;
inline constexpr double slope_full_scale_deg = 0.7;
inline constexpr double vor_full_scale_deg = 10.0;

enum class ToFrom { off = 0, to = 1, from = 2 };

/// A VOR, localizer, glide slope and DME receiver. Directions are magnetic.
struct NavReceiver {
  VhfTuning tuning{nav_band, 108000, 108000};
  double course_deg = 70.0;  ///< selected by the crew

  bool received = false;
  std::string_view ident;  ///< what the station keys; empty without a signal
  bool localizer = false;
  bool glide_slope = false;
  double distance_nm = -1.0;      ///< along the slant; negative without a signal
  double bearing_deg = 0.0;       ///< to the station
  double course_deviation = 0.0;  ///< full scales: positive where the course lies to the right
  double slope_deviation = 0.0;   ///< full scales: positive above the slope
  ToFrom to_from = ToFrom::off;

  void update(const FlightState& flight, bool powered);

 private:
  void forget();
  void update_landing_system(const FlightState& flight, const LandingSystem& station);
  void update_glide_slope(const FlightState& flight, const LandingSystem& station);
  void update_vor(const FlightState& flight, const VorStation& station);
};

/// A direction finder.
struct AdfReceiver {
  AdfTuning tuning{1900};
  bool received = false;
  std::string_view ident;    ///< as a NavReceiver's
  double bearing_deg = 0.0;  ///< magnetic, to the station

  void update(const FlightState& flight, bool powered);
};

/// The marker whose beam the aircraft is in: 1 outer, 2 middle, 3 inner, 0 none. The beams are fans
/// that widen with the height (half a metre each way per metre) across 2 km of the approach.
int marker_overhead(const FlightState& flight);

/// The bearing as a needle shows it on an instrument whose card turns behind it: 0 straight ahead.
double on_instrument_deg(double bearing_deg, double heading_deg);

/// Miles that a wave between the aircraft and a mast goes before the ground hides it.
double radio_horizon_nm(const FlightState& flight);

double magnetic_heading_deg(const FlightState& flight);

}  // namespace host::simulation
