/// The radio stations around the airfield.
#pragma once

#include <array>
#include <string_view>

#include "host/simulation/world/airfield.h"

namespace host::simulation {

/// The frequencies of the airfield's voices: ground, tower and the recorded information.
inline constexpr int ground_khz = 121700, tower_khz = 118100, information_khz = 126650;

/// The instrument landing system of runway 07.
struct LandingSystem {
  std::string_view ident;
  double frequency_mhz;
  double course_true_deg;
  double slope_deg;
  Vector localizer_m;    ///< beyond the far end
  Vector glide_slope_m;  ///< beside the touch-down zone
};

/// A VOR with a DME at the same place.
struct VorStation {
  std::string_view ident;
  double frequency_mhz;
  Vector position_m;
};

struct NdbStation {
  std::string_view ident;
  double frequency_khz;
  Vector position_m;
};

/// How far ahead of the threshold each marker stands.
struct MarkerBeacon {
  int number;  ///< 1 outer, 2 middle, 3 inner
  double before_threshold_m;
};

const LandingSystem& landing_system();
const std::array<VorStation, 2>& vor_stations();
const NdbStation& ndb_station();

inline constexpr double threshold_along_m = -runway_length_m / 2.0;
inline constexpr std::array<MarkerBeacon, 3> marker_beacons{{{1, 7200.0}, {2, 1050.0}, {3, 300.0}}};

}  // namespace host::simulation
