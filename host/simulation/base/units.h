/// Factors between the units of the cockpit and those of the calculations. Inside, everything is SI.
#pragma once

#include <numbers>

namespace host::simulation {

inline constexpr double metres_per_foot = 0.3048;
inline constexpr double metres_per_nautical_mile = 1852.0;
inline constexpr double mps_per_knot = metres_per_nautical_mile / 3600.0;
inline constexpr double feet_per_minute_per_mps = 60.0 / metres_per_foot;
inline constexpr double radians_per_degree = std::numbers::pi / 180.0;
inline constexpr double degrees_per_radian = 180.0 / std::numbers::pi;
inline constexpr double gravity_mps2 = 9.80665;
inline constexpr double air_gas_constant = 287.05287;  ///< J/(kg K), dry
inline constexpr double kelvin_at_0_celsius = 273.15;
inline constexpr double pascals_per_hpa = 100.0;

}  // namespace host::simulation
