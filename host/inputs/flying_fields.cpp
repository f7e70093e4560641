#include "host/inputs/flying_fields.h"

#include <array>

#include "host/inputs/known_fields.h"
#include "host/simulation/world/airfield.h"

namespace host {
namespace {

using simulation::FlightControls;
using simulation::InFlight;
using simulation::Weather;

constexpr std::string_view gear_positions[] = {"up", "down"};

bool gear_is_down(const NamedValue& field) { return field.one_of(gear_positions) == 1; }
std::size_t flap_detent(const NamedValue& field) { return field.one_of(simulation::flap_detents_deg); }

// ---- Controls: how each is moved, and where it stands

struct Control {
  KnownField<FlightControls> field;
  NamedValue::Value (*position)(const FlightControls&);
};

template <double FlightControls::*ratio, int least>
constexpr Control lever(std::string_view name) {
  return {{name, [](FlightControls& c, const NamedValue& field) { c.*ratio = field.number(least, 1); }},
          [](const FlightControls& c) -> NamedValue::Value { return c.*ratio; }};
}

template <std::array<double, 2> FlightControls::*ratios>
constexpr Control levers(std::string_view name) {
  return {{name, [](FlightControls& c, const NamedValue& field) { c.*ratios = field.both(0, 1); }},
          [](const FlightControls& c) -> NamedValue::Value {
            return std::vector((c.*ratios).begin(), (c.*ratios).end());
          }};
}

template <bool FlightControls::*flag>
constexpr Control latch(std::string_view name) {
  return {{name, [](FlightControls& c, const NamedValue& field) { c.*flag = field.truth(); }},
          [](const FlightControls& c) -> NamedValue::Value { return c.*flag; }};
}

constexpr Control flap_lever{
    {"flaps", [](FlightControls& c, const NamedValue& field) { c.flap_detent = flap_detent(field); }},
    [](const FlightControls& c) -> NamedValue::Value {
      return simulation::flap_detents_deg[c.limited().flap_detent];
    }};

constexpr Control gear_lever{
    {"gear", [](FlightControls& c, const NamedValue& field) { c.gear_down = gear_is_down(field); }},
    [](const FlightControls& c) -> NamedValue::Value {
      return std::string(gear_positions[c.gear_down ? 1 : 0]);
    }};

constexpr std::array controls{
    lever<&FlightControls::elevator, -1>("elevator"),
    lever<&FlightControls::aileron, -1>("aileron"),
    lever<&FlightControls::rudder, -1>("rudder"),
    lever<&FlightControls::pitch_trim, -1>("pitch_trim"),
    lever<&FlightControls::aileron_trim, -1>("aileron_trim"),
    lever<&FlightControls::rudder_trim, -1>("rudder_trim"),
    levers<&FlightControls::throttle>("throttle"),
    flap_lever,
    gear_lever,
    lever<&FlightControls::speed_brake, 0>("speed_brake"),
    latch<&FlightControls::lift_dumpers_out>("lift_dumpers"),
    levers<&FlightControls::brake>("brakes"),
    lever<&FlightControls::tiller, -1>("tiller"),
    latch<&FlightControls::parking_brake_set>("parking_brake"),
};

constexpr auto control_fields = [] {
  std::array<KnownField<FlightControls>, controls.size()> fields{};
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = controls[i].field;
  return fields;
}();

// ---- Weather and place

constexpr KnownField<Weather> weather_fields[] = {
    // The tower tells the wind as the compass shows it.
    {"wind_from",
     [](Weather& w, const NamedValue& field) {
       w.wind.from_true_deg = field.number(0, 360) + simulation::magnetic_variation_deg;
     }},
    {"wind_speed", [](Weather& w, const NamedValue& field) { w.wind.speed_kt = field.number(0, 150); }},
    {"gusts", [](Weather& w, const NamedValue& field) { w.wind.gust_mps = field.number(0, 10); }},
    {"pressure",
     [](Weather& w, const NamedValue& field) { w.sea_level_pressure_hpa = field.number(900, 1100); }},
    {"warmer_by",
     [](Weather& w, const NamedValue& field) { w.warmer_by_celsius = field.number(-60, 60); }},
};

constexpr double farthest_m = 200000;

constexpr KnownField<InFlight> place_fields[] = {
    {"altitude", [](InFlight& p, const NamedValue& field) { p.altitude_ft = field.number(0, 60000); }},
    {"airspeed", [](InFlight& p, const NamedValue& field) { p.airspeed_kt = field.number(50, 400); }},
    {"mach", [](InFlight& p, const NamedValue& field) { p.mach = field.number(0, 0.95); }},
    {"heading", [](InFlight& p, const NamedValue& field) { p.heading_deg = field.number(0, 360); }},
    {"along",
     [](InFlight& p, const NamedValue& field) { p.along_m = field.number(-farthest_m, farthest_m); }},
    {"right",
     [](InFlight& p, const NamedValue& field) { p.right_m = field.number(-farthest_m, farthest_m); }},
    {"flaps", [](InFlight& p, const NamedValue& field) { p.flap_detent = flap_detent(field); }},
    {"gear", [](InFlight& p, const NamedValue& field) { p.gear_down = gear_is_down(field); }},
};

}  // namespace

FlightControls with_controls(const FlightControls& standing, std::span<const NamedValue> moved) {
  return with_fields<FlightControls>(standing, "fly", moved, control_fields);
}

Weather with_weather(const Weather& weather, std::span<const NamedValue> changed) {
  return with_fields<Weather>(weather, "weather", changed, weather_fields);
}

InFlight place_of(std::span<const NamedValue> told) {
  return with_fields<InFlight>({}, "place_in_flight", told, place_fields);
}

NamedValues positions_of(const FlightControls& standing) {
  NamedValues positions;
  for (const Control& control : controls)
    positions.push_back({std::string(control.field.name), control.position(standing)});
  return positions;
}

NamedValues moves_between(const FlightControls& from, const FlightControls& to) {
  NamedValues moves;
  for (const Control& control : controls)
    if (auto position = control.position(to); position != control.position(from))
      moves.push_back({std::string(control.field.name), std::move(position)});
  return moves;
}

}  // namespace host
