#include "host/simulation/world/airfield.h"

#include <cmath>

namespace host::simulation {
namespace {

constexpr double earth_radius_m = 6371000.0;  // mean radius

struct Direction {
  double north, east;
};

const Direction& runway_direction() {
  static const Direction direction{std::cos(runway_true_deg * radians_per_degree),
                                   std::sin(runway_true_deg * radians_per_degree)};
  return direction;
}

}  // namespace

Vector on_runway_axes(double along_m, double right_m) {
  const auto [north, east] = runway_direction();
  return {along_m * north - right_m * east, along_m * east + right_m * north, -airfield_elevation_m};
}

RunwayAxes runway_axes(const Vector& position_m) {
  const auto [north, east] = runway_direction();
  return {position_m.x * north + position_m.y * east, position_m.y * north - position_m.x * east};
}

double latitude_deg(const Vector& position_m) {
  return airfield_latitude_deg + position_m.x / earth_radius_m * degrees_per_radian;
}

double longitude_deg(const Vector& position_m) {
  const double parallel_m = earth_radius_m * std::cos(airfield_latitude_deg * radians_per_degree);
  return airfield_longitude_deg + position_m.y / parallel_m * degrees_per_radian;
}

}  // namespace host::simulation
