#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "host/pages/places_to_go.h"
#include "host/pages/sheet.h"
#include "host/simulation/world/stations.h"

namespace host {
namespace {

using namespace simulation;

constexpr double below_map = 92;  // the lines under the map

// True north is up and the aircraft in the middle.
struct MapFrame {
  Vector middle_m;
  double x, y;    // of the middle, on the sheet
  double metres;  // a unit of the sheet

  SketchPoint operator()(const Vector& place_m) const {
    return {x + (place_m.y - middle_m.y) / metres, y - (place_m.x - middle_m.x) / metres};
  }
};

std::string miles(double nm) {
  char text[16];
  std::snprintf(text, sizeof text, "%.3g nm", nm);
  return text;
}

// A ring around the aircraft, told how far it is off.
void draw_rings(Sheet& sheet, const MapFrame& at, double range_nm) {
  for (const double part : {0.5, 1.0}) {
    const double radius = range_nm * part * metres_per_nautical_mile / at.metres;
    sheet.circle(at.x, at.y, radius, 1, sheet.colors().line);
    sheet.text_middle(miles(range_nm * part), at.x, at.y - radius + 2, 14, sheet.colors().soft);
  }
}

// The way down to the runway, as long as the landing system leads, and the runway over it, never too
// thin to be seen.
void draw_runway(Sheet& sheet, const MapFrame& at) {
  constexpr double led_m = 10.0 * metres_per_nautical_mile;
  const SketchPoint far = at(on_runway_axes(threshold_along_m - led_m, 0));
  const SketchPoint threshold = at(on_runway_axes(threshold_along_m, 0));
  const SketchPoint end = at(on_runway_axes(-threshold_along_m, 0));
  sheet.polyline({far, threshold}, 1.2, sheet.colors().done);
  for (const MarkerBeacon& marker : marker_beacons) {
    const double along = threshold_along_m - marker.before_threshold_m;
    sheet.polyline({at(on_runway_axes(along, -250)), at(on_runway_axes(along, 250))}, 1.6,
                   sheet.colors().done);
  }
  sheet.polyline({threshold, end}, std::max(4.0, 45.0 / at.metres), sheet.colors().ink);
}

void draw_vor(Sheet& sheet, SketchPoint place) {
  std::vector<SketchPoint> hexagon;
  for (int corner = 0; corner <= 6; ++corner) {
    const double angle = corner * 60.0 * radians_per_degree;
    hexagon.push_back({place.x + 8 * std::cos(angle), place.y + 8 * std::sin(angle)});
  }
  sheet.polyline(hexagon, 1.6, sheet.colors().done);
  sheet.box(place.x - 1.5, place.y - 1.5, 3, 3, 1.5, sheet.colors().done);
}

void draw_beacon(Sheet& sheet, SketchPoint place) {
  for (const double radius : {3.0, 6.0, 9.0})
    sheet.circle(place.x, place.y, radius, 1.2, sheet.colors().done);
}

void draw_place(Sheet& sheet, const MapFrame& at, const PlaceToGo& place) {
  const SketchPoint point = at(place.position_m);
  if (place.kind == PlaceKind::vor) draw_vor(sheet, point);
  if (place.kind == PlaceKind::beacon) draw_beacon(sheet, point);
  sheet.text(place.name, point.x + 11, point.y + 5, 17, sheet.colors().ink, true);
  sheet.text(place.frequency, point.x + 11, point.y + 22, 14, sheet.colors().soft);
}

void draw_track(Sheet& sheet, const MapFrame& at, std::span<const Vector> track) {
  std::vector<SketchPoint> points;
  for (const Vector& place : track) points.push_back(at(place));
  points.push_back({at.x, at.y});
  sheet.polyline(points, 2, sheet.colors().soft);
}

// Seen from above, its nose where it points.
void draw_aircraft(Sheet& sheet, const MapFrame& at, double heading_rad) {
  constexpr SketchPoint outline[] = {{0, -13}, {2, -6}, {2, -2},  {13, 5},  {13, 8},  {2, 5},
                                     {2, 11},  {6, 15}, {6, 17},  {0, 15},  {-6, 17}, {-6, 15},
                                     {-2, 11}, {-2, 5}, {-13, 8}, {-13, 5}, {-2, -2}, {-2, -6}};
  const double cosine = std::cos(heading_rad), sine = std::sin(heading_rad);
  std::vector<SketchPoint> corners;
  for (const auto& [x, y] : outline)
    corners.push_back({at.x + x * cosine - y * sine, at.y + x * sine + y * cosine});
  sheet.polygon(corners, sheet.colors().accent);
}

// Where the present course leads within the map.
void draw_course(Sheet& sheet, const MapFrame& at, const FlightState& flight) {
  constexpr double ahead_s = 120.0;
  const Vector there = flight.position_m + flight.velocity_mps * ahead_s;
  sheet.polyline({{at.x, at.y}, at(there)}, 1.2, sheet.colors().accent);
}

void draw_north(Sheet& sheet, double x, double y) {
  sheet.polygon({{x, y}, {x + 6, y + 18}, {x, y + 13}, {x - 6, y + 18}}, sheet.colors().ink);
  sheet.text_middle("N", x, y + 18, 15, sheet.colors().ink, true);
}

void draw_below(Sheet& sheet, const AircraftModel& aircraft, double y) {
  const GroundMotion motion = ground_motion(aircraft.flight());
  const WayTo home = way_to(places_to_go()[0].position_m, aircraft.flight());
  char text[96];
  std::snprintf(text, sizeof text, "%.0f ft    %.0f kt over ground", aircraft.flight().altitude_ft,
                motion.speed_kt);
  sheet.text(text, Sheet::margin, y, 18, sheet.colors().ink);
  std::snprintf(text, sizeof text, "RW07 %.1f nm, bearing %03ld°", home.distance_nm,
                std::lround(home.bearing_deg) % 360);
  sheet.text(text, Sheet::margin, y + 24, 18, sheet.colors().ink);
  sheet.text("The thin line ahead is two minutes long.", Sheet::margin, y + 50, 14,
             sheet.colors().soft);
  sheet.button("–", Sheet::right() - 84, y, 38, false, page_click::ChangeRange{-1});
  sheet.button("+", Sheet::right() - 38, y, 38, false, page_click::ChangeRange{1});
}

}  // namespace

DrawnPage draw_map(const PageView& view) {
  Sheet sheet(PageKind::map, view);
  const AircraftModel& aircraft = view.cockpit.aircraft();
  const FlightState& flight = aircraft.flight();
  const int last = static_cast<int>(std::size(map_ranges_nm)) - 1;
  const double range_nm = map_ranges_nm[std::clamp(view.choices.range, 0, last)];
  const double wide = Sheet::width - 2 * Sheet::margin, high = sheet.height() - Sheet::top - below_map;
  const MapFrame at{flight.position_m, Sheet::margin + wide / 2, Sheet::top + high / 2,
                    range_nm * metres_per_nautical_mile / (wide / 2)};
  sheet.begin_clip(Sheet::margin, Sheet::top, wide, high);
  sheet.box(Sheet::margin, Sheet::top, wide, high, 0, sheet.colors().face);
  draw_rings(sheet, at, range_nm);
  draw_runway(sheet, at);
  draw_track(sheet, at, aircraft.track());
  for (const PlaceToGo& place : places_to_go()) draw_place(sheet, at, place);
  draw_course(sheet, at, flight);
  draw_aircraft(sheet, at, flight.attitude.heading_rad);
  draw_north(sheet, Sheet::right() - 18, Sheet::top + 10);
  sheet.end_clip();
  draw_below(sheet, aircraft, Sheet::top + high + 12);
  return sheet.finish();
}

}  // namespace host
