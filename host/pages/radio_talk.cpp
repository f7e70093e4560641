#include "host/pages/radio_talk.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/simulation/base/angle.h"
#include "host/simulation/navigation/receivers.h"

namespace host {
namespace {

using namespace simulation;

constexpr std::array<RadioStationRow, 3> stations{{
    {RadioStation::ground, "Tarnvale Ground", simulation::ground_khz},
    {RadioStation::tower, "Tarnvale Tower", simulation::tower_khz},
    {RadioStation::information, "Tarnvale Information", simulation::information_khz},
}};

constexpr std::array<RequestRow, 4> requests{{
    {Request::push_back, "Push back", "on the stand, request push back."},
    {Request::taxi, "Taxi", "request taxi."},
    {Request::take_off, "Take-off", "ready for departure."},
    {Request::landing, "Landing", "request landing."},
}};

constexpr std::string_view call_sign = "Tarnjet 36";
constexpr double most_tailwind_kt = 5.0;
constexpr double clearance_nm = 8.0;  // landing aircraft are cleared from here on
constexpr double stand_reach_m = 60.0;

std::string written(const char* format, auto... values) {
  char text[160];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

std::string wind_words(const AircraftModel& aircraft) {
  const Wind& wind = aircraft.weather().wind;
  const long knots = std::lround(wind.speed_kt);
  if (knots == 0) return "wind calm";
  const double from = compass_degrees(wind.from_true_deg - magnetic_variation_deg);
  const long tens = std::lround(from / 10.0) * 10;
  return written("wind %03ld degrees %ld knots", tens == 0 ? 360 : tens, knots);
}

// Rounded down, so that nobody flies lower than the altimeter shows.
std::string qnh_words(const AircraftModel& aircraft) {
  return written("QNH %.0f", std::floor(aircraft.weather().sea_level_pressure_hpa));
}

std::string on_runway_words(const AircraftModel& aircraft, const char* what) {
  return "runway " + std::string(runway_in_use(aircraft)) + ", " + wind_words(aircraft) + ", " + what +
         ".";
}

RunwayAxes place(const AircraftModel& aircraft) { return runway_axes(aircraft.flight().position_m); }

bool on_stand(const AircraftModel& aircraft) {
  const auto [along, right] = place(aircraft);
  return std::hypot(along - stand_along_m, right - stand_right_m) < stand_reach_m;
}

bool on_runway(const AircraftModel& aircraft) {
  const auto [along, right] = place(aircraft);
  return std::abs(right) < 22.5 && std::abs(along) < runway_length_m / 2.0;
}

double miles_out(const AircraftModel& aircraft) {
  const auto [along, right] = place(aircraft);
  return std::hypot(along, right) / metres_per_nautical_mile;
}

std::string other_station(RadioStation wanted) {
  const auto& row = stations[static_cast<std::size_t>(wanted)];
  return "contact " + std::string(row.name) + " on " + frequency_words(row.khz) + ".";
}

std::string push_back_answer(const AircraftModel& aircraft) {
  if (!on_stand(aircraft)) return "you are off the stand, request taxi when ready.";
  return "push back approved, " + qnh_words(aircraft) + ".";
}

std::string taxi_answer(const AircraftModel& aircraft) {
  const std::string way = on_runway(aircraft)
                              ? "vacate and taxi to the stand"
                              : "taxi to holding point runway " + std::string(runway_in_use(aircraft));
  return way + ", " + wind_words(aircraft) + ", " + qnh_words(aircraft) + ".";
}

std::string take_off_answer(const AircraftModel& aircraft) {
  if (on_runway(aircraft)) return on_runway_words(aircraft, "cleared for take-off");
  return on_runway_words(aircraft, "line up and wait");
}

std::string landing_answer(const AircraftModel& aircraft) {
  if (miles_out(aircraft) <= clearance_nm) return on_runway_words(aircraft, "cleared to land");
  return written("continue approach, %.0f miles, report within %.0f, ", miles_out(aircraft),
                 clearance_nm) +
         on_runway_words(aircraft, qnh_words(aircraft).c_str());
}

struct Duty {
  RadioStation station;
  bool on_ground;
  std::string (*answer)(const AircraftModel&);
};

constexpr std::array<Duty, 4> duties{{
    {RadioStation::ground, true, push_back_answer},
    {RadioStation::ground, true, taxi_answer},
    {RadioStation::tower, true, take_off_answer},
    {RadioStation::tower, false, landing_answer},
}};

std::string answer_of(RadioStation station, const AircraftModel& aircraft, Request request) {
  const Duty& duty = duties[static_cast<std::size_t>(request)];
  if (duty.station != station) return other_station(duty.station);
  if (duty.on_ground && !aircraft.flight().on_ground) return "I have you in the air, say again.";
  if (!duty.on_ground && aircraft.flight().on_ground) return "I have you on the ground, say again.";
  return duty.answer(aircraft);
}

}  // namespace

std::span<const RadioStationRow> radio_stations() { return stations; }
std::span<const RequestRow> request_table() { return requests; }

const RadioStationRow* heard_station(const AircraftModel& aircraft) {
  if (!aircraft.com_powered()) return nullptr;
  if (miles_out(aircraft) > radio_horizon_nm(aircraft.flight())) return nullptr;
  const auto found = std::ranges::find(stations, aircraft.com().active_khz, &RadioStationRow::khz);
  return found != stations.end() ? &*found : nullptr;
}

std::string_view runway_in_use(const AircraftModel& aircraft) {
  const Wind& wind = aircraft.weather().wind;
  const double behind =
      -wind.speed_kt * std::cos((wind.from_true_deg - runway_true_deg) * radians_per_degree);
  return behind > most_tailwind_kt ? "25" : "07";
}

std::string information(const AircraftModel& aircraft) {
  const int minutes = static_cast<int>(aircraft.time_of_day_s() / 60.0);
  const int recorded = minutes / 30 * 30;
  const double temperature =
      standard_temperature_at(airfield_elevation_ft) + aircraft.weather().warmer_by_celsius;
  return written("Tarnvale information %c, recorded at %02d%02d. ", 'A' + minutes / 30 % 26,
                 recorded / 60 % 24, recorded % 60) +
         "Runway in use " + std::string(runway_in_use(aircraft)) + ", " + wind_words(aircraft) +
         ", temperature " + written("%.0f, ", temperature) + qnh_words(aircraft) + ".";
}

Exchange ask(const AircraftModel& aircraft, Request request) {
  const RadioStationRow* station = heard_station(aircraft);
  const std::string_view spoken = requests[static_cast<std::size_t>(request)].spoken;
  const std::string to = station ? std::string(station->name) + ", " : "";
  Exchange exchange{to + std::string(call_sign) + ", " + std::string(spoken), ""};
  if (station && station->station != RadioStation::information)
    exchange.answer = std::string(call_sign) + ", " + answer_of(station->station, aircraft, request);
  return exchange;
}

std::string frequency_words(int khz) { return written("%d.%03d", khz / 1000, khz % 1000); }

}  // namespace host
