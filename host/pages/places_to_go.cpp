#include "host/pages/places_to_go.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "host/simulation/base/angle.h"
#include "host/simulation/world/stations.h"

namespace host {
namespace {

using namespace simulation;

constexpr double slowest_kt = 30.0;
constexpr double most_minutes = 600.0;

std::string written(const char* format, double number) {
  char text[32];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

double magnetic_direction_deg(double north, double east) {
  return compass_degrees(std::atan2(east, north) * degrees_per_radian - magnetic_variation_deg);
}

std::string degrees_and_minutes(double degrees, const char* hemispheres, int width) {
  const long hundredths = std::lround(std::abs(degrees) * 6000.0);
  char text[32];
  std::snprintf(text, sizeof text, "%c %0*ld°%05.2f'", hemispheres[degrees < 0.0], width,
                hundredths / 6000, static_cast<double>(hundredths % 6000) / 100.0);
  return text;
}

}  // namespace

std::span<const PlaceToGo> places_to_go() {
  static const std::array<PlaceToGo, 4> places = [] {
    const auto& [first, second] = vor_stations();
    const auto vor = [](const VorStation& station) {
      return PlaceToGo{PlaceKind::vor, std::string(station.ident),
                       written("%.2f", station.frequency_mhz), station.position_m};
    };
    const LandingSystem& ils = landing_system();
    const NdbStation& beacon = ndb_station();
    return std::array{PlaceToGo{PlaceKind::runway, "RW07",
                                std::string(ils.ident) + written(" %.2f", ils.frequency_mhz),
                                on_runway_axes(threshold_along_m, 0.0)},
                      vor(first), vor(second),
                      PlaceToGo{PlaceKind::beacon, std::string(beacon.ident),
                                written("%.0f", beacon.frequency_khz), beacon.position_m}};
  }();
  return places;
}

GroundMotion ground_motion(const FlightState& flight) {
  const Vector& velocity = flight.velocity_mps;
  return {std::hypot(velocity.x, velocity.y) / mps_per_knot,
          magnetic_direction_deg(velocity.x, velocity.y)};
}

WayTo way_to(const Vector& position_m, const FlightState& flight) {
  const double north = position_m.x - flight.position_m.x, east = position_m.y - flight.position_m.y;
  const double distance_nm = std::hypot(north, east) / metres_per_nautical_mile;
  const double speed_kt = ground_motion(flight).speed_kt;
  return {distance_nm, magnetic_direction_deg(north, east),
          speed_kt < slowest_kt ? -1.0 : distance_nm / speed_kt * 60.0};
}

std::string position_words(const Vector& position_m) {
  return degrees_and_minutes(latitude_deg(position_m), "NS", 2) + "   " +
         degrees_and_minutes(longitude_deg(position_m), "EW", 3);
}

std::string duration_words(double minutes) {
  if (!(minutes >= 0.0) || minutes > most_minutes) return "--";
  const long seconds = std::lround(minutes * 60.0);
  char text[32];
  if (seconds < 3600)
    std::snprintf(text, sizeof text, "%ld:%02ld", seconds / 60, seconds % 60);
  else
    std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
  return text;
}

}  // namespace host
