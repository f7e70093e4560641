#include "host/outside/airfield_lamps.h"

#include <algorithm>
#include <cmath>

#include "host/outside/airfield_surfaces.h"
#include "host/outside/papi.h"

namespace host::outside {
namespace {

using simulation::on_runway_axes;

constexpr Rgb white{255, 240, 214}, yellow{255, 196, 84}, green{70, 255, 130}, red{255, 56, 40};
constexpr Rgb blue{70, 110, 255}, sodium{255, 190, 110};
constexpr double half_m = 0.5 * simulation::runway_length_m;

/// As End of the markings: along from a threshold inward, right as seen by who lands there.
class LampRow {
 public:
  LampRow(std::vector<Lamp>& all, bool far) : all_(all), sign_(far ? -1.0 : 1.0) {}

  /// Shines against the approach, or with it where `departing`.
  Lamp& add(double from_threshold_m, double right_m, const Rgb& colour, double power,
            bool departing = false) {
    Vector at = on_runway_axes(sign_ * (from_threshold_m - half_m), sign_ * right_m);
    at.z -= 0.4;
    const Vector axis = on_runway_axes(departing ? sign_ : -sign_, 0.0);
    return all_.emplace_back(Lamp{at, colour, power, {axis.x, axis.y, 0.0}});
  }

  void bar(double from_threshold_m, double half_width_m, double step_m, const Rgb& colour, double power,
           bool departing = false) {
    for (double right = -half_width_m; right <= half_width_m + 0.01; right += step_m)
      add(from_threshold_m, right, colour, power, departing);
  }

 private:
  std::vector<Lamp>& all_;
  double sign_;
};

void add_end(LampRow end) {
  end.bar(-2.0, runway_half_width_m, 2.5, green, 1.6);
  end.bar(-2.0, runway_half_width_m - 2.5, 5.0, red, 1.2, true);
  for (double at = 30.0; at <= 900.0; at += 30.0)  // touchdown zone
    for (const double right : {9.0, 10.5, 12.0})
      for (const double side : {-1.0, 1.0}) end.add(at, side * right, white, 0.7);
  for (double at = 15.0; at < simulation::runway_length_m; at += 15.0) {
    const double rest = simulation::runway_length_m - at;
    const bool alternate = std::fmod(at, 30.0) < 1.0;
    end.add(at, 0.0, rest < 300.0 || (rest < 900.0 && alternate) ? red : white, 0.6);
  }
  for (double at = 0.0; at <= simulation::runway_length_m; at += 60.0) {
    const bool last_part = simulation::runway_length_m - at <= 600.0;
    for (const double side : {-1.0, 1.0})
      end.add(at, side * (runway_half_width_m + 1.5), last_part ? yellow : white, 1.0);
  }
}

void add_approach(LampRow end) {
  for (double before = 30.0; before <= 900.0; before += 30.0) {
    end.bar(-before, 2.0, 1.0, white, 2.2);
    if (before > 300.0) end.add(-before, 0.0, white, 7.0).flash_phase = 1.0 - (before - 300.0) / 600.0;
    if (before < 290.0)
      for (const double right : {9.0, 10.5, 12.0})
        for (const double side : {-1.0, 1.0}) end.add(-before, side * right, red, 1.5);
  }
  for (const double before : {150.0, 300.0})
    for (double right = before < 200 ? 4.0 : 4.5; right <= 15.0; right += 2.7)
      for (const double side : {-1.0, 1.0}) end.add(-before, side * right, white, 2.0);
}

void add_taxi_lamps(std::vector<Lamp>& all) {
  const auto add = [&](double along, double right, const Rgb& colour, double power, double up_m) {
    Vector at = on_runway_axes(along, right);
    at.z -= up_m;
    all.push_back({at, colour, power});
  };
  const double half = taxiway_half_width_m + 1.5;
  for (double along = -1500.0; along <= 1500.0; along += 60.0)
    for (const double side : {-half, half}) add(along, taxiway_right_m + side, blue, 0.35, 0.4);
  for (const double along : connector_along_m)
    for (double right = 45.0; right < taxiway_right_m - 20.0; right += 25.0)
      for (const double side : {-16.5, 16.5}) add(along + side, right, blue, 0.35, 0.4);
  for (double along = apron_from_m; along <= apron_to_m; along += 70.0)
    add(along, apron_to_right_m + 4.0, sodium, 1.6, 16.0);
}

// A lamp that would look smaller than the eye can see is drawn at that size and darker instead, but not
// as dark as it should be: lamps at night are seen from far away.
struct Strength {
  double power;
  double by_day = 0.0;  ///< how bright it looks at least
  double least_px = 0.8;
};

void paint(Picture picture, const Camera& camera, const Air& air, const Vector& at_m, const Rgb& colour,
           const Strength& strength) {
  constexpr double lamp_radius_m = 0.13, most_px = 3.5;
  const Vector at = camera.in_camera(at_m);
  if (at.x < 1.0) return;
  const double distance_m = length(at);
  const double true_px = lamp_radius_m * std::sqrt(strength.power) * camera.focal_px() / distance_m;
  const double radius_px = std::clamp(true_px, strength.least_px, most_px);
  const double small = std::min(1.0, true_px / strength.least_px);
  const double brightness = std::max(air.daylight().lamps, strength.by_day) *
                            air.haze(distance_m).kept * std::pow(small, 0.66);
  if (brightness < 0.012) return;
  add_light(picture, camera.project(at), radius_px, colour, 1.5 * brightness);
}

// Most of a directed lamp's light goes within some 60 degrees of where it points.
double share_toward(const Lamp& lamp, const Vector& eye_m) {
  if (lamp.toward == Vector{}) return 1.0;
  const Vector to = eye_m - lamp.at_m;
  const double ahead = dot(to, lamp.toward) / std::max(std::hypot(to.x, to.y), 0.1);
  return std::clamp(ahead * 2.0, 0.0, 1.0);
}

bool lit(const Lamp& lamp, double time_s) {
  if (lamp.flash_phase < 0.0) return true;
  const double phase = std::fmod(time_s * 2.0, 1.0);
  return std::abs(phase - lamp.flash_phase) < 0.07;
}

}  // namespace

std::vector<Lamp> airfield_lamps() {
  std::vector<Lamp> all;
  for (const bool far : {false, true}) {
    add_end(LampRow(all, far));
    add_approach(LampRow(all, far));
  }
  add_taxi_lamps(all);
  return all;
}

bool sees_flashes(const Vector& eye_m) {
  static const std::vector<Lamp> flashing = [] {
    std::vector<Lamp> all = airfield_lamps();
    std::erase_if(all, [](const Lamp& lamp) { return lamp.flash_phase < 0.0; });
    return all;
  }();
  return std::ranges::any_of(flashing,
                             [&](const Lamp& lamp) { return share_toward(lamp, eye_m) > 0.0; });
}

void paint_lamps(Picture picture, const Camera& camera, const Air& air, const std::vector<Lamp>& lamps,
                 double time_s) {
  for (const Lamp& lamp : lamps) {
    const double share = share_toward(lamp, camera.eye_m());
    if (share > 0.0 && lit(lamp, time_s))
      paint(picture, camera, air, lamp.at_m, lamp.colour, {lamp.power * share});
  }
}

void paint_papi(Picture picture, const Camera& camera, const Air& air) {
  constexpr Strength strength{40.0, 0.8, 1.3};  // made to be seen by day from five miles
  for (const PapiUnit& unit : papi_units) {
    const Lamp lamp{papi_place_m(unit), {}, 1.0, on_runway_axes(-1.0, 0.0)};
    Lamp level = lamp;
    level.toward.z = 0.0;
    if (share_toward(level, camera.eye_m()) <= 0.0) continue;
    const Rgb colour = mixed(red, {255, 250, 240}, papi_white(unit, camera.eye_m()));
    paint(picture, camera, air, lamp.at_m, colour, strength);
  }
}

void paint_village_lamps(Picture picture, const Camera& camera, const Air& air, double elevation_m) {
  constexpr double farthest_m = 16000.0;
  if (air.daylight().lamps < 0.7) return;
  const LandMap& map = land_map();
  const Vector& eye = camera.eye_m();
  const double north = std::floor(eye.x / map.side_m), east = std::floor(eye.y / map.side_m);
  for (const double row : {north - 1, north, north + 1})
    for (const double column : {east - 1, east, east + 1})
      for (const VillageLamp& lamp : map.lamps) {
        const Vector at{row * map.side_m + lamp.north_m, column * map.side_m + lamp.east_m,
                        -elevation_m - 5.0};
        if (std::hypot(at.x - eye.x, at.y - eye.y) > farthest_m) continue;
        const auto axes = simulation::runway_axes(at);
        if (std::abs(axes.along_m) < 2600.0 && std::abs(axes.right_m) < 650.0)
          continue;  // the airfield's own
        paint(picture, camera, air, at, sodium, {1.4});
      }
}

}  // namespace host::outside
