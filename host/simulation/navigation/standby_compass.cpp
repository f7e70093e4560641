#include "host/simulation/navigation/standby_compass.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/angle.h"
#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double dip_rad = 64.0 * radians_per_degree;
constexpr double float_lag_s = 0.5;
constexpr double frequency_rad_per_s = 2.0 * std::numbers::pi / 5.0, damping = 0.5;

/// Of strength 1, north, east, down.
Vector earths_field() {
  constexpr double east_of_north_rad = magnetic_variation_deg * radians_per_degree;
  return {std::cos(dip_rad) * std::cos(east_of_north_rad),
          std::cos(dip_rad) * std::sin(east_of_north_rad), std::sin(dip_rad)};
}

Vector felt_up(const FlightState& flight) {
  constexpr double least_mps2 = 1.0;  // a weightless float stays as it is
  const Vector& force = flight.specific_force_mps2;
  const double size = length(force);
  return size < least_mps2 ? Vector{0.0, 0.0, -1.0} : force * (1.0 / size);
}

Vector in_plane(const Vector& vector, const Vector& across) {
  return vector - across * dot(vector, across);
}

/// Where the card would rest, and how strongly it is drawn there: 1 level.
struct Rest {
  double reading_rad, strength;
};

Rest rest_of(const FlightState& flight, const Vector& up) {
  const Vector field = in_plane(Quaternion::from(flight.attitude).to_body(earths_field()), up);
  const Vector nose = in_plane({1.0, 0.0, 0.0}, up);
  return {std::atan2(-dot(cross(field, nose), up), dot(field, nose)),
          length(field) / std::cos(dip_rad)};
}

}  // namespace

void StandbyCompass::settle(const FlightState& flight) {
  up_ = felt_up(flight);
  rate_rad_per_s_ = 0.0;
  reading_deg = compass_degrees(rest_of(flight, up_).reading_rad * degrees_per_radian);
}

void StandbyCompass::update(double dt_s, const FlightState& flight) {
  const Vector target = felt_up(flight);
  const Vector tilted{lag(up_.x, target.x, float_lag_s, dt_s), lag(up_.y, target.y, float_lag_s, dt_s),
                      lag(up_.z, target.z, float_lag_s, dt_s)};
  up_ = tilted * (1.0 / std::max(length(tilted), 0.01));
  const Rest rest = rest_of(flight, up_);
  const double reading_rad = reading_deg * radians_per_degree;
  const double drawn = rest.strength * std::sin(reading_rad - rest.reading_rad);
  rate_rad_per_s_ +=
      dt_s * frequency_rad_per_s * (frequency_rad_per_s * drawn - 2.0 * damping * rate_rad_per_s_);
  const double yaw_rad_per_s = -dot(flight.rate_rad_per_s, up_);
  reading_deg =
      compass_degrees(reading_deg + dt_s * (yaw_rad_per_s - rate_rad_per_s_) * degrees_per_radian);
}

}  // namespace host::simulation
