#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/pages/places_to_go.h"
#include "host/pages/sheet.h"
#include "host/simulation/base/angle.h"

namespace host {
namespace {

std::string written(const char* format, auto... values) {
  char text[64];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

// 1 to 360, as directions are spoken.
std::string direction(double degrees) {
  const long whole = std::lround(degrees) % 360;
  return written("%03ld°", whole == 0 ? 360 : whole);
}

void draw_figure(Sheet& sheet, const char* what, const std::string& value, double x, double y) {
  sheet.text(what, x, y, 15, sheet.colors().soft);
  sheet.text(value, x, y + 17, 27, sheet.colors().ink, true);
}

std::string turn_words(const GroundMotion& motion, const WayTo& way) {
  if (way.minutes < 0) return "--";
  const long turn = std::lround(simulation::turn_degrees(way.bearing_deg - motion.track_deg));
  if (turn == 0) return "on track";
  return written("%ld° %s", std::abs(turn), turn < 0 ? "left" : "right");
}

constexpr double second_column = 152, third_column = 290;

double draw_position(Sheet& sheet, const AircraftModel& aircraft, double y) {
  const simulation::FlightState& flight = aircraft.flight();
  const GroundMotion motion = ground_motion(flight);
  const bool moves = motion.speed_kt >= 1;
  const int seconds = static_cast<int>(aircraft.time_of_day_s());
  sheet.text(position_words(flight.position_m), Sheet::margin, y, 21, sheet.colors().ink, true);
  y += 36;
  draw_figure(sheet, "GROUND SPEED", written("%.0f kt", motion.speed_kt), Sheet::margin, y);
  draw_figure(sheet, "TRACK", moves ? direction(motion.track_deg) : "--", second_column, y);
  draw_figure(sheet, "ALTITUDE", written("%.0f ft", flight.altitude_ft), third_column, y);
  y += 54;
  draw_figure(sheet, "LOCAL TIME",
              written("%02d:%02d:%02d", seconds / 3600 % 24, seconds / 60 % 60, seconds % 60),
              Sheet::margin, y);
  return y + 64;
}

double draw_destination(Sheet& sheet, const AircraftModel& aircraft, const PlaceToGo& place, double y) {
  const WayTo way = way_to(place.position_m, aircraft.flight());
  const GroundMotion motion = ground_motion(aircraft.flight());
  sheet.heading("To " + place.name, y);
  y += 34;
  draw_figure(sheet, "DISTANCE", written("%.1f nm", way.distance_nm), Sheet::margin, y);
  draw_figure(sheet, "BEARING", direction(way.bearing_deg), second_column, y);
  draw_figure(sheet, "TIME", duration_words(way.minutes), third_column, y);
  y += 54;
  draw_figure(sheet, "TURN", turn_words(motion, way), Sheet::margin, y);
  if (way.minutes >= 0) {
    const int arrival = static_cast<int>(aircraft.time_of_day_s() / 60 + way.minutes);
    draw_figure(sheet, "THERE AT", written("%02d:%02d", arrival / 60 % 24, arrival % 60), third_column,
                y);
  }
  return y + 64;
}

constexpr double distance_edge = 230, bearing_edge = 305;

void draw_place(Sheet& sheet, const PageView& view, std::size_t index, double y) {
  const PlaceToGo& place = places_to_go()[index];
  const WayTo way = way_to(place.position_m, view.cockpit.aircraft().flight());
  const bool chosen = index == view.choices.destination;
  const SheetColors& colors = sheet.colors();
  if (chosen)
    sheet.box(Sheet::margin - 6, y - 3, Sheet::width - 2 * Sheet::margin + 12, 28, 4, colors.face);
  sheet.text(place.name, Sheet::margin, y, 20, chosen ? colors.accent : colors.ink, true);
  sheet.text(place.frequency, Sheet::margin + 62, y + 1, 17, colors.soft);
  sheet.text_right(written("%.1f", way.distance_nm), distance_edge, y, 20, colors.ink);
  sheet.text_right(direction(way.bearing_deg), bearing_edge, y, 20, colors.ink);
  sheet.text_right(duration_words(way.minutes), Sheet::right(), y, 20, colors.ink);
  sheet.spot(0, y - 3, Sheet::width, 28, page_click::GoTo{index});
}

}  // namespace

DrawnPage draw_gps(const PageView& view) {
  Sheet sheet(PageKind::gps, view);
  const auto places = places_to_go();
  const std::size_t chosen = std::min(view.choices.destination, places.size() - 1);
  double y = draw_position(sheet, view.cockpit.aircraft(), Sheet::top + 4);
  y = draw_destination(sheet, view.cockpit.aircraft(), places[chosen], y);
  sheet.heading("Places", y);
  sheet.text_right("nm", distance_edge, y + 2, 15, sheet.colors().soft);
  sheet.text_right("bearing", bearing_edge, y + 2, 15, sheet.colors().soft);
  sheet.text_right("time", Sheet::right(), y + 2, 15, sheet.colors().soft);
  y += 32;
  for (std::size_t i = 0; i < places.size(); ++i, y += 30) draw_place(sheet, view, i, y);
  sheet.text("Directions are magnetic. Click a place to go there.", Sheet::margin, y + 14, 15,
             sheet.colors().soft);
  return sheet.finish();
}

}  // namespace host
