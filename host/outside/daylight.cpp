#include "host/outside/daylight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/simulation/base/units.h"
#include "host/simulation/world/airfield.h"

namespace host::outside {
namespace {

using simulation::radians_per_degree;
using simulation::Vector;

constexpr double declination_deg = 14.0;  // early in May

struct Hour {
  double sun_up_deg;
  Rgb zenith, horizon, sunward, haze, land;
  double lamps, stars;
};

// From night over dusk to noon.
constexpr std::array<Hour, 7> hours{{
    {-18.0, {4, 7, 17}, {15, 20, 36}, {17, 22, 38}, {11, 15, 26}, {0.075, 0.085, 0.125}, 1.0, 1.0},
    {-10.0, {8, 14, 34}, {20, 27, 48}, {44, 42, 60}, {15, 20, 34}, {0.09, 0.10, 0.15}, 1.0, 0.7},
    {-5.0, {22, 38, 78}, {62, 70, 104}, {176, 112, 88}, {50, 54, 74}, {0.19, 0.19, 0.25}, 0.95, 0.15},
    {-1.0,
     {48, 78, 132},
     {126, 130, 160},
     {244, 168, 106},
     {98, 100, 118},
     {0.40, 0.37, 0.40},
     0.8,
     0.0},
    {4.0,
     {66, 106, 168},
     {176, 182, 200},
     {250, 210, 158},
     {150, 152, 162},
     {0.74, 0.67, 0.58},
     0.5,
     0.0},
    {14.0,
     {66, 120, 192},
     {188, 206, 224},
     {222, 220, 216},
     {170, 186, 202},
     {0.93, 0.90, 0.84},
     0.3,
     0.0},
    {40.0,
     {50, 104, 184},
     {180, 203, 226},
     {196, 212, 228},
     {164, 185, 207},
     {1.0, 1.0, 0.97},
     0.25,
     0.0},
}};

Vector sun_at(double time_of_day_s) {
  const double hour_angle = (time_of_day_s / 86400.0 - 0.5) * 2.0 * std::numbers::pi;
  const double latitude = simulation::airfield_latitude_deg * radians_per_degree;
  const double declination = declination_deg * radians_per_degree;
  const double south =
      std::cos(hour_angle) * std::cos(declination);  // toward the noon side, equator's plane
  return {std::sin(declination) * std::cos(latitude) - south * std::sin(latitude),
          -std::sin(hour_angle) * std::cos(declination),
          -(std::sin(declination) * std::sin(latitude) + south * std::cos(latitude))};
}

}  // namespace

Daylight daylight_at(double time_of_day_s) {
  const Vector sun = sun_at(time_of_day_s);
  const double up_deg = std::asin(std::clamp(-sun.z, -1.0, 1.0)) / radians_per_degree;
  const auto later =
      std::ranges::find_if(hours, [&](const Hour& hour) { return hour.sun_up_deg > up_deg; });
  const Hour& b = later == hours.end() ? hours.back() : *later;
  const Hour& a = later == hours.begin() ? b : *std::prev(later);
  const double span = b.sun_up_deg - a.sun_up_deg;
  const double t = span > 0.0 ? std::clamp((up_deg - a.sun_up_deg) / span, 0.0, 1.0) : 0.0;
  const auto between = [&](auto of) { return mixed(a.*of, b.*of, t); };
  return {sun,
          up_deg,
          between(&Hour::zenith),
          between(&Hour::horizon),
          between(&Hour::sunward),
          between(&Hour::haze),
          between(&Hour::land),
          a.lamps + (b.lamps - a.lamps) * t,
          a.stars + (b.stars - a.stars) * t};
}

}  // namespace host::outside
