/// What lies flat on the airfield: grass, pavement and paint, in the order in which it is laid.
#pragma once

#include <cstdint>
#include <vector>

#include "host/simulation/world/airfield.h"

namespace host::outside {

/// A convex polygon on the runway's axes.
struct Surface {
  std::vector<simulation::RunwayAxes> corners;
  std::uint32_t colour;  ///< 0xRRGGBB by noon
};

/// A rectangle along the runway's axes.
Surface strip(double along_m, double to_along_m, double right_m, double to_right_m,
              std::uint32_t colour);

/// Grass, taxiways and apron with their lines.
std::vector<Surface> airfield_ground();

/// The runway with the markings of both ends.
std::vector<Surface> runway_surfaces();

// The places that lamps and buildings share.
inline constexpr double runway_half_width_m = 22.5;
inline constexpr double taxiway_right_m = 180.0, taxiway_half_width_m = 11.5;
inline constexpr double apron_from_m = -150.0, apron_to_m = 620.0;
inline constexpr double apron_right_m = 240.0, apron_to_right_m = 430.0;
inline constexpr double connector_along_m[] = {-1470.0, -550.0, 550.0, 1470.0};

/// From a threshold: marks beside the place where an approach points.
inline constexpr double aiming_point_m = 400.0;

}  // namespace host::outside
